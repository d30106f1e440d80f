// The menus and the command bar of the main window, built from the tables of commands.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QToolButton>

#include <array>
#include <functional>
#include <vector>

#include "Ordenes.h"

struct BarraOrdenes {
    std::vector<QAction*> menus;
    std::array<QToolButton*, lblMenu.size()> botones{};
};

/// Adds both to the window; every entry calls `hacer` with its command.
BarraOrdenes CrearBarraOrdenes(QMainWindow* ventana, std::function<void(Orden)> hacer);

/// Enables or disables all entries.
void PintarBarraOrdenes(const BarraOrdenes& barra, bool habilitada);

/// Draws the icons anew in the palette's colours.
void ColorearBarraOrdenes(const BarraOrdenes& barra, const QPalette& paleta);
