// One draw of a game, as the draw file and the service tell it.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

/// Letter of each weekday; its place, from 1, is the day's code.
inline constexpr std::string_view LetrasDia = "LMXJVSD";

/// 1 Monday to 7 Sunday, case ignored; 0 for anything that is not one of the seven letters.
uint8_t CodigoDia(std::string_view letra);

struct Sorteo {
    std::array<uint8_t, 8> numeros{}; ///< six numbers, complementary, digit; 0 where none was told
    int16_t anio = 0;
    uint16_t sorteo = 0; ///< in its year
    uint8_t dia = 0;     ///< code of the weekday, 0 unknown

    bool operator==(const Sorteo&) const = default;
};

using Sorteos = std::vector<Sorteo>;
