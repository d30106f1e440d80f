#include "modCSN.h"

#include <cassert>
#include <cstddef>

namespace {

// C(n,k) for every n and k that the sequence numbers of the ticket need. All are far below 2^31.
constexpr int TopeN = 50, TopeK = 7;
using TablaCombinaciones = std::array<std::array<int32_t, TopeK>, TopeN>;

constexpr TablaCombinaciones C = [] {
    TablaCombinaciones t{};
    for (size_t n = 0; n < TopeN; ++n)
        for (size_t k = 0; k < TopeK; ++k) t[n][k] = k == 0 ? 1 : n == 0 ? 0 : t[n - 1][k - 1] + t[n - 1][k];
    return t;
}();

} // namespace

double CombinacionesR8(int32_t n, int32_t k) {
    double abajo = 1, arriba = 1;
    for (int32_t i = 1; i <= k; ++i) abajo *= i;
    for (int32_t i = n - k + 1; i <= n; ++i) arriba *= i;
    return k <= 0 ? 1 : n < k ? 0 : arriba / abajo;
}

// The place from the end is the number of combinations that come after: those which agree up to
// some element and are greater there, C(n - c[j], k - j) for each j from 0.
int32_t CombinacionaCSN(int16_t k, int16_t n, const uint8_t* c) {
    assert(k >= 1 && k < TopeK && n < TopeN);
    int32_t detras = 0;
    for (int j = 0; j < k; ++j) detras += C[static_cast<size_t>(n - c[j])][static_cast<size_t>(k - j)];
    return C[static_cast<size_t>(n)][static_cast<size_t>(k)] - detras;
}

void CSNaCombinacion(int32_t csn, int16_t k, int16_t n, uint8_t* c) {
    assert(k >= 1 && k < TopeK && n < TopeN);
    int32_t detras = C[static_cast<size_t>(n)][static_cast<size_t>(k)] - csn;
    int candidato = 0;
    for (int j = 0; j < k; ++j) {
        do ++candidato;
        while (C[static_cast<size_t>(n - candidato)][static_cast<size_t>(k - j)] > detras);
        detras -= C[static_cast<size_t>(n - candidato)][static_cast<size_t>(k - j)];
        c[j] = static_cast<uint8_t>(candidato);
    }
}
