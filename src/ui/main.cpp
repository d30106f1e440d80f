#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

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
    // Where the desktop has no file chooser of its own, the toolkit's speaks Spanish too.
    QTranslator traductor;
    if (traductor.load(Q("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&traductor);
    Sesion sesion;
    Entorno entorno = EntornoQt();
    IniciarSesion(sesion, entorno);
    frmPrincipal principal(sesion, entorno);
    principal.show();
    return QApplication::exec();
}
