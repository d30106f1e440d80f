#include <charconv>
#include <cmath>
#include <string>

#include "ConsultarServicioSorteos.h"
#include "modGeneral.h"

namespace {

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

// Place of the decimal separator: the last one, if one or two final digits follow it.
size_t LugarDecimal(std::string_view texto) {
    const size_t ultimo = texto.find_last_of(".,");
    if (ultimo == std::string_view::npos) return ultimo;
    const size_t detras = texto.size() - ultimo - 1;
    return detras == 1 || detras == 2 ? ultimo : std::string_view::npos;
}

} // namespace

bool LeerImporte(std::string_view texto, double& importe) {
    texto = Recortar(texto);
    const size_t decimal = LugarDecimal(texto);
    std::string cifras;
    for (size_t i = 0; i < texto.size(); ++i) {
        const char c = texto[i];
        if (i == decimal)
            cifras += '.';
        else if (EsCifra(c) || (c == '-' && i == 0))
            cifras += c;
        else if (c != '.' && c != ',')
            return false;
    }
    if (texto.empty()) cifras = "0";
    double valor = 0;
    const auto [fin, error] = std::from_chars(cifras.data(), cifras.data() + cifras.size(), valor);
    if (error != std::errc() || fin != cifras.data() + cifras.size() || !std::isfinite(valor)) return false;
    importe = valor;
    return true;
}
