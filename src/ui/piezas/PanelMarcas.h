// A titled grid of numbers over the flags of a filter's record, as the dialogs of groups show several of.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include <functional>
#include <string>

#include "MarcasDeRejilla.h"
#include "RejillaNumeros.h"

struct PanelMarcas {
    QFrame* caja = nullptr;
    QVBoxLayout* contenido = nullptr; ///< below the grid, for the dialog's own widgets
    QLabel* titulo = nullptr;
    RejillaNumeros rejilla;
    std::function<std::string()> textoTitulo;
    std::function<MarcasDeRejilla()> marcas;
};

/// Names of the controls, what the panel shows and the effect of a change. Title and flags are asked
/// anew each time, as a page shows other groups.
struct PeticionPanelMarcas {
    std::string nombreTitulo, nombreCelda;
    int indice = 0; ///< of the panel, in `nombreTitulo` and imgININumeros
    std::string ayudaInicializar;
    std::function<std::string()> titulo;
    std::function<MarcasDeRejilla()> marcas;
    std::function<void()> alCambiar;
};

/// The cells from `lblNumero_0` for the first grid, from `lblNumero_G2_0` for the second and so on.
std::string NombreCeldas(size_t panel);

/// Ctrl+C copies the marks of the grid that has the focus, and Ctrl+V marks numbers besides them.
PanelMarcas CrearPanelMarcas(QBoxLayout& donde, Entorno& entorno, PeticionPanelMarcas peticion);

void PintarPanelMarcas(PanelMarcas& panel);
