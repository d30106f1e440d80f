// Digits of the final system.
#pragma once

#include "EstadoTrabajo.h"

/// Writes row 7 of `ApuestasReducidas` from the marked digits and the digit mode; an imported system
/// always takes the random rule. The same marks give the same digits.
void AsignarReintegros(EstadoTrabajo& trabajo);
