// How the literal versions of the filters go through the bets: one at a time, in order.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "Sesion.h"

/// Calls `falla` with the numbers of each live bet, at 1 to 6 of an array of `Numero`, marks the bets
/// for which it is true and returns how many it marked.
template <class Numero, class Falla>
int32_t VisitarVivas(Sesion& sesion, Falla falla) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    int32_t eliminadas = 0;
    for (int32_t i = 1; i <= trabajo.ApuestasEnTabla; ++i) {
        if (trabajo.ApuestaEliminada(1, i) != 0) continue;
        std::array<Numero, 7> n{};
        for (int r = 1; r <= 6; ++r) n[static_cast<size_t>(r)] = trabajo.BaseNumeros[trabajo.TablaApuestas(r, i)];
        if (!falla(n)) continue;
        trabajo.ApuestaEliminada(1, i) = 1;
        ++eliminadas;
    }
    return eliminadas;
}
