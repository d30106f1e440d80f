// One run of the batch front end.
#pragma once

#include <functional>

#include "Salida.h"
#include "entornoLote.h"

/// Exit statuses.
enum : int { EstadoBien = 0, EstadoMensaje = 1, EstadoArgumentos = 2, EstadoInterrumpido = 130 };

struct Lote {
    OpcionesLote opciones;
    Sesion sesion;
    Consola consola;
    Entorno entorno;
    Salida salida;
    int64_t Ciclos = 0; ///< that the reduction of the run made
    int32_t Cota = 0;   ///< no system with its guarantee is smaller; 0 unless one was looked for
    /// The order that the arguments chose: false when a box or a "no" ended it.
    std::function<bool(Lote&)> Orden;
};
