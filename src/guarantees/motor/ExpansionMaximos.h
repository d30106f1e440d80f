// The most hits that any bet has on each y-subset of the base, for all of them at once.
#pragma once

#include <array>

#include "Cadencia.h"
#include "OrdenSubconjuntos.h"

/// How many y-subsets have a bet with at least x hits, by x from 2 to y.
using ContadorMini = std::array<int32_t, SubconjuntoMaximo + 1>;

inline constexpr int64_t SubconjuntosPorTurno = 2000;

/// Counts the subsets of `y` positions, 2 to 6, by the level that `sistema` reaches on them. False when
/// stopped. Throws std::bad_alloc.
bool ExpandirMaximos(const OrdenSubconjuntos& orden, const std::vector<Mascara>& sistema, int y, ContadorMini& contador,
                     const Turno& turno);
