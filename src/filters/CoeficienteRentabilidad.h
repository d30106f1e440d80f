// The coefficient of profitability of a bet, with its exact roundings.
#pragma once

#include <array>
#include <cstdint>

/// The percentages of the six numbers of a bet, in the order of its positions.
using SeisPorcentajes = std::array<double, 6>;

/// The product of p / 100 for each percentage p above 0, rounded to 14 decimals.
double ProbabilidadCR(const SeisPorcentajes& porcentajes);

/// The class of the coefficient `real` / `apostada`: class i holds those that round to i / 10, halves to
/// the even neighbour; 9.9 and above, and what is no number, share class 99.
int ClaseCR(double apostada, double real);
