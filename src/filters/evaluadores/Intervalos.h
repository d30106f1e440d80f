// Alternative intervals of a sum as a map of the sums that they hold.
#pragma once

#include <algorithm>

#include "Nucleos.h"
#include "Registros.h"

/// Whether one of the intervals is in use.
template <class Intervalos>
bool AlgunoEnUso(const Intervalos& intervalos) {
    return std::any_of(intervalos.begin(), intervalos.end(), [](const Intervalo& i) { return i.EnUso(); });
}

/// The sums that an interval in use holds; all of them when none is in use.
template <class Intervalos>
MapaSumas SumasQuePasan(const Intervalos& intervalos) {
    MapaSumas mapa{};
    const bool todas = !AlgunoEnUso(intervalos);
    for (size_t s = 0; s < mapa.size() * 8; ++s) {
        const bool pasa = todas || std::any_of(intervalos.begin(), intervalos.end(), [&](const Intervalo& i) {
                              return i.EnUso() && i.Contiene(static_cast<int>(s));
                          });
        if (pasa) mapa[s / 8] = static_cast<uint8_t>(mapa[s / 8] | 1u << s % 8);
    }
    return mapa;
}
