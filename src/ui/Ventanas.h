// The tools that the commands of the main window open.
#pragma once

#include <QWidget>

#include "Entorno.h"
#include "Ordenes.h"
#include "Sesion.h"

/// Opens the command's window over `padre`; a modal one has closed on return. False for a command
/// without a window.
bool AbrirVentana(Orden orden, Sesion& sesion, Entorno& entorno, QWidget* padre);

/// Closes the windows of `padre` that are not modal. False when one refuses.
bool CerrarVentanas(const QWidget& padre);
