// How much of a system the first bets of a sweep cover.
#pragma once

#include <algorithm>
#include <functional>
#include <vector>

#include "Conjunto.h"
#include "Subconjuntos.h"

/// The fewest first bets of `elegidas` that cover at least `cubiertas` bets of the system with T numbers
/// in common, at least one; 0 when even all of them do not. Each T-subset remembers the first bet taken
/// that holds it; the earliest of a bet's own T-subsets is who covers it. `turno()` is called now and
/// then; false stops the count, and then the result is 0.
template <int T>
int32_t BastanPrimeras(const Conjunto& conjunto, const std::vector<int32_t>& elegidas, int64_t cubiertas,
                       const std::function<bool()>& turno) {
    constexpr int32_t ApuestasPorTurno = 50000;
    const Rangos r(conjunto.n(), T);
    const auto nadie = static_cast<int32_t>(elegidas.size());
    std::vector<int32_t> quien(r.Cuantos(), nadie);
    for (int32_t k = 0; k < nadie; ++k) {
        const Seis p = conjunto.Apuesta(elegidas[k]);
        CadaSubconjunto<T>(r, p.data(), 0, 6, 0, [&](int32_t s, int) { quien[s] = std::min(quien[s], k); });
    }
    std::vector<int32_t> cubre(elegidas.size() + 1);
    for (int32_t i = 0; i < conjunto.Apuestas(); ++i) {
        if (i % ApuestasPorTurno == ApuestasPorTurno - 1 && !turno()) return 0;
        const Seis p = conjunto.Apuesta(i);
        int32_t primera = nadie;
        CadaSubconjunto<T>(r, p.data(), 0, 6, 0, [&](int32_t s, int) { primera = std::min(primera, quien[s]); });
        ++cubre[primera];
    }
    int64_t suma = 0;
    for (int32_t k = 0; k < nadie; ++k)
        if ((suma += cubre[k]) >= cubiertas) return k + 1;
    return 0;
}
