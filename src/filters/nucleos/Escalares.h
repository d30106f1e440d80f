// What the scalar twins of the kernels share.
#pragma once

#include "Nucleos.h"

/// What a table holds for the six positions of a bet.
using SeisValores = std::array<int, 6>;

/// For bet `i`. The mask keeps a byte that is no position from reading elsewhere.
inline SeisValores Valores(const Tramo& tramo, int64_t i, const PorPosicion& tabla) {
    SeisValores v;
    for (size_t r = 0; r < 6; ++r) v[r] = tabla[tramo.fila[r][i] & 63u];
    return v;
}

/// Visits the live bets of the stretch and marks those for which `pasa(i)` is false.
template <class Prueba>
int32_t RecorrerUnaAUna(const Tramo& tramo, Prueba pasa) {
    int32_t marcadas = 0;
    for (int64_t i = 0; i < tramo.n; ++i) {
        if (tramo.eliminada[i] != 0 || pasa(i)) continue;
        tramo.eliminada[i] = 1;
        ++marcadas;
    }
    return marcadas;
}

/// Writes `valor(i)` for each bet, live or not.
template <class Valor>
void EscribirUnaAUna(const Tramo& tramo, Valor valor, uint8_t* respuestas) {
    for (int64_t i = 0; i < tramo.n; ++i) respuestas[i] = static_cast<uint8_t>(valor(i));
}
