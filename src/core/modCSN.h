// Combination sequence numbers: the 1-based lexicographic place of a combination among all k of n.
// The program uses k = 6 and n = 49 for the three games.
#pragma once

#include <array>
#include <cstdint>

/// C(n,k) as a double: 1 for k <= 0, 0 for n < k.
double CombinacionesR8(int32_t n, int32_t k);

/// Place of the ascending numbers c[0..k-1], each in 1..n.
int32_t CombinacionaCSN(int16_t k, int16_t n, const uint8_t* c);

/// The inverse: fills c[0..k-1] with the combination at place `csn`, 1 to C(n,k).
void CSNaCombinacion(int32_t csn, int16_t k, int16_t n, uint8_t* c);
