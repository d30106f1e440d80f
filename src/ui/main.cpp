#include <QApplication>

#include "Estilo.h"
#include "Sesiones.h"
#include "TextoQt.h"
#include "entornoQt.h"
#include "frmPrincipal.h"

int main(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    QApplication::setStyle(new Estilo);
    QApplication::setApplicationName(Q("TOMBOLERA"));
    QGuiApplication::setDesktopFileName(Q("org.tombolera.Tombolera"));
    Sesion sesion;
    Entorno entorno = EntornoQt();
    IniciarSesion(sesion, entorno);
    frmPrincipal principal(sesion, entorno);
    principal.show();
    return QApplication::exec();
}
