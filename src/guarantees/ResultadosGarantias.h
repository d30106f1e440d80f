// The results of a measure as the window shows them, and their report.
#pragma once

#include <array>
#include <string>

#include "TablaGarantias.h"

/// The fields of the results table, by class and hit level; empty until a measure ends.
struct ResultadosGarantias {
    TablaGarantias tabla;
    std::array<std::string, 7> lblApu, lblPor;
    std::array<std::array<std::string, 7>, 7> lblde; ///< "3-7" by class and hits, hits up to the class
    std::string txtResumen;

    /// Fills the fields from `tabla`: `total` candidates, measured for `aciertos` hits ("100.000% 6 si 6").
    /// The summary has the classes that are visible.
    void Mostrar(int64_t total, int aciertos, const std::array<bool, 7>& visible);

    /// The tabulated report of the visible classes, with an empty line at its end.
    std::string Informe(const std::array<bool, 7>& visible) const;

    /// The visible part of the table for a spreadsheet: captions, then a line a class, with tabs.
    std::string TextoTabla(const std::array<bool, 7>& visible) const;
};
