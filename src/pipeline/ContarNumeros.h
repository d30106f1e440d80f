// How often each value stands in a table of bets.
#pragma once

#include <array>
#include <cstdint>

#include "Tabla.h"

using CuentaValores = std::array<int64_t, 256>;

/// How many cells of the rows `desde` to `hasta` hold each value among the table's first bets.
CuentaValores ContarValores(const Tabla& tabla, int desde, int hasta, int64_t apuestas);

/// In how many of the table's bets each number, or position of the base, stands: rows 1 to 6.
inline CuentaValores ContarNumeros(const Tabla& tabla) {
    return ContarValores(tabla, 1, 6, tabla.Apuestas());
}
