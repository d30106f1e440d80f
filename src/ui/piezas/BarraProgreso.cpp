#include "BarraProgreso.h"

#include "TextoQt.h"

namespace {

constexpr int Completa = 1000;

} // namespace

QProgressBar* CrearBarraProgreso(std::string_view accesible) {
    auto* barra = new QProgressBar;
    barra->setObjectName(Q("lblProgressBar"));
    barra->setAccessibleName(Q(accesible));
    barra->setRange(0, Completa);
    QSizePolicy reservado = barra->sizePolicy();
    reservado.setRetainSizeWhenHidden(true);
    barra->setSizePolicy(reservado);
    barra->hide();
    return barra;
}

void PintarBarraProgreso(QProgressBar& barra, const Espera& espera) {
    barra.setVisible(espera.Visible);
    barra.setValue(qRound(qBound(0.0, espera.Fraccion, 1.0) * Completa));
}
