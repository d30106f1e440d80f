#include <QApplication>

#include "Sesiones.h"
#include "TextoQt.h"
#include "entornoQt.h"
#include "frmPrincipal.h"

int main(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(Q("TOMBOLERA"));
    QGuiApplication::setDesktopFileName(Q("org.tombolera.Tombolera"));
    Sesion sesion;
    Entorno entorno = EntornoQt();
    IniciarSesion(sesion, entorno);
    frmPrincipal principal(sesion, entorno);
    principal.show();
    return QApplication::exec();
}
