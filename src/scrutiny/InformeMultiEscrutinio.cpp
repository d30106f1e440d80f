#include "InformeMultiEscrutinio.h"

#include <algorithm>

#include <fmt/format.h>

#include "FormatoImporte.h"
#include "modGeneral.h"

namespace {

constexpr size_t CaracteresPendientes = 3000; // with two characters a line end, as in the file

std::string LetraDia(uint8_t dia) {
    return dia >= 1 && dia <= LetrasDia.size() ? std::string(1, LetrasDia[dia - 1u]) : "-";
}

std::string NumerosSorteo(const Sorteo& sorteo) {
    std::string texto;
    for (size_t j = 0; j < 7; ++j) texto += fmt::format("{}{:02}", j == 0 ? "" : ",", sorteo.numeros[j]);
    return texto;
}

std::string Euros(double centimos, const Entorno& entorno) {
    return FormatoImporte(centimos / 100, entorno.SeparadorDecimal, entorno.SeparadorMiles);
}

double ImporteDe(const std::array<int32_t, NCategoriasPremio>& apuestas, const PremiosSorteo& premios) {
    double importe = 0;
    for (size_t c = 0; c < NCategoriasPremio; ++c) importe += apuestas[c] * premios[c];
    return importe;
}

} // namespace

void InformeMultiEscrutinio::Anotar(const Sorteo& sorteo, const CuentaAciertos& cuenta, const PremiosSorteo& premios) {
    const auto apuestas = cuenta.Premios();
    sorteos_.push_back({sorteo, apuestas, ImporteDe(apuestas, premios)});
    for (size_t c = 0; c < NCategoriasPremio; ++c) {
        apuestas_[c] += apuestas[c];
        importes_[c] += apuestas[c] * premios[c];
    }
    total_ += sorteos_.back().Importe;
    pendiente_ += Linea(sorteos_.back());
    if (pendiente_.size() + static_cast<size_t>(std::count(pendiente_.begin(), pendiente_.end(), '\n')) <=
        CaracteresPendientes)
        return;
    texto_ += pendiente_;
    pendiente_.clear();
}

std::string InformeMultiEscrutinio::Linea(const GanadoEnSorteo& g) const {
    return fmt::format("{:06}. {}  {:03}  {}   {} * {} * {}\n", sorteos_.size(), g.sorteo.anio, g.sorteo.sorteo,
                       LetraDia(g.sorteo.dia), NumerosSorteo(g.sorteo), fmt::join(g.Apuestas, "-"),
                       Euros(g.Importe, entorno_));
}

// The bets of five hits with the complementary are in their own row alone, so that the mean of each row
// is what its prize paid.
std::string InformeMultiEscrutinio::FilaCategoria(size_t c) const {
    const std::string media =
        apuestas_[c] == 0 ? "0,00" : Euros(importes_[c] / static_cast<double>(apuestas_[c]), entorno_);
    return fmt::format("{:<11}{:<16}{:<19}{}\n", NombresPremio[c], apuestas_[c], Euros(importes_[c], entorno_), media);
}

void InformeMultiEscrutinio::Terminar(int32_t apuestas) {
    texto_ += pendiente_;
    pendiente_.clear();
    texto_ += "\nDETALLE DE PREMIOS/IMPORTES TOTALES (6-5C-5-4-3)\n"
              "------------------------------------------------\n"
              "PREMIO     CANTIDAD        IMPORTES           MEDIA\n";
    for (size_t c = 0; c < NCategoriasPremio; ++c) texto_ += FilaCategoria(c);
    // One bet in ten is taken to win its euro back.
    const int64_t decimos = int64_t{apuestas} * static_cast<int64_t>(sorteos_.size());
    texto_ +=
        fmt::format("\nTOTALES\n-------\n"
                    "Sorteos Escrutados    : {}\n"
                    "Importe total         : {} euros\n"
                    "Estimación reintegros : {} euros\n"
                    "IMPORTE FINAL         : {} euros\n",
                    sorteos_.size(), Euros(total_, entorno_), FormatoMiles((decimos + 5) / 10, entorno_.SeparadorMiles),
                    Euros(total_ + 10 * static_cast<double>(decimos), entorno_));
}

std::string TablaGanado(const std::vector<GanadoEnSorteo>& sorteos, const Entorno& entorno) {
    std::string texto = "Año\tSorteo\tDía\tNúmeros\t6\t5+C\t5\t4\t3\tImporte\n";
    for (const GanadoEnSorteo& g : sorteos)
        texto += fmt::format("{}\t{}\t{}\t{}\t{}\t{}\n", g.sorteo.anio, g.sorteo.sorteo, LetraDia(g.sorteo.dia),
                             NumerosSorteo(g.sorteo), fmt::join(g.Apuestas, "\t"), Euros(g.Importe, entorno));
    return texto;
}
