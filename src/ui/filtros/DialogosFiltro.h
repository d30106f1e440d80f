// Which window belongs to which row of the list.
#pragma once

#include <QDialog>

#include <memory>

#include "Entorno.h"
#include "Sesion.h"

/// The dialog of row k, 0 to 19, not shown yet.
std::unique_ptr<QDialog> CrearDialogoFiltro(int k, Sesion& sesion, Entorno& entorno, QWidget* padre);

/// What a double click on row k does: the refusal of the game, the dialog, the row afterwards.
void AbrirDialogoFiltro(int k, Sesion& sesion, Entorno& entorno, QWidget* padre);
