#include "Ventanas.h"

#include "Pintores.h"
#include "frmAcercaDe.h"

bool AbrirVentana(Orden orden, Sesion&, Entorno&, QWidget* padre) {
    switch (orden) {
    case Orden::AcercaDe: {
        frmAcercaDe acercaDe(padre);
        MostrarModal(acercaDe);
        return true;
    }
    default:
        return false;
    }
}
