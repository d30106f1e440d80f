// A grid of numbers in a filter's dialog, which writes straight to the flags of its record.
#pragma once

#include <string>

#include "Entorno.h"
#include "LogicaMarco.h"

struct MarcasDeRejilla {
    LogicaMarco& marco;
    MarcasNumeros& marcas;

    /// The highest number shown; flags above it stay as they are until the grid is cleared.
    int NumeroMaximo() const { return marco.sesion.trabajo.NumeroMaximo(); }

    /// A click on the cell, which turns the filter on. Without effect for a number that is not shown.
    void Pulsar(int numero);
    /// Marks the numbers of a text besides those marked; what is none is told and left out.
    void Pegar(Entorno& entorno, const std::string& texto);
    /// The marked numbers that are shown: "3, 7, 12".
    std::string Copiar() const;
    /// Clears all 49 flags and turns the filter on.
    void imgININumeros();
};
