// The moves of whole systems between the bet tables.
#pragma once

#include "EstadoTrabajo.h"

/// `ApuestaEliminada` for `ApuestasEnTabla` bets, all alive.
void PrepararEliminadas(EstadoTrabajo& trabajo);

/// `TablaApuestas` of `trabajo` from the `ApuestasImportadas` of `origen`: numbers become positions in the
/// base of `trabajo`. With `filas` 7 the digits come too; with 6 they are left out.
void TraducirImportadas(const EstadoTrabajo& origen, EstadoTrabajo& trabajo, int filas);

/// `ApuestasCondicionadas` from the bets of `TablaApuestas` that are alive, in order, with as many rows.
void CopiarSupervivientes(EstadoTrabajo& trabajo);

/// `ApuestasReducidas` in 7 rows from `ApuestasCondicionadas`: positions become numbers; row 7 is
/// copied when there is one and 0 otherwise.
void TraducirCondicionadas(EstadoTrabajo& trabajo);
