// Bets from files: the text importers, and the reader that every tool uses.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Entorno.h"
#include "Juegos.h"
#include "Tabla.h"

/// Reads a text file of bets into a table of seven rows by as many bets as it holds, at most
/// `ApuestasMaximas`, and returns how many. Numbers are ascending. The first line decides the layout:
/// "010203040506", "01,02,03,04,05,06" or "01 02 03 04 05 06", with the digit behind "+" or as a seventh
/// field. `etiqueta`, which may be null, gets the running count every 9000 bets, and the event loop a
/// turn. Any failure shows its box and gives 0 and a table of no bets.
///
/// With digits, every bet must have one of the game's range (BONOLOTO takes that of EURODREAMS) and the
/// numbers are those of the game. Without, digits are ignored and left 0, and the numbers are 1 to 49.
int32_t ImportarTXTConReintegros(const std::string& fichero, Tabla& apuestas, std::string* etiqueta, const Juego& juego,
                                 Entorno& entorno);
int32_t ImportarTXTSinReintegros(const std::string& fichero, Tabla& apuestas, std::string* etiqueta, Entorno& entorno);

/// Reads a system by the extension of its file: ".TOM" in any case is a bet file, whose digits are
/// always read; anything else is text, with digits or without. Otherwise as the importers above.
int32_t LeerApuestas(const std::string& fichero, bool conReintegros, Tabla& apuestas, std::string* etiqueta,
                     const Juego& juego, Entorno& entorno);

/// The request for a file of bets, bet files first.
PeticionFichero PeticionAbrirApuestas();

/// The notice of a file without bets, which tells the layouts.
inline constexpr const char* AvisoSinApuestas =
    "AVISO: Se han importado 0 apuestas.\n"
    "El fichero ha de estar en formato: 010203040506 o 01,02,03,04,05,06 o 01 02 03 04 05 06";
