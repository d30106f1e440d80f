// A family of subsets of the base, all of one size: the conditioned bets, or all k-subsets.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

#include "Tabla.h"
#include "Vigia.h"

/// Different subsets once each, in ascending order of their masks: bit p - 1 is position p of the base.
/// Memory: 12 bytes a subset, and 4 for each k-subset of the base unless the family holds them all.
class Familia {
  public:
    /// All k-subsets of n positions; n up to 49, k up to 6.
    static Familia Todas(int n, int k);

    /// The bets in rows 1 to 6 of a table of positions; one that stands several times counts as often.
    /// Throws std::runtime_error when a bet is not six different positions of the base.
    static Familia DeTabla(const Tabla& apuestas, int n, const Vigia& vigia = {});

    int n() const { return n_; }
    int k() const { return k_; }
    int32_t Cuantas() const { return static_cast<int32_t>(mascara_.size()); }
    int64_t Total() const { return total_; } ///< with repeats
    bool Completa() const { return completa_; }
    const std::vector<uint64_t>& Mascaras() const { return mascara_; }
    uint64_t Mascara(int32_t i) const { return mascara_[i]; }
    int32_t Veces(int32_t i) const { return veces_.empty() ? 1 : veces_[i]; }

    /// Place of a k-subset of the base in the family, -1 when it is not there.
    int32_t Lugar(uint64_t mascara) const {
        const int32_t rango = Rango(mascara);
        return completa_ ? rango : lugar_[rango];
    }

  private:
    Familia(int n, int k);
    void Indexar(const Vigia& vigia);
    int32_t Rango(uint64_t mascara) const {
        int32_t rango = 0;
        for (int j = 0; mascara != 0; ++j, mascara &= mascara - 1) rango += parte_[j][std::countr_zero(mascara)];
        return rango;
    }

    int n_, k_;
    int64_t total_ = 0;
    bool completa_ = false;
    std::array<std::array<int32_t, 50>, 6> parte_{}; // of the rank, by element and bit
    std::vector<uint64_t> mascara_;
    std::vector<int32_t> veces_; // empty when no bet is repeated
    std::vector<int32_t> lugar_; // by rank; empty when complete
};
