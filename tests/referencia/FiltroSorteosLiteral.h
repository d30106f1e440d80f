// The filter of earlier draws, one bet, one draw and one number at a time.
#pragma once

#include "Sesion.h"

int32_t LiteralSORTEOSANTERIORES(Sesion& sesion);
