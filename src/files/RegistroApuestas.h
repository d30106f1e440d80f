// The standard bet record, "01,02,03,04,05,06+07", as writer and reader handle it: all bet records are
// enciphered with the same first bytes of the keystream, so both work with three 64-bit words XORed
// with constants instead of ciphering record by record.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "modEncriptarFichero.h"

static_assert(std::endian::native == std::endian::little, "words of a record are read as little-endian");

inline constexpr size_t LargoApuesta = 20;
inline constexpr std::string_view TextoDeCeros = "00,00,00,00,00,00+00";

/// The words cover the text from these characters on; the last two overlap.
inline constexpr std::array<size_t, 3> InicioPalabra{0, 8, 12};

/// Where the two digits of each of the seven elements stand in the text.
inline constexpr std::array<size_t, 7> LugarElemento{0, 3, 6, 9, 12, 15, 18};

using PalabrasApuesta = std::array<uint64_t, 3>;

inline uint64_t CargarPalabra(const char* bytes) {
    uint64_t palabra;
    std::memcpy(&palabra, bytes, sizeof palabra);
    return palabra;
}

inline PalabrasApuesta CargarPalabras(const char* texto) {
    return {CargarPalabra(texto + InicioPalabra[0]), CargarPalabra(texto + InicioPalabra[1]),
            CargarPalabra(texto + InicioPalabra[2])};
}

/// The enciphered record whose seven elements are all 0.
inline PalabrasApuesta ApuestaDeCeros() {
    return CargarPalabras(EncriptarRC4(TextoDeCeros, ClaveApuestas).data());
}
