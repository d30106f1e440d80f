#include "NumerosTexto.h"

#include <algorithm>

#include "modGeneral.h"

namespace {

// A list of refused words that still fits a box.
std::string Enumerar(const std::vector<std::string>& palabras) {
    constexpr size_t maximo = 10, ancho = 20;
    std::string texto;
    for (size_t i = 0; i < std::min(palabras.size(), maximo); ++i)
        texto += (i == 0 ? "" : ", ") + (palabras[i].size() > ancho ? "(texto largo)" : palabras[i]);
    return palabras.size() > maximo ? texto + " ..." : texto;
}

} // namespace

NumerosLeidos LeerNumeros(std::string_view texto, int maximo) {
    constexpr std::string_view separadores = " \t\r\n\v\f,;-+.\0";
    NumerosLeidos leidos;
    for (size_t desde = texto.find_first_not_of(separadores); desde != std::string_view::npos;) {
        const size_t hasta = texto.find_first_of(separadores, desde);
        const std::string_view trozo = texto.substr(desde, hasta - desde);
        int32_t n = 0;
        if (LeerEntero(trozo, n) && n >= 1 && n <= maximo)
            leidos.Numeros.push_back(n);
        else
            leidos.Erroneos.emplace_back(trozo);
        desde = texto.find_first_not_of(separadores, hasta);
    }
    return leidos;
}

std::string TextoNumeros(const std::vector<int>& numeros) {
    std::string texto;
    for (const int n : numeros) texto += (texto.empty() ? "" : ", ") + std::to_string(n);
    return texto;
}

void PegarNumeros(Entorno& entorno, std::string_view texto, int maximo, const std::function<void(int)>& marcar) {
    const NumerosLeidos leidos = LeerNumeros(texto, maximo);
    for (const int n : leidos.Numeros) marcar(n);
    const std::string intervalo = "del 1 al " + std::to_string(maximo);
    if (!leidos.Erroneos.empty())
        Fallo(entorno,
              "AVISO: No se ha podido marcar: " + Enumerar(leidos.Erroneos) + ". Se esperan números " + intervalo);
    else if (leidos.Numeros.empty())
        Fallo(entorno, "AVISO: No hay números que pegar. Se esperan números " + intervalo);
}
