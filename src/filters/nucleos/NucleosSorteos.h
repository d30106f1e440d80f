// The kernels of the filter of earlier draws: sums over the subsets of a bet, for all bets in
// lexicographic order. A sum is a count of draws modulo 2^16 or 2^32, less the smallest one allowed.
#pragma once

#include "Nucleos.h"

/// What a kernel may read or write behind the last element that counts.
inline constexpr size_t HolguraSumas = 64;

/// C(n, k) for n up to 49 and k up to 6, as a distance within a table.
inline size_t Distancia(size_t n, size_t k) {
    static constexpr auto tabla = [] {
        std::array<std::array<uint32_t, 7>, 50> c{};
        for (size_t i = 0; i < c.size(); ++i) {
            c[i][0] = 1;
            for (size_t j = 1; i > 0 && j < 7; ++j) c[i][j] = c[i - 1][j - 1] + c[i - 1][j];
        }
        return c;
    }();
    return tabla[n][k];
}

/// Sums of the bets that share their three first positions. `Fin[k]` stands behind the last of the
/// values of the subsets of k of the `Resto` positions that follow, in lexicographic order; the value
/// of a bet is the sum of those of all the subsets of its three last positions.
template <class Suma>
struct TablasTernas {
    std::array<const Suma*, 4> Fin{};
    size_t Resto = 0; ///< 3 to 46
    Suma Ancho = 0;   ///< a bet passes when its value is at most this
};

/// Writes 1 for the bets that pass and 0 for the others: C(Resto, 3) bytes.
template <class Suma>
void NucleoTernas(const TablasTernas<Suma>& tablas, uint8_t* pasa);
template <class Suma>
void NucleoTernasEscalar(const TablasTernas<Suma>& tablas, uint8_t* pasa);
/// The same with the values themselves.
template <class Suma>
void NucleoTernas(const TablasTernas<Suma>& tablas, Suma* valores);
template <class Suma>
void NucleoTernasEscalar(const TablasTernas<Suma>& tablas, Suma* valores);

/// suma[i] = a[i] + b[i]; the three may overlap in no element.
template <class Suma>
void NucleoSumar(const Suma* a, const Suma* b, size_t n, Suma* suma);
template <class Suma>
void NucleoSumarEscalar(const Suma* a, const Suma* b, size_t n, Suma* suma);

/// Rejects the bets of the stretch whose byte of `pasa` is 0.
int32_t NucleoVeredictos(const Tramo& tramo, const uint8_t* pasa);
int32_t NucleoVeredictosEscalar(const Tramo& tramo, const uint8_t* pasa);
