// Bets as a text file, twelve digits a line.
#pragma once

#include <cstdint>
#include <string>

#include "Entorno.h"
#include "FicheroAtomico.h"
#include "Tabla.h"

/// Writes the first `cantidad` bets of a table of real numbers, and yields every 6000.
bool EscribirTextoApuestas(FicheroAtomico& fichero, const Tabla& apuestas, int64_t cantidad, Entorno& entorno);

/// Saves the bets of a table of real numbers. A failure shows its box, keeps a file that was there
/// and gives false.
bool GuardarTextoApuestas(const std::string& ruta, const Tabla& apuestas, Entorno& entorno);

/// The same for a table of positions in `base`.
bool GuardarTextoApuestas(const std::string& ruta, const Tabla& apuestas, const uint8_t* base, Entorno& entorno);
