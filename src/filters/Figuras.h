// Figures: the shape of a bet as a partition of its six numbers into classes.
#pragma once

#include <array>
#include <string_view>

/// Names in the order of the flags of SEGUIDOS; DECENAS uses the first ten, TERMINACIONES the last ten.
inline constexpr std::array<std::string_view, 11> NombresFiguras{
    "6-0", "5-1", "4-2", "4-1-1", "3-3", "3-2-1", "3-1-1-1", "2-2-2", "2-2-1-1", "2-1-1-1-1", "1-1-1-1-1-1"};

/// Position among `NombresFiguras` of the first figure that TERMINACIONES has.
inline constexpr int PrimeraFiguraTERMINACIONES = 1;
