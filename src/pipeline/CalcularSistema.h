// The central operation: from the user's base, conditions and reduction settings to the final system.
#pragma once

#include "Entorno.h"
#include "Sesion.h"

/// Runs the whole calculation and leaves its result in `ApuestasReducidas` and the counters. Every
/// failure is a box and ends it; true only when it came to its end with a system.
bool CalcularSistema(Sesion& sesion, Entorno& entorno);
