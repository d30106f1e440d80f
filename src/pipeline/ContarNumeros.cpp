#include "ContarNumeros.h"

#include <algorithm>

// Neighbours often hold the same value, hence the tables in turn: an increment need not wait for the one
// before.
CuentaValores ContarValores(const Tabla& tabla, int desde, int hasta, int64_t apuestas) {
    std::array<std::array<int32_t, 256>, 4> parcial;
    CuentaValores cuenta{};
    const int64_t n = std::min(apuestas, tabla.Apuestas());
    if (n <= 0) return cuenta;
    for (int r = desde; r <= hasta; ++r) {
        parcial = {};
        const uint8_t* fila = tabla.Fila(r);
        for (int64_t i = 0; i < n; ++i) ++parcial[static_cast<size_t>(i % 4)][fila[i]];
        for (const auto& tanda : parcial)
            for (size_t x = 0; x < cuenta.size(); ++x) cuenta[x] += tanda[x];
    }
    return cuenta;
}
