// What a measure of guarantees yields: how often each class of draw occurs, and with how many bets.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

/// Bets by their hits on one candidate draw, 0 to 6.
using CuentasPorAciertos = std::array<int32_t, 7>;

/// By class c, the highest hit level that any bet of the system reaches on a candidate, 0 to 6. The
/// extremes are those of the number of bets with exactly h hits, h from 0 to c.
struct TablaGarantias {
    static constexpr int32_t SinMinimo = 9999999; ///< minimum of a class that never occurred

    std::array<int32_t, 7> CasosClase{}; ///< candidates
    std::array<CuentasPorAciertos, 7> MaximoBets{};
    std::array<CuentasPorAciertos, 7> MinimoBets{};
    std::array<double, 7> PorcentajeClase{}; ///< candidates of the class or a higher one

    TablaGarantias() {
        for (CuentasPorAciertos& minimos : MinimoBets) minimos.fill(SinMinimo);
    }

    /// Counts one candidate. An empty system, all zeros, counts nothing.
    void Anotar(const CuentasPorAciertos& cuenta) {
        size_t clase = 6;
        while (cuenta[clase] == 0)
            if (clase-- == 0) return;
        ++CasosClase[clase];
        for (size_t h = 0; h <= clase; ++h) {
            MaximoBets[clase][h] = std::max(MaximoBets[clase][h], cuenta[h]);
            MinimoBets[clase][h] = std::min(MinimoBets[clase][h], cuenta[h]);
        }
    }

    bool operator==(const TablaGarantias&) const = default;
};
