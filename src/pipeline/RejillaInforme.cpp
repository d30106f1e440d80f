#include "RejillaInforme.h"

#include "modGeneral.h"

namespace {

using Etiquetas = std::array<std::string, NumeroMaximoBoleto + 1>;

constexpr size_t AnchoCelda = 12; // the longest, "49 13983816", and a blank

// A line's last cell has no blanks behind it.
std::string Rellena(std::string celda, bool ultima) {
    if (!ultima && celda.size() < AnchoCelda) celda.resize(AnchoCelda, ' ');
    return celda;
}

std::string LineaBoleto(const Etiquetas& lblN, int r) {
    std::string linea(r == 0 ? AnchoCelda : 0, ' ');
    for (int n = r == 0 ? 10 : r; n <= NumeroMaximoBoleto; n += 10)
        linea += Rellena(CeldaInforme(std::to_string(n), lblN[static_cast<size_t>(n)]), n >= 40);
    return linea + "\n";
}

std::string LineaDeCinco(const Etiquetas& lblN, int primero) {
    std::string linea;
    for (int n = primero; n < primero + 5; ++n)
        linea += (n == primero ? "" : " -- ") +
                 Rellena(CeldaInforme(Formato00(n), lblN[static_cast<size_t>(n)]), n == primero + 4);
    return linea + "\n";
}

} // namespace

std::string CeldaInforme(const std::string& numero, const std::string& etiqueta) {
    return numero + " " + (etiqueta.empty() ? "--" : etiqueta);
}

std::string TextoRejillaInforme(const Etiquetas& lblN, int juego) {
    std::string texto = "NUMEROS\n\n";
    if (juego == EURODREAMS)
        for (int r = 0; r < 8; ++r) texto += LineaDeCinco(lblN, 5 * r + 1);
    else
        for (int r = 0; r < 10; ++r) texto += LineaBoleto(lblN, r);
    return texto;
}
