// The report of a system against a slice of the history.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "CategoriasPremio.h"
#include "Entorno.h"
#include "Sorteos.h"

/// Cents of a euro for each winning bet, by category: whole numbers, so that sums have no error.
using PremiosSorteo = std::array<double, NCategoriasPremio>;

/// What a system won in one draw.
struct GanadoEnSorteo {
    Sorteo sorteo;
    std::array<int32_t, NCategoriasPremio> Apuestas{}; ///< by category
    double Importe = 0;                                ///< cents
};

class InformeMultiEscrutinio {
  public:
    explicit InformeMultiEscrutinio(const Entorno& entorno) : entorno_(entorno) {}

    /// Adds a draw and its line.
    void Anotar(const Sorteo& sorteo, const CuentaAciertos& cuenta, const PremiosSorteo& premios);

    /// Ends the report with the summary. Without it, as after a stop, the last lines may be missing:
    /// they move to the report by thousands of characters.
    void Terminar(int32_t apuestas);

    const std::string& Texto() const { return texto_; } ///< UTF-8, LF line ends
    const std::vector<GanadoEnSorteo>& Sorteos() const { return sorteos_; }

  private:
    std::string Linea(const GanadoEnSorteo& ganado) const;
    std::string FilaCategoria(size_t categoria) const;

    const Entorno& entorno_;
    std::string texto_, pendiente_;
    std::vector<GanadoEnSorteo> sorteos_;
    std::array<int64_t, NCategoriasPremio> apuestas_{};
    PremiosSorteo importes_{}; ///< cents, as the total
    double total_ = 0;
};

/// The rows of the draws with a heading, columns between tabs, for a spreadsheet.
std::string TablaGanado(const std::vector<GanadoEnSorteo>& sorteos, const Entorno& entorno);
