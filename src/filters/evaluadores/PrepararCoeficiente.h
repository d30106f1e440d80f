// What the kernel of the coefficient of profitability needs, from two tables of percentages.
#pragma once

#include <array>
#include <cstdint>

#include "NucleosCoeficiente.h"

/// Fills the rest of `tablas`, whose percentages stand in entries 1 to `numeros`, for bets of these
/// positions. `respuestas` tells what the kernel answers for each class, below `TablasCoeficiente::Duda`.
void PrepararCoeficiente(TablasCoeficiente& tablas, size_t numeros, const std::array<uint8_t, 100>& respuestas);

/// Answers each class by its own number.
inline constexpr std::array<uint8_t, 100> LaMismaClase = [] {
    std::array<uint8_t, 100> clases{};
    for (size_t c = 0; c < clases.size(); ++c) clases[c] = static_cast<uint8_t>(c);
    return clases;
}();
