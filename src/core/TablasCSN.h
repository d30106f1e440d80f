// Sequence numbers for whole tables, and sets of them. All are those of six of 49 numbers.
#pragma once

#include <cstdint>
#include <vector>

#include "Tabla.h"

/// Bets whose sequence numbers are worked out at a time; the callers' blocks need not be a multiple.
inline constexpr int64_t ApuestasPorBloqueCSN = 64;

/// Writes in csn[0..n-1] the sequence numbers of the bets `primera` to `primera` + n - 1 of a table of
/// real numbers. The six numbers of a bet, different ones of 1 to 49, may stand in any order.
void CombinacionesaCSN(const Tabla& apuestas, int64_t primera, int64_t n, int32_t* csn);

/// The inverse: writes in rows 1 to 6 of the bets `primera` to `primera` + n - 1 the combinations of
/// csn[0..n-1], each 1 to `ApuestasMaximas`, numbers ascending.
void CSNaCombinaciones(const int32_t* csn, int64_t n, Tabla& apuestas, int64_t primera);

/// A set of bets by sequence number, one bit for each bet of the ticket: 1.75 MB.
class ConjuntoCSN {
  public:
    ConjuntoCSN();

    /// True when it was not there yet. Numbers are 1 to `ApuestasMaximas`.
    bool Insertar(int32_t csn) {
        uint64_t& palabra = bits_[static_cast<size_t>(csn) / 64];
        const uint64_t bit = uint64_t{1} << (csn % 64);
        const bool nueva = (palabra & bit) == 0;
        palabra |= bit;
        return nueva;
    }
    bool Contiene(int32_t csn) const { return (bits_[static_cast<size_t>(csn) / 64] >> (csn % 64) & 1) != 0; }

  private:
    std::vector<uint64_t> bits_;
};
