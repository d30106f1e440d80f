// The commands that save: the base file alone, and the final system with its base file beside it.
#pragma once

#include "Entorno.h"
#include "Sesion.h"

/// Asks for a file and saves the working state in it. True when it was saved; then the title tells its
/// name and the work counts as saved. A failure shows its box and keeps the old file.
bool GuardarBaseXML(Sesion& sesion, Entorno& entorno);

/// Checks, asks for a file and writes `ApuestasReducidas` as a bet file with a base file of the same
/// stem. True when both were written; the title stays as it is.
bool GuardarCombinacion(Sesion& sesion, Entorno& entorno);
