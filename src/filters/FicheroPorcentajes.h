// The percentage file: one line of 49 values separated by blanks, for the numbers 1 to 49; a 0 stands
// for a number without a value. Dialogs and tools share it.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "Entorno.h"

/// The values as the controls show them; entry n - 1 belongs to number n.
using TextosPorcentajes = std::array<std::string, 49>;

/// Asks for the file to read or to write; empty when cancelled. A path to write ends in ".txt".
std::string PedirPorcentajesAbrir(Entorno& entorno);
std::string PedirPorcentajesGuardar(Entorno& entorno);

/// Reads the file's first line and calls `poner(n, texto, valor)` for each value that is not 0; poner
/// refuses with false what its control cannot take. False, where it stands, at the first failure: a
/// file that cannot be read, fewer than 49 values, one that is no number, one that was refused.
/// What stands behind the 49th is not looked at.
bool LeerPorcentajes(const std::string& ruta,
                     const std::function<bool(int n, const std::string& texto, double valor)>& poner);

/// Writes the file; a blank text counts as 0. A failure shows its box and gives false.
bool GuardarPorcentajes(Entorno& entorno, const std::string& ruta, const TextosPorcentajes& textos);
