// The hit counts of one candidate, by a population count for each bet.
#pragma once

#include <array>

#include "OrdenSubconjuntos.h"
#include "TablaGarantias.h"

/// Adds the bets to `cuenta` by their hits on the candidate.
void ContarPorMascara(Mascara candidata, const Mascara* sistema, int64_t apuestas, CuentasPorAciertos& cuenta);
