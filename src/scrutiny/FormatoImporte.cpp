#include "FormatoImporte.h"

#include "modGeneral.h"

namespace {

// One more in the last place of a decimal figure without separator.
void Incrementar(std::string& cifras) {
    for (size_t i = cifras.size(); i-- > 0;) {
        if (cifras[i]++ != '9') return;
        cifras[i] = '0';
    }
    cifras.insert(0, 1, '1');
}

} // namespace

// Rounds the shortest text of the number: 1.005 is a bit less than that in binary.
std::string FormatoImporte(double importe, char decimal, char miles) {
    std::string texto = TextoDecimal(importe, '.');
    const bool negativo = texto.starts_with('-');
    if (negativo) texto.erase(0, 1);
    const size_t punto = texto.find('.');
    std::string cifras = texto.substr(0, punto);
    std::string decimales = punto == std::string::npos ? std::string() : texto.substr(punto + 1);
    decimales.resize(decimales.size() < 3 ? 3 : decimales.size(), '0');
    cifras += decimales.substr(0, 2);
    if (decimales[2] >= '5') Incrementar(cifras);
    std::string entera = cifras.substr(0, cifras.size() - 2);
    if (miles != '\0')
        for (size_t i = entera.size(); i > 3;) entera.insert(i -= 3, 1, miles);
    const bool cero = cifras.find_first_not_of('0') == std::string::npos;
    return (negativo && !cero ? "-" : "") + entera + decimal + cifras.substr(cifras.size() - 2);
}
