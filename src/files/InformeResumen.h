// The summary: what the combination is and what its conditions say.
#pragma once

#include <string>

#include "Entorno.h"
#include "Sesion.h"

/// The summary's text, UTF-8 with "\n".
std::string TextoResumen(const Sesion& sesion, const Entorno& entorno);

/// Writes the summary as TOMBOLERA_INFORME.txt and shows it. False behind the box of a failure.
bool VerResumenFiltros(const Sesion& sesion, Entorno& entorno);
