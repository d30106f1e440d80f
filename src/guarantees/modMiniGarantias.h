// The extended guarantees: x hits if y numbers are drawn, for every pair x <= y.
#pragma once

#include <functional>
#include <string>

#include "EstadoTrabajo.h"

/// What every percentage of the guarantees looks like: "094.286", halves away from zero.
std::string Formato000(double porcentaje);

/// The report over y = 2 to `NumerosPorApuesta`, at most 6, of the final system, whose bets count with
/// as many of their numbers. Lines end in CR LF. `turno` shows the y at work and its fraction and yields;
/// false stops, and the report is then the one line that says so. Yields every 2000 subsets. Takes at most
/// 18 MB for 49 numbers. Throws std::bad_alloc.
std::string MiniGarantias(int NumerosPorApuesta, const EstadoTrabajo& trabajo,
                          const std::function<bool(int y, double fraccion)>& turno);
