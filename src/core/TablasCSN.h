// Sequence numbers for whole tables, and sets of them. All are those of six of 49 numbers.
#pragma once

#include <bit>
#include <cstdint>
#include <vector>

#include "Juegos.h"
#include "Tabla.h"

/// Bets whose sequence numbers are worked out at a time; the callers' blocks need not be a multiple.
inline constexpr int64_t ApuestasPorBloqueCSN = 64;

/// Writes in csn[0..n-1] the sequence numbers of the bets `primera` to `primera` + n - 1 of a table of
/// real numbers. The six numbers of a bet, different ones of 1 to 49, may stand in any order.
void CombinacionesaCSN(const Tabla& apuestas, int64_t primera, int64_t n, int32_t* csn);

/// The inverse: writes in rows 1 to 6 of the bets `primera` to `primera` + n - 1 the combinations of
/// csn[0..n-1], each 1 to `ApuestasMaximas`, numbers ascending.
void CSNaCombinaciones(const int32_t* csn, int64_t n, Tabla& apuestas, int64_t primera);

/// Puts the six numbers of each bet in ascending order, in rows 1 to 6; other rows stay.
void OrdenarNumeros(Tabla& apuestas);

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
    void Quitar(int32_t csn) { bits_[static_cast<size_t>(csn) / 64] &= ~(uint64_t{1} << (csn % 64)); }
    bool Contiene(int32_t csn) const { return (bits_[static_cast<size_t>(csn) / 64] >> (csn % 64) & 1) != 0; }

    int64_t Cuantas() const;

    /// Calls `visitar(csn)` for each bet of the set with its number in `desde` to `hasta`, ascending.
    template <class Visitar>
    void Recorrer(int32_t desde, int32_t hasta, Visitar&& visitar) const {
        const size_t primera = static_cast<size_t>(desde) / 64, ultima = static_cast<size_t>(hasta) / 64;
        for (size_t p = primera; p <= ultima && desde <= hasta; ++p) {
            uint64_t palabra = bits_[p];
            if (p == primera) palabra &= ~uint64_t{0} << (desde % 64);
            if (p == ultima) palabra &= ~uint64_t{0} >> (63 - hasta % 64);
            for (; palabra != 0; palabra &= palabra - 1)
                visitar(static_cast<int32_t>(64 * p) + std::countr_zero(palabra));
        }
    }

    /// The words that hold the bits, number 64 p + b in bit b of word p, to combine whole sets.
    static constexpr size_t NPalabras = static_cast<size_t>(ApuestasMaximas) / 64 + 1;
    uint64_t& Palabra(size_t p) { return bits_[p]; }
    uint64_t Palabra(size_t p) const { return bits_[p]; }

  private:
    std::vector<uint64_t> bits_;
};

/// Writes in rows 1 to 6, from bet `primera` on, the combinations of the set with their numbers in
/// `desde` to `hasta`, ascending, and returns how many. The table has room for them.
int64_t CombinacionesDeConjunto(const ConjuntoCSN& conjunto, int32_t desde, int32_t hasta, Tabla& apuestas,
                                int64_t primera);
