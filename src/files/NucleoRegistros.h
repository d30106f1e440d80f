// Bet records sixteen at a time.
#pragma once

#include <array>
#include <cstdint>

/// What a standard record must be, seen through two windows of 16 bytes: the length and the text up
/// to the fifth number's units, and the text from there on (bytes 0 and 6 of the record).
struct FormaRegistro {
    std::array<uint8_t, 16> Cero1, Cero2; ///< the enciphered record of zeros
    std::array<uint8_t, 16> Tope1, Tope2; ///< 9 where a digit stands, 0 elsewhere
    uint8_t DigitoMinimo, DigitoMaximo;
};

/// Reads standard records of 22 bytes into rows 1 to 7, `filas` being where the first of them goes.
/// Takes groups of 16 as long as all are ascending bets with everything in range; returns how many
/// bets that were. The rest, at least the last `n` modulo 16, is left to slower routines.
int64_t NucleoLeerApuestas(const char* registros, int64_t n, const FormaRegistro& forma,
                           const std::array<uint8_t*, 7>& filas);

/// The greatest byte of these, 0 for none.
uint8_t NucleoMayor(const uint8_t* fila, int64_t n);
