// Which window belongs to which row of the list.
#pragma once

#include <QDialog>

#include <memory>

#include "Entorno.h"
#include "Sesion.h"

/// The dialog of row k, 0 to 19, not shown yet; null where there is none.
std::unique_ptr<QDialog> CrearDialogoFiltro(int k, Sesion& sesion, Entorno& entorno, QWidget* padre);

/// Whether row k has a dialog.
bool HayDialogoFiltro(int k);

/// What a double click on row k does: the refusal of the game, the dialog, the row afterwards. False
/// when the row has no dialog; then nothing happens.
bool AbrirDialogoFiltro(int k, Sesion& sesion, Entorno& entorno, QWidget* padre);
