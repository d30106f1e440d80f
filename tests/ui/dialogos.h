// Every dialog of the program, for the test of what all of them have in common. A new dialog enters here.
#pragma once

#include <QDialog>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Guion.h"

struct DialogoProbado {
    std::string nombre;
    std::function<std::unique_ptr<QDialog>(Guion&)> crear;
    bool soloVolver = false;     ///< refuses Esc and the cross
    bool cambiaConJuego = false; ///< shows the numbers of the game
};

const std::vector<DialogoProbado>& Dialogos();

struct VentanaProbada {
    std::string nombre;
    std::function<std::unique_ptr<QWidget>(Guion&)> crear;
};

/// The dialogs, the main window with work in it and the viewer of reports.
std::vector<VentanaProbada> TodasLasVentanas();

/// The manual's example with values for all conditions, of which that of row k alone is on.
void AbrirEjemplo(Guion& g, int k);

/// The manual's first system, calculated.
void AbrirDoceNumeros(Guion& g);

/// Until what the window counts aside is there to be seen; fails after 20 s.
void EsperarCuentas(const QWidget& ventana);
