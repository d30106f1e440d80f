// The text reports: files with fixed names in the reports' folder, replaced at each use.
#pragma once

#include <string>
#include <string_view>

#include "Entorno.h"

/// Where the report called `nombre` is written.
std::string RutaInforme(const Entorno& entorno, std::string_view nombre);

/// Writes a report in place of an earlier one. `texto` is UTF-8 with "\n"; the file takes the 8-bit code
/// page with CR LF. False with the description of the failure; then an earlier report stays as it was.
bool EscribirInforme(const std::string& ruta, std::string_view texto, std::string& fallo);

/// Writes the report called `nombre` and shows it; a failure shows its box.
bool MostrarInforme(Entorno& entorno, std::string_view nombre, std::string_view texto);

/// The critical box of a report that could not be written. Always false.
bool FalloAlGenerarInforme(Entorno& entorno, const std::string& descripcion);
