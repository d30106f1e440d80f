// Prize categories, and one bet checked against one draw as sets of numbers.
//
//     const Sorteado sorteo(numeros, complementario);
//     CuentaAciertos cuenta;
//     cuenta.Anotar(MascaraApuesta(apuestas, i), sorteo);
//     cuenta.Premios()[DE5C] ...
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Tabla.h"

/// The categories that win money in PRIMITIVA and BONOLOTO, in the order of every list. `DE5` is five
/// hits without the complementary.
enum CategoriaPremio : size_t { DE6, DE5C, DE5, DE4, DE3, NCategoriasPremio };
inline constexpr std::array<std::string_view, NCategoriasPremio> NombresPremio{"6", "5+C", "5", "4", "3"};

/// A set of lottery numbers: bit n stands for the number n.
using Numeros64 = uint64_t;

/// The bit of a number; none for 0, which stands for a missing number, and for what no ticket has.
constexpr Numeros64 BitNumero(uint8_t numero) {
    return numero >= 1 && numero <= 63 ? Numeros64{1} << numero : Numeros64{0};
}

template <size_t N>
constexpr Numeros64 MascaraNumeros(const std::array<uint8_t, N>& numeros, size_t cuantos = N) {
    Numeros64 mascara = 0;
    for (size_t j = 0; j < cuantos; ++j) mascara |= BitNumero(numeros[j]);
    return mascara;
}

/// The six numbers of a bet, counted from 1.
inline Numeros64 MascaraApuesta(const Tabla& apuestas, int64_t apuesta) {
    Numeros64 mascara = 0;
    for (int r = 1; r <= 6; ++r) mascara |= BitNumero(apuestas(r, apuesta));
    return mascara;
}

/// A draw: the winning numbers, of which 0 are missing ones, and the complementary.
struct Sorteado {
    Numeros64 Ganadores = 0, Complementario = 0;

    constexpr Sorteado() = default;
    /// The first six of `numeros` win.
    template <size_t N>
    constexpr Sorteado(const std::array<uint8_t, N>& numeros, uint8_t complementario)
        : Ganadores(MascaraNumeros(numeros, 6)), Complementario(BitNumero(complementario)) {
        static_assert(N >= 6);
    }

    constexpr int Aciertos(Numeros64 apuesta) const { return std::popcount(apuesta & Ganadores); }
    /// Whether a bet of five hits holds the complementary.
    constexpr bool TieneComplementario(Numeros64 apuesta) const { return (apuesta & Complementario) != 0; }
};

/// Bets by hits.
struct CuentaAciertos {
    std::array<int32_t, 7> Aciertos{}; ///< by number of hits; five hits with or without complementary
    int32_t CincoC = 0;                ///< those of five hits that hold the complementary

    void Anotar(Numeros64 apuesta, const Sorteado& sorteo) {
        const int aciertos = sorteo.Aciertos(apuesta);
        ++Aciertos[static_cast<size_t>(aciertos)];
        CincoC += aciertos == 5 && sorteo.TieneComplementario(apuesta);
    }

    /// Bets of each category that wins.
    std::array<int32_t, NCategoriasPremio> Premios() const {
        return {Aciertos[6], CincoC, Aciertos[5] - CincoC, Aciertos[4], Aciertos[3]};
    }

    CuentaAciertos& operator+=(const CuentaAciertos& otra) {
        for (size_t h = 0; h < Aciertos.size(); ++h) Aciertos[h] += otra.Aciertos[h];
        CincoC += otra.CincoC;
        return *this;
    }
    bool operator==(const CuentaAciertos&) const = default;
};
