// The sweep that all evaluators share.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "Entorno.h"
#include "EstadoTrabajo.h"

/// Bets between two turns of the event loop.
inline constexpr int64_t ApuestasPorTurno = 4000;

/// What a kernel gets: bets [0, n) of a stretch of the table. `fila[r]` are the positions in the base
/// of row r + 1; `eliminada` is 0 for a live bet. All pointers are 64-byte aligned. Only the table's
/// last stretch has an `n` that is no multiple of 64, and there a kernel may read and write up to the
/// next multiple: the flags behind the last bet are 1 and stay so.
struct Tramo {
    const uint8_t* fila[6];
    uint8_t* eliminada;
    int64_t n;
};

/// Sweeps the table in stretches of about `ApuestasPorTurno` bets and yields after each full one.
/// `nucleo(const Tramo&) -> int32_t` marks the bets it rejects and returns how many it marked.
template <class Nucleo>
int32_t Barrer(EstadoTrabajo& trabajo, Entorno& entorno, Nucleo&& nucleo) {
    const int64_t total = trabajo.ApuestasEnTabla;
    if (total == 0) return 0;
    std::memset(trabajo.ApuestaEliminada.Fila(1) + total, 1, 64); // a copy of the table lacks them
    int32_t eliminadas = 0;
    int64_t desde = 0;
    for (int64_t turno = ApuestasPorTurno; desde < total; turno += ApuestasPorTurno) {
        const int64_t hasta = turno >= total ? total : turno / 64 * 64;
        Tramo tramo;
        for (int r = 0; r < 6; ++r) tramo.fila[r] = trabajo.TablaApuestas.Fila(r + 1) + desde;
        tramo.eliminada = trabajo.ApuestaEliminada.Fila(1) + desde;
        tramo.n = hasta - desde;
        eliminadas += nucleo(tramo);
        if (turno <= total) entorno.CederTurno();
        desde = hasta;
    }
    return eliminadas;
}
