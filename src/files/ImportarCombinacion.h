// "Pronóstico Desde Archivo": a combination that starts from a file of bets.
#pragma once

#include <string>

#include "Entorno.h"
#include "Sesion.h"

/// Asks for a file of bets and starts the combination from it. True when it gave bets. Nothing changes
/// when no file is chosen.
bool ImportarCombinacion(Sesion& sesion, Entorno& entorno);

/// The same for the file of this path. Its bets go to `ApuestasImportadas` without the repeated ones, and
/// are the final system until something is calculated; its numbers and digits are marked. A file without
/// bets leaves an empty base, one that does not open leaves everything as it was.
bool ImportarFichero(const std::string& ruta, Sesion& sesion, Entorno& entorno);
