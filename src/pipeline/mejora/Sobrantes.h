// Bets that a system can do without.
#pragma once

#include <vector>

#include "Familia.h"

/// Leaves out of `sistema`, members of the family, the last first, whatever it covers `exigido` of the
/// bets without; a repeated member counts once. What is left has no bet to spare. False, and then nothing
/// has changed, when the system does not cover that much. Memory: 4 bytes a bet.
bool QuitarSobrantes(const Familia& familia, int t, int64_t exigido, std::vector<int32_t>& sistema,
                     const Vigia& vigia = {});

/// The least bets that can cover `exigido` of the family: so many of the largest neighbourhoods are needed.
/// Where these are too many to be counted one by one, none is taken to be larger than in the full base.
int32_t CotaInferior(const Familia& familia, int t, int64_t exigido, const Vigia& vigia = {});
