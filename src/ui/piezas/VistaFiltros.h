// The list of the twenty conditions: state, name, number of active groups, bets eliminated.
#pragma once

#include <QTreeWidget>

#include <array>
#include <functional>

#include "Sesion.h"

/// Space and the right button call `alternar` with the row, Enter and a double click `abrir`.
QTreeWidget* CrearVistaFiltros(QWidget* padre, std::function<void(int)> alternar, std::function<void(int)> abrir);

/// Shows the rows. Those that the game does not have stand grey, with a tip that says why.
void PintarVistaFiltros(QTreeWidget* lista, const Sesion& sesion, char separadorMiles, bool habilitada);

/// Adds to the tip of each row what it costs; an empty text adds nothing.
void PonerCostes(QTreeWidget* lista, const std::array<QString, NFiltros>& costes);

/// Takes the colours of another palette.
void ColorearVistaFiltros(QTreeWidget* lista, const QPalette& paleta);
