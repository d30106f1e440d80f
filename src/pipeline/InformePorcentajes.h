// The report of the process window's percentages.
#pragma once

#include <string>

struct LogicaVentanaProceso;

/// Writes the window's grid as TOMBOLERA_ANALISIS.txt in the reports' folder, in place of an earlier
/// one. False, silently, when it cannot be written; otherwise its path.
bool EscribirInformePorcentajes(const LogicaVentanaProceso& ventana, std::string& ruta);
