#include "Texto8bits.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

// Code points of 0x80 to 0x9F; 0 where there is none. All the others are their own code point.
constexpr std::array<uint16_t, 32> Altos{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                         0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char CodigoDe(uint32_t punto) {
    if (punto < 0x80 || (punto >= 0xA0 && punto <= 0xFF)) return static_cast<char>(punto);
    const auto* hallado = punto == 0 || punto > 0xFFFF ? Altos.end() : std::find(Altos.begin(), Altos.end(), punto);
    return hallado == Altos.end() ? '?' : static_cast<char>(0x80 + (hallado - Altos.begin()));
}

// Takes one character off the front; a broken sequence gives U+FFFD and loses one byte.
uint32_t Siguiente(std::string_view& resto) {
    const auto primero = static_cast<unsigned char>(resto[0]);
    const size_t largo = primero < 0x80       ? 1
                         : primero >> 5 == 6  ? 2
                         : primero >> 4 == 14 ? 3
                         : primero >> 3 == 30 ? 4
                                              : 0;
    uint32_t punto = largo == 0 || largo > resto.size() ? 0xFFFD : largo == 1 ? primero : primero & (0x7Fu >> largo);
    for (size_t i = 1; i < largo && punto != 0xFFFD; ++i) {
        const auto c = static_cast<unsigned char>(resto[i]);
        punto = c >> 6 == 2 ? punto << 6 | (c & 0x3F) : 0xFFFD;
    }
    resto.remove_prefix(punto == 0xFFFD ? 1 : largo);
    return punto;
}

void AnadirUtf8(std::string& salida, uint32_t punto) {
    if (punto < 0x80) {
        salida += static_cast<char>(punto);
    } else if (punto < 0x800) {
        salida += static_cast<char>(0xC0 | punto >> 6);
        salida += static_cast<char>(0x80 | (punto & 0x3F));
    } else {
        salida += static_cast<char>(0xE0 | punto >> 12);
        salida += static_cast<char>(0x80 | (punto >> 6 & 0x3F));
        salida += static_cast<char>(0x80 | (punto & 0x3F));
    }
}

} // namespace

std::string Utf8ACodigo8(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) bytes += CodigoDe(Siguiente(utf8));
    return bytes;
}

std::string Codigo8AUtf8(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto codigo = static_cast<unsigned char>(c);
        const uint32_t punto = codigo >= 0x80 && codigo < 0xA0 ? Altos[codigo - 0x80u] : codigo;
        AnadirUtf8(utf8, punto == 0 && codigo != 0 ? '?' : punto);
    }
    return utf8;
}

bool EsUtf8(std::string_view texto) {
    while (!texto.empty()) {
        const bool escrito = texto.starts_with("\xEF\xBF\xBD"); // U+FFFD itself, which is also what a broken one gives
        if (Siguiente(texto) == 0xFFFD && !escrito) return false;
    }
    return true;
}
