// The conditioning pass.
#pragma once

#include "Entorno.h"
#include "Sesion.h"

/// Runs the evaluators of the active rows, filter by filter in row order, over `TablaApuestas`. Fills
/// `EliminadasPorFiltro` and returns its sum: the bets eliminated.
int32_t Condicionar(Sesion& sesion, Entorno& entorno);
