// The chooser of hit counts, frmAciertos.
#pragma once

#include <string>

#include "Comunes.h"
#include "LogicaMarco.h"

/// Every "Modificar" button runs it over one hit table:
///
///     LogicaAciertos aciertos = AbrirAciertos(tabla, 0);
///     ... the dialog works on it ...
///     CerrarAciertos(aciertos, marco, tabla, texto);
struct LogicaAciertos {
    int MinimoAcierto = 0, MaximoAcierto = 6; ///< the cells shown
    TablaAciertos AciertosSeleccion{};        ///< a scratch copy, 1 = chosen

    void Pulsar(int valor); ///< a click on a cell toggles it
    void imgTodos();        ///< chooses all cells shown
    void imgNinguno();      ///< clears the cells shown; a flag of a hidden one stays
};

/// The chooser over a copy of `tabla`, with cells from `minimo` to 6.
LogicaAciertos AbrirAciertos(const TablaAciertos& tabla, int minimo);

/// Writes the choice back to `tabla` and its list form to `texto`, and turns the filter on even if
/// nothing changed and even if nothing is chosen.
void CerrarAciertos(const LogicaAciertos& aciertos, LogicaMarco& marco, TablaAciertos& tabla, std::string& texto);
