// The chooser of a random base, frmAlazar.
#pragma once

#include "EstadoTrabajo.h"

struct LogicaAlazar {
    EstadoTrabajo& trabajo;
    int cboNumeros = 6; ///< how many numbers to draw, 1 to `NumeroMaximo`

    /// `cmdAlazar`: marks that many numbers of the ticket, drawn at random, in place of those marked.
    void Marcar();
};
