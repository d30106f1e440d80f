// The three games and what the rest of the program asks of them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// Positions in the list of games, as stored in base files.
enum : int { PRIMITIVA = 0, BONOLOTO = 1, EURODREAMS = 2 };

struct Juego {
    std::string_view Nombre;            ///< as `TipoJuego` and the list show it
    int16_t NumeroMaximo;               ///< highest number of the ticket
    int16_t DigitoMinimo, DigitoMaximo; ///< range of the extra digit; maximum -1 when the game has none
    std::string_view Palabra;           ///< the digit's name in messages
    std::string_view TituloReintegros;  ///< caption of the digit panel
    std::string_view CargarReintegros;  ///< caption of the check box of file rows
    std::string_view EtiquetaCargar;    ///< short form of that caption
    uint32_t ColorFondo;                ///< of the game box, as 0xRRGGBB
    int ApuestasPorBoleto;

    bool TieneDigito() const { return DigitoMaximo >= DigitoMinimo; }
};

inline constexpr std::array<Juego, 3> Juegos{{
    {"PRIMITIVA", 49, 0, 9, "reintegro", "REINTEGROS", "Cargar Reintegros", "Cargar R", 0xC0FFC0, 8},
    {"BONOLOTO", 49, 0, -1, "", "", "", "", 0x008000, 8},
    {"EURODREAMS", 40, 1, 5, "sueño", "SUEÑOS", "Cargar Sueños", "Cargar S", 0xC000C0, 6},
}};

/// Highest number of any ticket; sequence numbers and fixed classes are those of 49.
inline constexpr int NumeroMaximoBoleto = 49;

/// C(49,6), the most bets a system can hold.
inline constexpr int32_t ApuestasMaximas = 13983816;
