// The commands of the main window and their effects on the working state.
#pragma once

#include "Entorno.h"
#include "Sesion.h"

struct LogicaPrincipal {
    Sesion& sesion;
    Entorno& entorno;

    /// Whether the window may close: refused while a calculation runs, asked when the work is not saved.
    bool PuedeCerrar();
};
