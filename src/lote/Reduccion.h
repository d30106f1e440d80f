// The process window of a run without a user.
#pragma once

#include "LogicaVentanaProceso.h"
#include "Lote.h"

/// Ends of a reduction that has none of its own, 0 where none was given. With neither, one cycle.
struct FinesReduccion {
    int32_t Ciclos = 0, Segundos = 0;
    bool Mejorar = false; ///< the system found is then made smaller
    FinesMejora Mejora{};
};

/// Has the lot's environment stand in for the user at the process window: one run, with these ends, the
/// progress line and the stop button.
void PrepararReduccion(Lote& lote, FinesReduccion fines = {});
