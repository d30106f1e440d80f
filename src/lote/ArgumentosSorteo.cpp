#include "ArgumentosSorteo.h"

#include <algorithm>

#include "Argumentos.h"
#include "NumerosTexto.h"

namespace {

constexpr size_t NumerosDeSorteo = 6;

void OpcionNumeros(CLI::App* orden, std::vector<int>& numeros) {
    const auto leer = [&numeros](const CLI::results_t& valores) {
        const NumerosLeidos leidos = LeerNumeros(valores.front(), NumeroMaximoBoleto);
        if (!leidos.Erroneos.empty())
            throw CLI::ValidationError("--numeros", "no es un número del boleto " + leidos.Erroneos.front());
        numeros = leidos.Numeros;
        std::sort(numeros.begin(), numeros.end());
        if (numeros.size() > NumerosDeSorteo) throw CLI::ValidationError("--numeros", "son más de seis");
        if (std::adjacent_find(numeros.begin(), numeros.end()) != numeros.end())
            throw CLI::ValidationError("--numeros", "hay alguno repetido");
        return true;
    };
    orden->add_option("--numeros", leer, "Números premiados, con comas; menos de seis también valen")
        ->type_name("L")
        ->required();
}

} // namespace

void ExigirEntre(const std::string& nombre, int valor, int minimo, int maximo) {
    if (valor < minimo || valor > maximo)
        throw CLI::ValidationError(nombre, "se espera un número de " + std::to_string(minimo) + " a " +
                                               std::to_string(maximo) + ", no " + std::to_string(valor));
}

void DeclararSorteo(CLI::App* orden, ArgumentosSorteo& argumentos, std::function<void()> comprobar) {
    Fichero(orden, "F", argumentos.Fichero, "Fichero de apuestas");
    OpcionJuego(orden, argumentos.Juego);
    OpcionNumeros(orden, argumentos.Numeros);
    Entero(orden, "--complementario", argumentos.Complementario, 0, "Número complementario; si falta, ninguno");
    orden->parse_complete_callback([&argumentos, comprobar = std::move(comprobar)] {
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
