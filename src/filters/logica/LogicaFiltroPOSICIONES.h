// The dialog of POSICIONES: the numbers that may stand in each of the six positions of a bet.
#pragma once

#include <string>

#include "MarcasDeRejilla.h"
#include "TablaFiltros.h"

/// Every choice is valid, so nothing is checked on closing.
struct LogicaFiltroPOSICIONES {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kPOSICIONES};

    static constexpr size_t Bolas = 6;

    /// "BOLA 1" to "BOLA 6", for i from 0.
    std::string lblTitBola(size_t i) const { return "BOLA " + std::to_string(i + 1); }
    /// The grid of ball i.
    MarcasDeRejilla lblNumero(size_t i) { return {marco, sesion.condiciones.POSICIONES.Bola[i]}; }
};
