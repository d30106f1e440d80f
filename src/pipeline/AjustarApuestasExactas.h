// Brings the reduced system to an exact number of bets.
#pragma once

#include <functional>

#include "EstadoTrabajo.h"

/// Makes `ApuestasReducidas` hold `NApuestasExactas` bets. Too few: bets of the conditioned system drawn
/// at random among those left out follow the ones that stand. Too many: the first ones stay, or with
/// `Aleatorio` a random choice. Without `Aleatorio` two runs give the same. Row 7 of the result is 0; a
/// system of the right size is left as it is. Throws std::bad_alloc, and then nothing has changed.
/// `progreso(fraccion)` is called now and then with a value from 0 to 1.
void AjustarApuestasExactas(EstadoTrabajo& trabajo, const std::function<void(double)>& progreso);
