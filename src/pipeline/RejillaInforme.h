// The grid of numbers of the analysis reports.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Juegos.h"

/// The name of the reports that hold this grid.
inline constexpr std::string_view NombreInformeAnalisis = "TOMBOLERA_ANALISIS.txt";

/// Heading and grid: for the ticket of 49 ten lines with a ten in each column, for EURODREAMS eight of
/// five. A cell is the number and its label, "--" for an empty one.
std::string TextoRejillaInforme(const std::array<std::string, NumeroMaximoBoleto + 1>& lblN, int juego);

/// A number and its label, "--" for an empty one.
std::string CeldaInforme(const std::string& numero, const std::string& etiqueta);
