// The one working state of the program, passed by reference to everything.
#pragma once

#include <array>

#include "Condiciones.h"
#include "EstadoTrabajo.h"

/// What single tools share with each other and with the base file.
struct CombinacionReferencia {
    std::array<uint8_t, 6> CombinacionGanadora{};
    uint8_t Complementario = 0;
};

struct Sesion {
    EstadoTrabajo trabajo;
    Condiciones condiciones;
    CombinacionReferencia referencia;
};
