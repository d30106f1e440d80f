// The report of eliminated bets: what each active condition took away.
#pragma once

#include <string>

#include "Entorno.h"
#include "Sesion.h"

/// The report's text, UTF-8 with "\n". It tells the counts that stand in the list of conditions.
std::string TextoApuestasEliminadas(const Sesion& sesion, const Entorno& entorno);

/// Writes the report as TOMBOLERA_RESUMEN.txt, a name that it shares with no summary, and shows it.
/// False behind the box of a failure.
bool VerApuestasEliminadas(const Sesion& sesion, Entorno& entorno);
