// What a double click on a row of the list does around the row's dialog.
#pragma once

#include <functional>

#include "Entorno.h"
#include "Sesion.h"

/// Shows the dialog of row k through `mostrar`, which returns when it has closed, and then brings the
/// row up to date. A row that the game does not have is refused with a box. The work counts as not
/// saved either way. Dialogs with blocks are made anew each time and so begin on block 1.
bool AbrirFila(Sesion& sesion, Entorno& entorno, int k, const std::function<void()>& mostrar);
