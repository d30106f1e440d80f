// The algebra of combinations, driven through its window from the menu to the saved file.
#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>

#include "Guion.h"
#include "Ventanas.h"
#include "frmAlgebra.h"
#include "frmPrincipal.h"
#include "modImportarASCII.h"

namespace {

struct Algebra : Guion {
    CarpetaTemporal carpeta;
    const std::string mio = carpeta.Ruta("mío.txt"), otro = carpeta.Ruta("peña.txt"), res = carpeta.Ruta("res.TOM");
    Algebra() {
        EscribirTodo(mio, "010203040506\n070809101112\n");
        EscribirTodo(otro, "010203040506\n131415161718\n");
    }
};

} // namespace

TEST(frmAlgebra, DelMenuAlFicheroGuardado) {
    Algebra a;
    frmPrincipal principal(a.sesion, a.entorno);
    principal.show();
    a.Ficheros = {a.mio, a.otro, a.res};
    EnModal([&](QDialog& d) {
        for (const char* i : {"0", "1"}) Pulsar(d, std::string("cmdDesdeFichero_") + i);
        EXPECT_EQ(Texto(d, "txtApuCargadas_0"), "2");
        EXPECT_EQ(Texto(d, "lblTipoCombinacion_1"), "12 Números");
        EXPECT_TRUE(Hijo<QAbstractButton>(d, "lblNumeroS2_17")->isChecked());
        Pulsar(d, "optTipo_4");
        Pulsar(d, "imgCalcular");
        EXPECT_EQ(Utf8(Hijo<QPlainTextEdit>(d, "txtVentanaResultados")->toPlainText()),
                  "Proceso de RESTA de sistemas (sistema 1 - sistema 2) terminado CORRECTAMENTE\n"
                  "Nº Apuestas Sistema Resultante : 1");
        Pulsar(d, "imgCopiar");
        EXPECT_TRUE(QApplication::clipboard()->text().endsWith(Q("Nº Apuestas Sistema Resultante\t1\n")));
        Pulsar(d, "imgGuardar");
        Pulsar(d, "imgVolver");
        EXPECT_FALSE(d.isVisible());
    });
    Hijo<QAction>(principal, "menuAlgebra")->trigger();
    Tabla tabla;
    EXPECT_EQ(LeerApuestas(a.res, false, tabla, nullptr, Juegos[PRIMITIVA], a.entorno), 1);
    EXPECT_EQ(Apuestas(tabla, 7), (std::vector<Apuesta>{{7, 8, 9, 10, 11, 12, 0}}));
    EXPECT_EQ(a.Cajas, Textos{});
}

TEST(frmAlgebra, FicherosSoltadosYCierreAMedias) {
    Algebra a;
    frmAlgebra ventana(a.sesion, a.entorno, nullptr);
    ventana.show();
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(Q(a.mio)), QUrl::fromLocalFile(Q(a.otro))});
    QDragEnterEvent entrada(QPoint(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&ventana, &entrada);
    EXPECT_TRUE(entrada.isAccepted());
    QDropEvent evento(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&ventana, &evento);
    QApplication::processEvents();
    EXPECT_EQ(Texto(ventana, "txtFicheroASCII_1"), "peña.txt");
    Pulsar(ventana, "optTipo_1");
    a.EnTurno(a.Turnos + 1, [&] {
        PintarAbiertas();
        EXPECT_FALSE(Hijo<QAbstractButton>(ventana, "imgCalcular")->isEnabled());
        EXPECT_FALSE(ventana.close());
        Pulsar(ventana, "imgDetener");
    });
    Pulsar(ventana, "imgCalcular");
    EXPECT_EQ(a.Cajas, Textos{"[!] AVISO: El cálculo se ha detenido, no hay sistema resultante"});
    EXPECT_TRUE(ventana.isVisible());
    Pulsar(ventana, "imgCalcular");
    EXPECT_FALSE(Hijo<QPlainTextEdit>(ventana, "txtVentanaResultados")->toPlainText().isEmpty());
    EXPECT_TRUE(ventana.close());
}
