#include "NumerosTexto.h"

#include "modGeneral.h"

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
