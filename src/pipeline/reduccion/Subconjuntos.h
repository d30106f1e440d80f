// Walks over the k-subsets of a bet.
#pragma once

#include <utility>

#include "Rangos.h"

/// Calls `ver(lugar, siguiente)` for each K-subset of the ascending p[desde..hasta-1]: its place in `r`,
/// plus `suma`, and the index behind its last element.
template <int K, int J = 0, class Ver>
inline void CadaSubconjunto(const Rangos& r, const uint8_t* p, int desde, int hasta, int32_t suma, Ver&& ver) {
    if constexpr (J == K) {
        ver(suma, desde);
    } else {
        for (int i = desde; i <= hasta - (K - J); ++i)
            CadaSubconjunto<K, J + 1>(r, p, i + 1, hasta, suma + r.Parte(J, p[i]), ver);
    }
}
