// Expansion of the base into the table of bets.
#pragma once

#include "Entorno.h"
#include "EstadoTrabajo.h"

/// Fills `TablaApuestas` with all k-subsets of the positions 1 to `NumerosBase` in lexicographic order,
/// in a table of `filas` rows; with k below 6 the rows k + 1 to 6 hold 99. Does not touch
/// `ApuestasEnTabla`. k outside 1 to 6 writes nothing. Yields every 500 bets. Throws std::bad_alloc.
void GenerarApuestas(EstadoTrabajo& trabajo, Entorno& entorno, int k, int filas);
