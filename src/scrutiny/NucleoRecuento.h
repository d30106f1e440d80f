// Hits of many bets in many draws at once: bets as bits, added in bit slices.
//
// A block keeps one row of bits a number, a bit for each bet that has it. The six rows of a draw, added
// column by column, give the hits of 64 bets a word; population counts turn them into counts of bets.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "CategoriasPremio.h"
#include "Juegos.h"

/// Some thousands of bets by number. At 56 words a byte-wide population count of a whole row cannot
/// overflow with vectors of 16 bytes or more, and all rows fit the first-level cache.
class BloqueApuestas {
  public:
    static constexpr size_t Palabras = 56;
    static constexpr int64_t Maximo = 64 * Palabras; ///< bets

    /// Takes `cuantas` bets of the table from number `desde`, counted from 1. Their numbers are six
    /// different ones of 1 to 49.
    void Llenar(const Tabla& apuestas, int64_t desde, int64_t cuantas);

    int64_t Apuestas() const { return apuestas_; }
    /// Words in use; the rows are zero from the last bet to a whole number of 64-byte vectors.
    size_t EnUso() const { return enUso_; }
    const uint64_t* Fila(size_t numero) const { return filas_[numero].data(); }

  private:
    alignas(64) std::array<std::array<uint64_t, Palabras>, NumeroMaximoBoleto + 1> filas_{};
    int64_t apuestas_ = 0;
    size_t enUso_ = 0;
};

/// The rows that a draw adds. A missing number stands as 0, whose row is always empty.
struct FilasSorteo {
    std::array<uint8_t, 6> Ganadores{};
    uint8_t Complementario = 0;

    FilasSorteo() = default;
    /// Repeated numbers of a draw count once, and those that no bet can have not at all.
    explicit FilasSorteo(const Sorteado& sorteo);
};

/// Adds the block's bets to the counts of each draw; both spans have the same length.
void NucleoRecuento(const BloqueApuestas& bloque, std::span<const FilasSorteo> sorteos,
                    std::span<CuentaAciertos> cuentas);
