// Commands of the main window that leave the program's own logic.
#pragma once

#include "Entorno.h"
#include "Sesion.h"

/// Writes the final system as text, twelve digits a line, in the reports' folder and shows it.
bool VerApuestas(Sesion& sesion, Entorno& entorno);

/// Opens the page of the current game on the outside site.
bool ValidarOnLine(const Sesion& sesion, Entorno& entorno);
