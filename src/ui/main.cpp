#include <QApplication>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

#include "Accesible.h"
#include "Ayuda.h"
#include "Estilo.h"
#include "LogicaPrincipal.h"
#include "Sesiones.h"
#include "TextoQt.h"
#include "entornoQt.h"
#include "frmPrincipal.h"

int main(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    QApplication::setStyle(new Estilo);
    InstalarAccesibilidad();
    QApplication::setApplicationName(Q("TOMBOLERA"));
    QGuiApplication::setDesktopFileName(Q("org.tombolera.Tombolera"));
    // Where the desktop has no file chooser of its own, the toolkit's speaks Spanish too.
    QTranslator traductor;
    if (traductor.load(Q("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&traductor);
    Sesion sesion;
    Entorno entorno = EntornoQt();
    IniciarSesion(sesion, entorno);
    const auto ayuda = CrearAyuda(entorno);
    frmPrincipal principal(sesion, entorno);
    principal.show();
    // A file that the desktop opens with the program, as if dropped on its window.
    const QStringList argumentos = QApplication::arguments();
    if (argumentos.size() > 1)
        QTimer::singleShot(0, &principal, [&] {
            LogicaPrincipal{sesion, entorno}.Soltar(Utf8(argumentos.at(1)));
            principal.Pintar();
        });
    return QApplication::exec();
}
