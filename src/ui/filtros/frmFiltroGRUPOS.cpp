#include "frmFiltroGRUPOS.h"

#include "CeldaVerde.h"
#include "GestorCeldas.h"
#include "PanelReparto.h"
#include "TextoQt.h"

frmFiltroGRUPOS::frmFiltroGRUPOS(Sesion& sesion, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica{sesion, entorno} {
    marco = CrearMarcoFiltro(*this, "frmFiltroGRUPOS",
                             "Cuántos números de cada grupo puede llevar la apuesta en las posiciones elegidas; han "
                             "de cumplirse todos los grupos.",
                             logica.marco);
    pagina.Crear(*this, *marco.contenido, [this](size_t i, QBoxLayout& caja) { CrearPosiciones(i, caja); });
    PonerReparto(marco, *marco.centro, {.k = kGRUPOS, .sesion = sesion, .entorno = entorno});
    TerminarMarco(marco, *this, logica.marco);
    logica.Abrir();
    Pintar();
}

void frmFiltroGRUPOS::CrearPosiciones(size_t panel, QBoxLayout& donde) {
    auto* caja = new QWidget;
    auto* fila = new QHBoxLayout(caja);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(Paso / 2);
    fila->addWidget(new QLabel(Q("Posiciones")), 1);
    auto* gestor = new GestorCeldas(caja);
    for (size_t p = 0; p < lblAciertosG[panel].size(); ++p) {
        const int indice = static_cast<int>(p);
        const std::string nombre = "lblAciertosG" + std::to_string(panel + 1), posicion = std::to_string(p + 1);
        auto* celda = CrearCeldaVerde(Utf8(NombreIndexado(nombre, indice)), posicion,
                                      "Contar o no los aciertos en la posición " + posicion, 30, [this, panel, p] {
                                          logica.PulsarPosicion(panel, p);
                                          Pintar();
                                      });
        gestor->Poner(celda, 0, indice);
        fila->addWidget(celda);
        lblAciertosG[panel][p] = celda;
    }
    donde.addWidget(caja);
}

void frmFiltroGRUPOS::reject() {
    if (logica.PuedeCerrar()) QDialog::reject();
}

void frmFiltroGRUPOS::Pintar() {
    PintarMarco(marco, logica.marco);
    pagina.Pintar();
    for (size_t i = 0; i < lblAciertosG.size(); ++i)
        for (size_t p = 0; p < lblAciertosG[i].size(); ++p) lblAciertosG[i][p]->setChecked(logica.lblAciertosG(i, p));
}
