#include "Ventanas.h"

#include "Pintores.h"
#include "frmAcercaDe.h"
#include "frmAnalisis.h"
#include "frmEstadisticas.h"
#include "frmGarantiasTOTAL.h"

namespace {

// One that has closed lives on until the event loop takes it away.
QDialog* EstadisticasAbiertas(const QWidget& padre) {
    for (QDialog* ventana : padre.findChildren<QDialog*>(QStringLiteral("frmEstadisticas"), Qt::FindDirectChildrenOnly))
        if (ventana->isVisible()) return ventana;
    return nullptr;
}

// One alone: opening it again brings it to the front.
void AbrirEstadisticas(EstadoTrabajo& trabajo, Entorno& entorno, QWidget& padre) {
    QDialog* ventana = EstadisticasAbiertas(padre);
    if (ventana == nullptr) {
        ventana = new frmEstadisticas(trabajo, entorno, &padre);
        ventana->setAttribute(Qt::WA_DeleteOnClose);
    }
    ventana->setWindowState(ventana->windowState() & ~Qt::WindowMinimized);
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
}

} // namespace

bool CerrarVentanas(const QWidget& padre) {
    QDialog* ventana = EstadisticasAbiertas(padre);
    return ventana == nullptr || ventana->close();
}

bool AbrirVentana(Orden orden, Sesion& sesion, Entorno& entorno, QWidget* padre) {
    switch (orden) {
    case Orden::Estadisticas:
        AbrirEstadisticas(sesion.trabajo, entorno, *padre);
        return true;
    case Orden::Analisis: {
        frmAnalisis analisis(sesion, entorno, sesion.trabajo.Contador.Reducidas, padre);
        MostrarModal(analisis);
        return true;
    }
    case Orden::AcercaDe: {
        frmAcercaDe acercaDe(padre);
        MostrarModal(acercaDe);
        return true;
    }
    case Orden::Garantias: {
        frmGarantiasTOTAL garantias(sesion, entorno, padre);
        MostrarModal(garantias, [&garantias] { garantias.Pintar(); });
        return true;
    }
    default:
        return false;
    }
}
