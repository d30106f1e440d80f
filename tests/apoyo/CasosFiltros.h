// Each filter with its literal version and random records for it.
#pragma once

#include <vector>

#include "DadosFiltros.h"

/// The filters without blocks, those with blocks, positions or percentages, and that of earlier draws.
const std::vector<CasoEvaluador>& CasosSencillos();
const std::vector<CasoEvaluador>& CasosDeBloques();
const CasoEvaluador& CasoSorteos();

/// Draws of the years 2021 to 2023, a few of them what only a broken answer could bring.
Sorteos HistoriaAlAzar(Dados& s, size_t n);
