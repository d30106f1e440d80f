// The coefficient of profitability of a bet in its plain steps.
#pragma once

#include <array>
#include <cmath>

#include "Guion.h"

using PorcentajesLiterales = std::array<double, 50>;

inline double ProbabilidadLiteral(const Apuesta& apuesta, const PorcentajesLiterales& porcentajes) {
    double p = 1.0;
    for (const int n : apuesta)
        if (porcentajes[static_cast<size_t>(n)] > 0) p = p * porcentajes[static_cast<size_t>(n)] / 100;
    return std::nearbyint(p * 1e14) / 1e14; // halves go to the even neighbour
}

/// The row that the bet counts in, 0 to 99.
inline size_t FilaLiteral(const Apuesta& apuesta, const PorcentajesLiterales& apostados,
                          const PorcentajesLiterales& reales) {
    const double apostada = ProbabilidadLiteral(apuesta, apostados), real = ProbabilidadLiteral(apuesta, reales);
    if (apostada == 0) return 99;
    const double decimas = std::nearbyint(real / apostada * 10) / 10 * 10;
    return decimas >= 99 ? 99 : static_cast<size_t>(std::nearbyint(decimas));
}
