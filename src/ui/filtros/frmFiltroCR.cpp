#include "frmFiltroCR.h"

#include "CopiarTabla.h"
#include "ListaCR.h"
#include "PanelReparto.h"
#include "TextoQt.h"

frmFiltroCR::frmFiltroCR(Sesion& sesion, Entorno& entorno, QWidget* padre) : QDialog(padre), logica{sesion, entorno} {
    marco = CrearMarcoFiltro(*this, "frmFiltroCR",
                             "El coeficiente de una apuesta es el producto de las probabilidades reales de sus números "
                             "entre el de las apostadas; quedan las que dan uno de los elegidos.",
                             logica.marco);
    controles = new QWidget;
    marco.contenido->addWidget(controles);
    auto* columnas = new QHBoxLayout(controles);
    columnas->setContentsMargins(0, 0, 0, 0);
    columnas->setSpacing(2 * Paso);
    txtPorcentajesApostados = CrearTablaPorcentajes(*columnas, logica, TablaCR::Apostados, [this] { Pintar(); });
    txtPorcentajesReales = CrearTablaPorcentajes(*columnas, logica, TablaCR::Reales, [this] { Pintar(); });
    CrearCoeficientes(*columnas);
    PonerReparto(marco, *marco.contenido,
                 {.k = kCOEFICIENTERENTABILIDAD,
                  .sesion = sesion,
                  .entorno = entorno,
                  .Volcar = [this](Condiciones& c) { logica.Volcar(c); },
                  .Apaisado = true,
                  .AlPulsar =
                      [this](size_t, int32_t cr) {
                          logica.ElegirCR(static_cast<size_t>(cr), !logica.lstCR[static_cast<size_t>(cr)]), Pintar();
                      }},
                 180);
    TerminarMarco(marco, *this, logica.marco, [this] {
        if (logica.PuedeCerrar()) QDialog::reject();
    });
    logica.Abrir();
    Pintar();
}

void frmFiltroCR::CrearCoeficientes(QBoxLayout& donde) {
    auto* caja = new QWidget;
    auto* columna = new QVBoxLayout(caja);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso);
    lstCR = CrearListaCR([this](size_t i) { return logica.TextoItem(i); },
                         [this](size_t i, bool elegido) { logica.ElegirCR(i, elegido), Pintar(); });
    HabilitarCopia(*lstCR);
    imgCalcular = CrearBoton("imgCalcular", "Calcular", "Comprobar los porcentajes", [this] { Calcular(); });
    columna->addWidget(new QLabel(Q("COEFICIENTES")));
    columna->addWidget(lstCR, 1);
    columna->addWidget(imgCalcular);
    donde.addWidget(caja);
}

// The button loses the focus while the controls are off.
void frmFiltroCR::Calcular() {
    logica.imgCalcular();
    Pintar();
    imgCalcular->setFocus();
}

void frmFiltroCR::Pintar() {
    PintarMarco(marco, logica.marco);
    controles->setEnabled(logica.ControlesHabilitados);
    PintarTablaPorcentajes(txtPorcentajesApostados, logica.txtPorcentajesApostados);
    PintarTablaPorcentajes(txtPorcentajesReales, logica.txtPorcentajesReales);
    PintarListaCR(*lstCR, logica.lstCR);
}
