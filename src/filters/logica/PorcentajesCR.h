// The two tables of percentages that a coefficient of profitability is worked out from, as fields.
#pragma once

#include <string>

#include "Entorno.h"
#include "FicheroPorcentajes.h"

/// One of the two tables: 49 decimal fields.
enum class TablaCR { Apostados, Reales };

/// What such a field takes of a text: digits, "." and a single ",".
std::string SoloDecimales(const std::string& texto);

/// Each tells the first field that is blank, or that holds no number, and then gives false.
bool SinBlancos(const TextosPorcentajes& textos, TablaCR tabla, Entorno& entorno);
bool SinErrores(const TextosPorcentajes& textos, TablaCR tabla, Entorno& entorno);

/// Takes the values of a percentage file that are not 0. False, with its box, at the first bad one;
/// those before it stay.
bool AbrirPorcentajesCR(const std::string& ruta, TextosPorcentajes& textos, Entorno& entorno);

/// Asks for a file and writes the fields, unless one holds no number.
void GuardarPorcentajesCR(const TextosPorcentajes& textos, TablaCR tabla, Entorno& entorno);
