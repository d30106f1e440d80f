// The frame of a filter's dialog: heading, one sentence, content, and at the foot the switch and "Cerrar".
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>
#include <string_view>

#include "LogicaMarco.h"
#include "Ventana.h"

class PanelReparto;
struct PeticionReparto;

struct MarcoFiltro {
    QHBoxLayout* centro = nullptr;    ///< `contenido` and what stands at its right
    QVBoxLayout* contenido = nullptr; ///< for the dialog's own widgets
    PanelReparto* reparto = nullptr;  ///< none in a dialog that is no filter's
    QPushButton* imgActivar = nullptr;
    QPushButton* imgVolver = nullptr;
};

/// Heads `dialogo`, called `nombre` and titled with the row's label, and leaves `contenido` to be filled.
MarcoFiltro CrearMarcoFiltro(QDialog& dialogo, std::string_view nombre, std::string_view frase,
                             const LogicaMarco& marco);

/// Adds the picture of the base to `donde`: to `centro` in a narrow dialog, below the content in a wide one,
/// where it is `alto` pixels high.
void PonerReparto(MarcoFiltro& piezas, QBoxLayout& donde, PeticionReparto peticion, int alto = 260);

/// Ends the dialog with its foot, which is the last on the way of the Tab key and so is made after the
/// content. `imgVolver` closes as the window's cross does, through `reject`, unless `alVolver` says
/// otherwise.
void TerminarMarco(MarcoFiltro& piezas, QDialog& dialogo, LogicaMarco& marco, std::function<void()> alVolver = {});

/// Shows the switch as the row says, and the picture of the base as the settings say.
void PintarMarco(const MarcoFiltro& piezas, const LogicaMarco& marco);
