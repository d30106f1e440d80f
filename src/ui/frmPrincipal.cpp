#include "frmPrincipal.h"

#include "TextoQt.h"

frmPrincipal::frmPrincipal(Sesion& sesion, Entorno& entorno) : logica{sesion, entorno} {
    setObjectName(Q("frmPrincipal"));
    resize(1280, 720);
    Pintar();
}

void frmPrincipal::Pintar() {
    setWindowTitle(Q(logica.sesion.trabajo.Titulo));
}
