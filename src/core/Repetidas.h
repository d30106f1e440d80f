// Repeated bets of a system.
#pragma once

#include "Entorno.h"
#include "Tabla.h"

/// Drops from a table of real numbers every bet that has the six numbers of an earlier one, in whatever
/// order they stand; the rest keep their order, their numbers' order and all their rows. Returns how
/// many went. Yields every 5000 bets. Throws std::bad_alloc, and then the table is as it was.
int32_t QuitarRepetidas(Tabla& apuestas, Entorno& entorno);
