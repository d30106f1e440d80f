#include "Ventanas.h"

#include "Pintores.h"
#include "frmAcercaDe.h"
#include "frmAnalisis.h"

bool AbrirVentana(Orden orden, Sesion& sesion, Entorno& entorno, QWidget* padre) {
    switch (orden) {
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
    default:
        return false;
    }
}
