// The dialogs of ALTOSBAJOS, DECENAS, PARESIMPARES, EXTERIORES, SUPERIORES, SEGUIDOS, HOMOLOGOS and
// COLINDANTES. None has a validation: every choice is valid.
#pragma once

#include <array>
#include <string>

#include "FiltrosSencillos.h"
#include "LogicaAciertos.h"

struct LogicaFiltroSencillo {
    Sesion& sesion;
    const FiltroSencillo& filtro;
    LogicaMarco marco{sesion, filtro.Fila};

    std::array<std::string, 5> txtAciertos{}; ///< by hit table of the filter; a display, never parsed
    std::array<bool, 11> chkFigura{};         ///< by box of the filter, from 0

    void Abrir();
    /// "Modificar" of hit table i: the chooser, and what to do when it has closed.
    LogicaAciertos AbrirModificar(size_t i);
    void CerrarModificar(size_t i, const LogicaAciertos& aciertos);
    /// A click on box i, which turns the filter on and is stored now or at the close.
    void PulsarCasilla(size_t i, bool marcada);
    /// A click on the bar of `valor`, be it a hit of table `apartado` or, behind the tables, a box.
    void PulsarBarra(size_t apartado, int32_t valor);
    /// Puts in `condiciones` what the controls show, stored or not.
    void Volcar(Condiciones& condiciones) const;
    /// Stores the boxes. Always true.
    bool PuedeCerrar();
};
