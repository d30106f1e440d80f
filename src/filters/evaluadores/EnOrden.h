// Tables that hold every bet of their base in lexicographic order. Bets that share a beginning stand
// together there, and behind each beginning of three positions stand the same endings in the same order:
// counts of many bets become sums of few rows.
#pragma once

#include <functional>
#include <vector>

#include "Entorno.h"
#include "EstadoTrabajo.h"
#include "NucleosReparto.h"

/// Whether `TablaApuestas` is such a table, as far as its size, the base mode and some bets tell.
bool EsExpansionEntera(const EstadoTrabajo& trabajo);

/// Four of the six positions of a bet, and the live bets that have them. Flags are those of EstadoApuesta.
using VisitaCuatro = std::function<void(size_t, size_t, size_t, size_t, const CuentaValor&)>;

/// Counts the live bets of such a table: `inicio(p1, p2, p3, p4, cuenta)` once for each beginning, and
/// `fin(p1, p4, p5, p6, cuenta)` once for each first position and ending. Yields as a sweep does.
void ContarEnOrden(EstadoTrabajo& trabajo, Entorno& entorno, const VisitaCuatro& inicio, const VisitaCuatro& fin);

/// Live bets of such a table by the sum, from 0 on, of what `valor` holds for their six positions: values of
/// 0 to 49. Yields as a sweep does; takes 3 MB at most.
std::vector<CuentaValor> ContarSumasEnOrden(EstadoTrabajo& trabajo, Entorno& entorno, const PorPosicion& valor);
