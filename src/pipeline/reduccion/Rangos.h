// Places of small subsets of the base, the indices of every count that the reduction keeps.
#pragma once

#include <array>
#include <cstdint>

/// A bet as its six positions in the base, ascending.
using Seis = std::array<uint8_t, 6>;

/// Lexicographic places, from 0, of the k-subsets of the positions 1 to n; n up to 49, k up to 6. A
/// place is a sum of one part for each element, and subsets that differ in their last element alone
/// have consecutive places.
class Rangos {
  public:
    Rangos(int n, int k);

    int32_t Cuantos() const { return cuantos_; }

    /// What position p adds as element j, j from 0.
    int32_t Parte(int j, int p) const { return parte_[j][p]; }

    /// Place of the k ascending positions.
    int32_t Lugar(const uint8_t* p) const {
        int32_t lugar = 0;
        for (int j = 0; j < k_; ++j) lugar += parte_[j][p[j]];
        return lugar;
    }

  private:
    int k_;
    int32_t cuantos_;
    int32_t parte_[6][50];
};

/// Places of the six 5-subsets of a bet: entry i leaves out element i.
inline std::array<int32_t, 6> LugaresSinUno(const Rangos& r5, const Seis& p) {
    std::array<int32_t, 6> lugar;
    int32_t antes = 0, despues = 0;
    for (int j = 1; j < 6; ++j) despues += r5.Parte(j - 1, p[j]);
    for (int i = 0; i < 5; ++i) {
        lugar[i] = antes + despues;
        antes += r5.Parte(i, p[i]);
        despues -= r5.Parte(i, p[i + 1]);
    }
    lugar[5] = antes;
    return lugar;
}

/// C(n,k) for the sizes of the ticket.
int32_t Combinar(int n, int k);
