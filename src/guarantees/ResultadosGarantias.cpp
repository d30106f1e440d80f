#include "ResultadosGarantias.h"

#include <fmt/format.h>

#include "Rellenar.h"
#include "modMiniGarantias.h"

namespace {

std::string LineaResumen(const std::string& porcentaje, const std::array<std::string, 7>& celdas, int c) {
    std::string linea = porcentaje + "  ";
    for (int h = c; h >= 0; --h) linea += fmt::format("{} de {}{}", celdas[h], h, h > 0 ? ", " : "");
    return linea;
}

} // namespace

void ResultadosGarantias::Mostrar(int64_t total, int aciertos, const std::array<bool, 7>& visible) {
    double acumulado = 0;
    for (int c = 6; c >= 0; --c) {
        if (total > 0)
            acumulado += static_cast<double>(int64_t{tabla.CasosClase[c]} * 100) / static_cast<double>(total);
        tabla.PorcentajeClase[c] = acumulado;
        lblApu[c] = std::to_string(tabla.CasosClase[c]);
        lblPor[c] = fmt::format("{}% {} si {}", Formato000(acumulado), c, aciertos);
        const bool ocurre = tabla.CasosClase[c] > 0;
        for (int h = c; h >= 0 && ocurre; --h)
            lblde[c][h] = fmt::format("{}-{}", tabla.MinimoBets[c][h], tabla.MaximoBets[c][h]);
        if (visible[c]) txtResumen += (ocurre ? LineaResumen(lblPor[c], lblde[c], c) : lblPor[c]) + "\r\n";
    }
}

std::string ResultadosGarantias::Informe(const std::array<bool, 7>& visible) const {
    constexpr size_t AnchoCasos = 10, AnchoPorcentaje = 16, AnchoExtremo = 6;
    std::string texto;
    for (int c = 6; c >= 0; --c) {
        if (!visible[c]) continue;
        texto += Rellenar(lblApu[c], AnchoCasos, 'D') + Rellenar(lblPor[c], AnchoPorcentaje, 'D');
        texto.append((2 * AnchoExtremo + 1) * static_cast<size_t>(6 - c), ' ');
        for (int h = c; h >= 0; --h)
            if (!lblde[c][h].empty())
                texto += Rellenar(std::to_string(tabla.MinimoBets[c][h]), AnchoExtremo, 'I') + "-" +
                         Rellenar(std::to_string(tabla.MaximoBets[c][h]), AnchoExtremo, 'D');
        texto += "\n";
    }
    return texto + "\n";
}

std::string ResultadosGarantias::TextoTabla(const std::array<bool, 7>& visible) const {
    int mayor = 6;
    while (!visible[mayor]) --mayor;
    std::string texto = "Apuestas\tPorcentajes";
    for (int h = mayor; h >= 0; --h) texto += fmt::format("\tde {}", h);
    for (int c = mayor; c >= 0; --c) {
        texto += "\n" + lblApu[c] + "\t" + lblPor[c];
        for (int h = mayor; h >= 0; --h) texto += "\t" + (h <= c ? lblde[c][h] : std::string());
    }
    return texto + "\n";
}
