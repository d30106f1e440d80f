// What the kernel of the coefficient of profitability needs, from two tables of percentages.
#pragma once

#include <array>
#include <cstdint>

#include "NucleosCoeficiente.h"

/// Fills the rest of `tablas`, whose percentages stand in entries 1 to `numeros`, for bets of these
/// positions. `respuestas` tells what the kernel answers for each class, below `TablasCoeficiente::Duda`.
void PrepararCoeficiente(TablasCoeficiente& tablas, size_t numeros, const std::array<uint8_t, 100>& respuestas);
