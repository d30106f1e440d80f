// A covering problem laid out for the search: rows that want to be covered, columns that cover them.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

/// Lists of row or column numbers, one after the other.
struct Listas {
    std::vector<int64_t> principio{0};
    std::vector<int32_t> elementos;

    std::span<const int32_t> operator[](int32_t i) const {
        return {elementos.data() + principio[i], static_cast<size_t>(principio[i + 1] - principio[i])};
    }
    void Cerrar() { principio.push_back(static_cast<int64_t>(elementos.size())); }
    int64_t Cuantas() const { return static_cast<int64_t>(elementos.size()); }

    /// The same relation seen from the other side, which has `n` members.
    Listas Traspuestas(int32_t n) const;
};

/// A row is a bet, or an orbit of bets that are covered together; a column likewise. Memory: 4 bytes for
/// each pair of a row and a column that covers it, twice unless the relation is symmetric.
struct Recubrimiento {
    std::vector<int32_t> peso;  ///< conditioned bets that a row stands for
    std::vector<int32_t> coste; ///< bets that a column stands for
    Listas cubren;              ///< by row: the columns that cover it
    Listas cubiertas;           ///< by column: the rows that it covers; left empty when both are the same
    bool simetrico = false;
    int64_t total = 0;   ///< sum of the weights
    int64_t exigido = 0; ///< weight to be covered

    int32_t Filas() const { return static_cast<int32_t>(peso.size()); }
    int32_t Columnas() const { return static_cast<int32_t>(coste.size()); }
    std::span<const int32_t> QuienesCubren(int32_t fila) const { return cubren[fila]; }
    std::span<const int32_t> QueCubre(int32_t columna) const { return (simetrico ? cubren : cubiertas)[columna]; }
};
