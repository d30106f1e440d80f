// The kernels of the evaluators: each tests the bets of one stretch against a small table.
//
// A kernel marks the live bets that its table rejects and returns how many it marked. It reads the
// positions of the bets, never the base: whoever prepares the table has put the base into it.
// Every kernel has a scalar twin of the same result, for processors without byte shuffles.
//
// The names with Respuestas or Filas do not judge. They write, for each bet of the stretch whatever its
// flag, what the same tables answer in rows of bytes: aligned as the table's, and written up to the next
// multiple of 64.
#pragma once

#include <array>
#include <cstdint>

#include "Barrido.h"

/// One byte for each position in the base; positions are below 64.
using PorPosicion = std::array<uint8_t, 64>;
/// Rows to write in, a byte for each bet.
template <size_t N>
using Filas = std::array<uint8_t*, N>;
/// One byte for each small count.
using PorCuenta = std::array<uint8_t, 16>;
/// One bit for each sum, bit s % 8 of byte s / 8.
using MapaSumas = std::array<uint8_t, 64>;

/// The values of a bet's six positions add up to a count, at most 15, that must be one that passes.
struct alignas(64) TablasCuenta {
    PorPosicion Valor{};
    PorCuenta Pasa{}; ///< 1 or 0
};
int32_t NucleoCuenta(const Tramo& tramo, const TablasCuenta& tablas);
int32_t NucleoCuentaEscalar(const Tramo& tramo, const TablasCuenta& tablas);
/// The byte of `Pasa`, which may be any.
void RespuestasCuenta(const Tramo& tramo, const TablasCuenta& tablas, uint8_t* respuestas);
void RespuestasCuentaEscalar(const Tramo& tramo, const TablasCuenta& tablas, uint8_t* respuestas);

/// A bet's numbers fall into up to ten classes. Each class turns its count into a code; the codes are
/// added, saturating, and bits 0 to 3 of their sum say whether the bet passes. A code of `Rechazo`
/// fails it whatever the others. Besides, the sum of the six class numbers must be one that passes.
struct alignas(64) TablasClases {
    static constexpr uint8_t Rechazo = 0x80;
    PorPosicion Clase{};                ///< 0 to 9
    PorPosicion SumaPasa{};             ///< by the sum of the classes, 1 or 0
    std::array<PorCuenta, 10> Codigo{}; ///< by class and count; classes that do not exist stay 0
    PorCuenta Pasa{};                   ///< by the low four bits of the sum of codes, 1 or 0
    int Clases = 0;                     ///< how many exist
};
int32_t NucleoClases(const Tramo& tramo, const TablasClases& tablas);
int32_t NucleoClasesEscalar(const Tramo& tramo, const TablasClases& tablas);
/// The bytes of `Pasa` and `SumaPasa` with "and" between them.
void RespuestasClases(const Tramo& tramo, const TablasClases& tablas, uint8_t* respuestas);
void RespuestasClasesEscalar(const Tramo& tramo, const TablasClases& tablas, uint8_t* respuestas);

/// Row 0 takes the byte of `Pasa`, row 1 the sum of the class numbers and row 2 + p the counts of the
/// classes 2p, in the low half of a byte, and 2p + 1. Of the last five, rows of classes beyond the
/// last may stay as they are.
using FilasDeClases = Filas<7>;
void FilasClases(const Tramo& tramo, const TablasClases& tablas, const FilasDeClases& filas);
void FilasClasesEscalar(const Tramo& tramo, const TablasClases& tablas, const FilasDeClases& filas);

/// The sum of the six numbers must be in `Mapa`.
struct alignas(64) TablasSumas {
    PorPosicion Numero{};
    MapaSumas Mapa{};
};
int32_t NucleoSumas(const Tramo& tramo, const TablasSumas& tablas);
int32_t NucleoSumasEscalar(const Tramo& tramo, const TablasSumas& tablas);
/// Row 0 takes half the sum of six numbers and row 1 what is left, 0 or 1.
void FilasSuma(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas);
void FilasSumaEscalar(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas);

/// The sums of the three first and of the three last numbers must each be in its map.
struct alignas(64) TablasTrios {
    PorPosicion Numero{};
    MapaSumas Primeros{}, Ultimos{};
};
int32_t NucleoTrios(const Tramo& tramo, const TablasTrios& tablas);
int32_t NucleoTriosEscalar(const Tramo& tramo, const TablasTrios& tablas);
/// The sums of the three first numbers and of the three last.
void FilasTrios(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas);
void FilasTriosEscalar(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas);

/// The differences 2-1, 3-2, 4-3, 5-4, 6-5 and 6-1 must each lie in [Minimo, Minimo + Ancho].
struct alignas(64) TablasDistancias {
    PorPosicion Numero{};
    std::array<int8_t, 6> Minimo{}; ///< -64 to 64
    std::array<uint8_t, 6> Ancho{}; ///< 0 to 128
};
int32_t NucleoDistancias(const Tramo& tramo, const TablasDistancias& tablas);
int32_t NucleoDistanciasEscalar(const Tramo& tramo, const TablasDistancias& tablas);
/// The differences 2-1, 3-2, 4-3, 5-4, 6-5 and 5-1, modulo 2^8, counted from `minimo`.
void FilasDistancias(const Tramo& tramo, const PorPosicion& numero, int8_t minimo, const Filas<6>& filas);
void FilasDistanciasEscalar(const Tramo& tramo, const PorPosicion& numero, int8_t minimo, const Filas<6>& filas);

/// Bit k of the index into `Pasa` is set when number k + 2 follows number k + 1.
struct alignas(64) TablasSeguidos {
    PorPosicion Numero{};
    std::array<uint8_t, 64> Pasa{}; ///< 32 in use, 1 or 0
};
int32_t NucleoSeguidos(const Tramo& tramo, const TablasSeguidos& tablas);
int32_t NucleoSeguidosEscalar(const Tramo& tramo, const TablasSeguidos& tablas);
/// The byte of `Pasa`, which may be any.
void RespuestasSeguidos(const Tramo& tramo, const TablasSeguidos& tablas, uint8_t* respuestas);
void RespuestasSeguidosEscalar(const Tramo& tramo, const TablasSeguidos& tablas, uint8_t* respuestas);

/// Two cells touch when their codes differ by an entry of `Toca`; the count of numbers that touch
/// another one must be one that passes.
struct alignas(64) TablasColindantes {
    PorPosicion Celda{}; ///< code of the number's cell, at most 127
    PorCuenta Toca{};    ///< by the absolute difference, 1 or 0; 16 and more never touch
    PorCuenta Pasa{};    ///< by count, 1 or 0
};
int32_t NucleoColindantes(const Tramo& tramo, const TablasColindantes& tablas);
int32_t NucleoColindantesEscalar(const Tramo& tramo, const TablasColindantes& tablas);
/// The byte of `Pasa`, which may be any.
void RespuestasColindantes(const Tramo& tramo, const TablasColindantes& tablas, uint8_t* respuestas);
void RespuestasColindantesEscalar(const Tramo& tramo, const TablasColindantes& tablas, uint8_t* respuestas);
