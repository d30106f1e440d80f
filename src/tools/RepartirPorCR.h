// The coefficients of profitability of a whole system.
#pragma once

#include <array>
#include <cstdint>

#include "OperacionesSistemas.h"
#include "Tabla.h"

/// Values that a coefficient is told apart by: entry i is i / 10, and the last one is 9.9 and over.
inline constexpr size_t ValoresCR = 100;

/// By number, from 1.
using PorcentajesPorNumero = std::array<double, 50>;

/// Writes in row 1 of `valores` the entry of each bet of a table of real numbers, and in `cuantas` how many
/// bets have each. The products run in the order in which a bet's numbers stand. False when it was
/// stopped. Throws std::bad_alloc, for a byte a bet.
bool RepartirPorCR(const Tabla& apuestas, const PorcentajesPorNumero& apostados, const PorcentajesPorNumero& reales,
                   Tabla& valores, std::array<int32_t, ValoresCR>& cuantas, const Turno& turno);
