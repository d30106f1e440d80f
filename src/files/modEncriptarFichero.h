// The bet file (".TOM"): a header record, the number of bets and one enciphered record for each bet.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Entorno.h"
#include "EstadoTrabajo.h"
#include "FicheroAtomico.h"

/// The one key of all bet files.
inline constexpr std::string_view ClaveApuestas = "FICHA7305168249";

/// Longest record that can be enciphered or deciphered.
inline constexpr size_t RegistroMaximo = 200;

/// Bytes on disk of a bet record as every writer makes it: 16-bit length and 20 characters.
inline constexpr size_t BytesPorApuesta = 22;

/// RC4 of bytes; the operation is its own inverse. "0" for an empty key, an empty text or one of more
/// than `RegistroMaximo` bytes.
std::string EncriptarRC4(std::string_view texto, std::string_view clave);

/// Saves the first `cantidad` bets of a table of seven rows, row 7 the digit, under the exact path
/// given. `barra`, which may be null, gets the fraction written, every 6000 bets, and the event loop a
/// turn. A failure shows its box, keeps a file that was there and gives false.
bool GuardarFicheroApuestas(const std::string& fichero, std::string_view cabecera, int32_t cantidad,
                            const Tabla& ApuestasGrabar, Espera* barra, Entorno& entorno);

/// The same into a file already open, without box and without settling it: for a caller that saves
/// something else beside it.
bool EscribirApuestas(FicheroAtomico& fichero, std::string_view cabecera, int32_t cantidad, const Tabla& ApuestasGrabar,
                      Espera* barra, Entorno& entorno);

/// Reads a bet file into a table of seven rows by as many bets as it holds, at most `ApuestasMaximas`,
/// and returns how many. The digit is checked against `juego`; a record without one gives 1. Numbers
/// are different ones of 1 to 49 in whatever order the file has them. `etiqueta`, which may be null,
/// gets the running count every 9000 bets, and the event loop a turn. Any failure shows the reader's
/// box and gives 0 and a table of no bets.
int32_t LeerFicheroApuestas(const std::string& fichero, Tabla& apuestas, std::string* etiqueta, const Juego& juego,
                            Entorno& entorno);
