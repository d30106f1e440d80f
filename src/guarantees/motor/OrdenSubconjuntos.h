// The lexicographic order of the subsets of 1 to n, and the sets of positions as bits.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

#include "Juegos.h"
#include "Tabla.h"

/// A set of positions of the base, position p as bit p - 1.
using Mascara = uint64_t;

inline constexpr int SubconjuntoMaximo = 6;

/// Where each subset of up to six of the positions 1 to n stands among those of its size.
class OrdenSubconjuntos {
  public:
    explicit OrdenSubconjuntos(int n);

    int N() const { return n_; }

    /// Subsets of m of the positions above p: C(n - p, m).
    int64_t Cuantos(int p, int m) const { return cola_[static_cast<size_t>(m)][static_cast<size_t>(p)]; }

    /// The same for m places at once, by p: the rank of p1 < ... < pm, from 0, is C(n, m) - 1 less the
    /// sum of C(n - pi, m - i + 1).
    const std::array<int32_t, NumeroMaximoBoleto + 1>& Cola(int m) const { return cola_[static_cast<size_t>(m)]; }

    /// Calls `hacer(m, rank)` for each subset of at most `k` of at most six positions, the empty one too.
    template <class Hacer>
    void CadaSubconjunto(Mascara posiciones, int k, Hacer hacer) const {
        std::array<size_t, SubconjuntoMaximo> p{}; // the last one first: a place is told from the end
        size_t cuantas = 0;
        for (; posiciones != 0 && cuantas < p.size(); posiciones ^= std::bit_floor(posiciones))
            p[cuantas++] = static_cast<size_t>(std::bit_width(posiciones));
        std::array<int32_t, 1 << SubconjuntoMaximo> suma;
        suma[0] = 0;
        hacer(0, 0);
        for (uint32_t s = 1; s < 1u << cuantas; ++s) {
            const auto primero = static_cast<size_t>(std::bit_width(s) - 1);
            const auto m = static_cast<size_t>(std::popcount(s));
            suma[s] = suma[s ^ 1u << primero] + cola_[m][p[primero]];
            if (static_cast<int>(m) <= k) hacer(static_cast<int>(m), cola_[m][0] - 1 - suma[s]);
        }
    }

  private:
    int n_;
    std::array<std::array<int32_t, NumeroMaximoBoleto + 1>, SubconjuntoMaximo + 1> cola_{};
};

/// The bets of a table of real numbers as sets of positions of the base; numbers that the base lacks
/// can meet no candidate and drop out. The first `apuestas` bets and `filas` rows.
std::vector<Mascara> MascarasDelSistema(const Tabla& tabla, int64_t apuestas, int filas,
                                        const std::array<uint8_t, NumeroMaximoBoleto + 1>& base, int numerosBase);

/// A value for each subset of up to k positions, all zero bytes at first; a plane can be read, and
/// written, one vector past its end.
template <class T>
class PlanosSubconjunto {
  public:
    /// Throws std::bad_alloc.
    PlanosSubconjunto(const OrdenSubconjuntos& orden, int k) {
        for (int m = 0; m <= k; ++m)
            memoria_[static_cast<size_t>(m)].Dimensionar(1, orden.Cuantos(0, m) * static_cast<int64_t>(sizeof(T)));
    }
    T* Plano(int m) { return reinterpret_cast<T*>(memoria_[static_cast<size_t>(m)].Fila(1)); }
    int64_t Bytes(int m) const { return memoria_[static_cast<size_t>(m)].Apuestas(); }

  private:
    std::array<Tabla, SubconjuntoMaximo + 1> memoria_;
};
