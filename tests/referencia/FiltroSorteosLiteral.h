// The filter of earlier draws, one bet, one draw and one number at a time.
#pragma once

#include "Sesion.h"

int32_t LiteralSORTEOSANTERIORES(Sesion& sesion);

/// The draws of a block, and in how many of them six numbers, at 1 to 6, have hits that it allows.
Sorteos SorteosDeBloqueLiteral(const Sorteos& todos, const BloqueSorteos& bloque);
int32_t SorteosAcertados(const Sorteos& sorteos, const BloqueSorteos& bloque, const std::array<uint8_t, 7>& apuesta);
