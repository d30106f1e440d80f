// The key of help in every window.
#pragma once

#include <QObject>

#include <memory>

#include "Entorno.h"

/// While it lives, F1 opens the manual at the chapter of the window that has the focus. Where a window
/// uses the key itself, as the main one does for its menu, that comes first.
std::unique_ptr<QObject> CrearAyuda(Entorno& entorno);
