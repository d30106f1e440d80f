// The orders of the batch front end. Each one declares its arguments and what runs them.
#pragma once

#include "Argumentos.h"

void DeclararCalcular(CLI::App& programa, Lote& lote);
void DeclararAlVuelo(CLI::App& programa, Lote& lote);
void DeclararReparto(CLI::App& programa, Lote& lote);
void DeclararBase(CLI::App& programa, Lote& lote);
void DeclararEstadisticas(CLI::App& programa, Lote& lote);
void DeclararActualizar(CLI::App& programa, Lote& lote);
void DeclararVer(CLI::App& programa, Lote& lote);
void DeclararResumen(CLI::App& programa, Lote& lote);
void DeclararEliminadas(CLI::App& programa, Lote& lote);
void DeclararAnalisis(CLI::App& programa, Lote& lote);
void DeclararGenerar(CLI::App& programa, Lote& lote);
void DeclararSistemaPropio(CLI::App& programa, Lote& lote);
void DeclararGarantias(CLI::App& programa, Lote& lote);
void DeclararMiniGarantias(CLI::App& programa, Lote& lote);
void DeclararHuecos(CLI::App& programa, Lote& lote);
void DeclararEscrutar(CLI::App& programa, Lote& lote);
void DeclararPremios(CLI::App& programa, Lote& lote);
void DeclararMultiescrutinio(CLI::App& programa, Lote& lote);
void DeclararMultifichero(CLI::App& programa, Lote& lote);
void DeclararAlgebra(CLI::App& programa, Lote& lote);
void DeclararRentabilidad(CLI::App& programa, Lote& lote);
