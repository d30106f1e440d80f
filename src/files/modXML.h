// The base file (".xml"): the whole working state without its bets.
#pragma once

#include <string>

#include "Entorno.h"
#include "Sesion.h"

/// The complete text of the base file, UTF-8 with CR LF. Only the path value is escaped, and only
/// where it would make the text ill-formed.
std::string GenerarXMLBase(const Sesion& sesion, Entorno& entorno);

/// Asks for a base file and opens it. False when nothing was chosen or it did not parse.
bool AbrirBaseXML(Sesion& sesion, Entorno& entorno);

/// Opens the base file of this path: resets the working state, restores what the file tells and shows
/// one box with the blocks that failed. A bad value costs only itself. False when the file is missing
/// or does not parse; then the state is reset and titled with the file's name.
bool AbrirFicheroBase(const std::string& ruta, Sesion& sesion, Entorno& entorno);
