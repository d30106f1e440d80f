// The vector code of the moves between bet tables.
#pragma once

#include <cstdint>

#include "Nucleos.h"
#include "Tabla.h"

/// Copies the bets of `origen` whose flag in `eliminada` is 0 to `destino`, in order, all rows of `origen`.
/// `destino` must have as many rows and as many bets as there are such flags. The flags behind the last
/// bet, up to a multiple of 64, must not be 0.
void Compactar(const Tabla& origen, const uint8_t* eliminada, int64_t apuestas, Tabla& destino);

/// destino[i] = tabla[origen[i]] for the bytes [0, n), which must be below 64. Both pointers are starts of
/// rows of a `Tabla`.
void Traducir(const uint8_t* origen, int64_t n, const PorPosicion& tabla, uint8_t* destino);
