// Who covers whom: the subsets of a family that have t numbers in common with a given one.
#pragma once

#include "Familia.h"
#include "Rangos.h"

/// How many k-subsets of n positions have at least t in common with a given subset of `a` positions.
inline int64_t TamanioVecindad(int n, int a, int k, int t) {
    int64_t suma = 0;
    for (int comunes = t; comunes <= k; ++comunes) suma += int64_t{Combinar(a, comunes)} * Combinar(n - a, k - comunes);
    return suma;
}

/// Calls `ver(mascara)` for `base` joined to each subset of `cuantos` of the bits of `libres`.
template <class Ver>
void CadaEleccion(uint64_t libres, int cuantos, uint64_t base, Ver&& ver) {
    if (cuantos == 0) {
        ver(base);
        return;
    }
    for (; std::popcount(libres) >= cuantos; libres &= libres - 1)
        CadaEleccion(libres & (libres - 1), cuantos - 1, base | (libres & -libres), ver);
}

/// Whether at least t bits are set, t from 1 on: without an instruction for it, faster than to count them.
constexpr bool AlMenos(uint64_t bits, int t) {
    for (; t > 1; --t) bits &= bits - 1;
    return bits != 0;
}

/// Calls `ver(lugar)` for each member of `familia` with at least t positions in common with `mascara`:
/// by exchanging positions, or by comparing with all where they are few.
template <class Ver>
void CadaVecina(const Familia& familia, uint64_t mascara, int t, Ver&& ver) {
    constexpr int64_t Compensa = 8; // comparisons that cost as much as one exchange
    const int a = std::popcount(mascara), k = familia.k();
    if (familia.Cuantas() <= Compensa * TamanioVecindad(familia.n(), a, k, t)) {
        for (int32_t i = 0; i < familia.Cuantas(); ++i)
            if (AlMenos(mascara & familia.Mascara(i), t)) ver(i);
        return;
    }
    const uint64_t fuera = ((uint64_t{1} << familia.n()) - 1) & ~mascara;
    for (int comunes = t; comunes <= std::min(a, k); ++comunes)
        CadaEleccion(mascara, comunes, 0, [&](uint64_t dentro) {
            CadaEleccion(fuera, k - comunes, dentro, [&](uint64_t vecina) {
                const int32_t lugar = familia.Lugar(vecina);
                if (lugar >= 0) ver(lugar);
            });
        });
}
