#include "ArgumentosSorteo.h"

#include <algorithm>

#include "Argumentos.h"
#include "NumerosTexto.h"

namespace {

constexpr size_t NumerosDeSorteo = 6;

void OpcionNumeros(CLI::App* orden, std::vector<int>& numeros) {
    const auto leer = [&numeros](const std::string& valor) {
        const NumerosLeidos leidos = LeerNumeros(valor, NumeroMaximoBoleto);
        if (!leidos.Erroneos.empty())
            ArgumentoMalo("--numeros", "no es un número del boleto " + leidos.Erroneos.front());
        numeros = leidos.Numeros;
        std::sort(numeros.begin(), numeros.end());
        if (numeros.size() > NumerosDeSorteo) ArgumentoMalo("--numeros", "son más de seis");
        if (std::adjacent_find(numeros.begin(), numeros.end()) != numeros.end())
            ArgumentoMalo("--numeros", "hay alguno repetido");
    };
    OpcionLeida(orden, "--numeros", "L", leer, "Números premiados, con comas; menos de seis también valen")
        .Obligatoria();
}

} // namespace

void ExigirEntre(const std::string& nombre, int valor, int minimo, int maximo) {
    if (valor < minimo || valor > maximo)
        ArgumentoMalo(nombre, "se espera un número de " + std::to_string(minimo) + " a " + std::to_string(maximo) +
                                  ", no " + std::to_string(valor));
}

void DeclararSorteo(CLI::App* orden, ArgumentosSorteo& argumentos, std::function<void()> comprobar) {
    Fichero(orden, "F", argumentos.Fichero, "Fichero de apuestas");
    OpcionJuego(orden, argumentos.Juego);
    OpcionNumeros(orden, argumentos.Numeros);
    Entero(orden, "--complementario", argumentos.Complementario, 0, "Número complementario; si falta, ninguno");
    AlLeerTodos(orden, [&argumentos, comprobar = std::move(comprobar)] {
        const int maximo = Juegos[static_cast<size_t>(argumentos.Juego)].NumeroMaximo;
        for (const int n : argumentos.Numeros) ExigirEntre("--numeros", n, 1, maximo);
        ExigirEntre("--complementario", argumentos.Complementario, 0, NumeroMaximoBoleto);
        comprobar();
    });
}

bool CargarYMarcar(LogicaEscrutar& escrutar, const ArgumentosSorteo& argumentos) {
    escrutar.Abrir();
    if (!escrutar.CargarFichero(argumentos.Fichero)) return false;
    for (const int n : argumentos.Numeros) escrutar.PulsarNumero(n);
    escrutar.CambiarComplementario(argumentos.Complementario);
    return true;
}
