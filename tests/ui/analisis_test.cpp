// The analysis and the text reports, from the main window to what is shown, written and copied.
#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>
#include <QtTest/QTest>

#include "CalcularSistema.h"
#include "Guion.h"
#include "MapaCalor.h"
#include "Sesiones.h"
#include "TablaFiltros.h"
#include "Ventanas.h"
#include "frmAnalisis.h"
#include "frmInforme.h"
#include "frmPrincipal.h"
#include "tema.h"

namespace {

QPalette Oscura() {
    QPalette paleta(QColor(0x35, 0x35, 0x38), QColor(0x2b, 0x2b, 0x2e));
    paleta.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x22));
    return paleta;
}

void Retratar(QWidget& ventana, const QString& nombre) {
    QDir().mkpath(Q(CAPTURAS));
    EXPECT_TRUE(ventana.grab().save(Q(CAPTURAS) + Q("/") + nombre + Q(".png")));
}

// A main window over a base of eight numbers, calculated.
struct Calculada : Guion {
    CarpetaTemporal carpeta;
    frmPrincipal ventana{sesion, entorno};

    Calculada() {
        entorno.CarpetaInformes = carpeta.Ruta();
        Marcar({2, 5, 9, 14, 23, 31, 38, 47});
        MarcarDigitos({6});
        sesion.condiciones.SUMAS.intervalos[0] = {21, 91};
        sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
        ventana.show();
        Pulsar("lblMenu_4");
    }
    void Pulsar(const std::string& boton) { Hijo<QAbstractButton>(ventana, boton)->click(); }
};

QString Consejo(QWidget& widget, const QPoint& punto) {
    QHelpEvent ayuda(QEvent::ToolTip, punto, widget.mapToGlobal(punto));
    QApplication::sendEvent(&widget, &ayuda);
    return QToolTip::text();
}

} // namespace

TEST(frmAnalisis, DesdeLaBarraHastaElInformeYElPortapapeles) {
    Calculada c;
    bool abierta = false;
    EnModal([&](QDialog& d) {
        abierta = true;
        EXPECT_EQ(Utf8(d.objectName()), "frmAnalisis");
        EXPECT_EQ(Texto(d, "lblN_8"), "2");
        EXPECT_EQ(Texto(d, "lblN_30"), "1");
        EXPECT_EQ(Texto(d, "lblN_0"), "");
        EXPECT_EQ(Texto(d, "lblR_6"), "2");
        auto* cambio = Hijo<QPushButton>(d, "imgSwitch");
        EXPECT_EQ(Utf8(cambio->toolTip()), "Ver porcentajes");
        cambio->click();
        EXPECT_EQ(Utf8(cambio->toolTip()), "Ver número de apuestas");
        EXPECT_EQ(Texto(d, "lblN_30"), "50%");
        EXPECT_EQ(Texto(d, "lblR_6"), "100%");
        Hijo<QPushButton>(d, "imgVerAnalisis")->click();
        QApplication::setActiveWindow(&d); // nothing is active offscreen by itself
        QTest::keyClick(&d, Qt::Key_C, Qt::ControlModifier);
        Hijo<QPushButton>(d, "imgVolver")->click();
        EXPECT_FALSE(d.isVisible());
    });
    c.Pulsar("lblMenu_5");
    EXPECT_TRUE(abierta);
    ASSERT_EQ(c.Informes, Textos{c.carpeta.Ruta("TOMBOLERA_ANALISIS.txt")});
    EXPECT_NE(LeerTodo(c.Informes[0]).find("31 50%"), std::string::npos);
    EXPECT_TRUE(
        Utf8(QApplication::clipboard()->text()).starts_with("Número\tApuestas\tPorcentaje\n1\t0\t0%\n2\t2\t100%\n"));
    EXPECT_EQ(c.Cajas, Textos{});
}

TEST(frmAnalisis, SinApuestasNoSeAbre) {
    Calculada c;
    Hijo<QAbstractButton>(c.ventana, "lblNumero_0")->click();
    c.Pulsar("lblMenu_5");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(c.Cajas, Textos{"[X] ERROR: No hay apuestas generadas"});
}

TEST(frmAnalisis, LosInformesDelMenuDatos) {
    Calculada c;
    Hijo<QAction>(c.ventana, "menuVerResumenFiltros")->trigger();
    Hijo<QAction>(c.ventana, "menuInformeApuestasEliminadas")->trigger();
    ASSERT_EQ(c.Informes, (Textos{c.carpeta.Ruta("TOMBOLERA_INFORME.txt"), c.carpeta.Ruta("TOMBOLERA_RESUMEN.txt")}));
    EXPECT_NE(LeerTodo(c.Informes[1]).find("\r\nSUMAS: 26\r\n"), std::string::npos);
    for (const std::string& ruta : c.Informes) {
        frmInforme informe(Q(ruta), nullptr);
        informe.show();
        Retratar(informe, informe.windowTitle().section(QLatin1Char('.'), 0, 0));
    }
}

// Each cell of the map answers with its own number, in both shapes of the ticket.
TEST(MapaCalor, CadaCeldaDiceLoSuyo) {
    for (const auto& [juego, maximo, filas] : {std::tuple{PRIMITIVA, 49, 10}, {EURODREAMS, 40, 8}}) {
        Guion guion;
        CambiarJuego(guion.sesion, juego);
        guion.MarcarHasta(7);
        guion.MarcarDigitos({1});
        ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
        frmAnalisis ventana(guion.sesion, guion.entorno, guion.sesion.trabajo.Contador.Reducidas, nullptr);
        ventana.show();
        auto& mapa = *Hijo<QWidget>(ventana, "mapa");
        const QString ultimo = Q("Número ") + QString::number(maximo) + Q(": 0 apuestas, 0%");
        EXPECT_EQ(Consejo(mapa, QPoint(mapa.width() - 20, mapa.height() * 8 / 10)), ultimo);
        const QString segundo =
            juego == PRIMITIVA ? Q("Número 1: 6 apuestas, 85,71%") : Q("Número 6: 6 apuestas, 85,71%");
        EXPECT_EQ(Consejo(mapa, QPoint(20, mapa.height() * 8 / 10 * 3 / (2 * filas) + 10)), segundo);
        QToolTip::hideText();
    }
}

// Every step darkens, so that the scale can be read in grey, and its captions stand out from it.
TEST(MapaCalor, LosTonosSoloOscurecenYElRotuloDestaca) {
    for (int i = 0; i <= 100; ++i) {
        const QColor tono = TonoCalor(i / 100.0);
        EXPECT_GE(std::max(Contraste(tono, Qt::white), Contraste(tono, Qt::black)), 4.5);
        if (i > 0) {
            EXPECT_LT(qGray(tono.rgb()), qGray(TonoCalor((i - 1) / 100.0).rgb())) << i;
        }
    }
    EXPECT_GT(Contraste(TonoCalor(0), TonoCalor(1)), 7);
}

TEST(frmAnalisis, RetratosPorJuego) {
    const QPalette clara = QApplication::palette();
    for (int juego = PRIMITIVA; juego <= EURODREAMS; ++juego) {
        for (const bool oscura : {false, true}) {
            QApplication::setPalette(oscura ? Oscura() : clara);
            Guion guion;
            CambiarJuego(guion.sesion, juego);
            guion.Marcar({1, 3, 4, 8, 11, 13, 16, 19, 22, 23, 27, 30, 31, 35, 36, 38, 40});
            if (juego != EURODREAMS) guion.Marcar({41, 44, 45, 49});
            guion.MarcarDigitos({1, 3, 4});
            guion.sesion.trabajo.cboTipoReintegro = Secuenciales;
            guion.sesion.condiciones.SUMAS.intervalos[0] = {100, 125};
            guion.sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
            ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
            frmAnalisis ventana(guion.sesion, guion.entorno, guion.sesion.trabajo.Contador.Reducidas, nullptr);
            ventana.show();
            if (oscura) Hijo<QPushButton>(ventana, "imgSwitch")->click();
            Retratar(ventana,
                     Q("frmAnalisis_") + Q(guion.sesion.trabajo.TipoJuego()) + (oscura ? Q("_oscura") : Q("_clara")));
        }
    }
    QApplication::setPalette(clara);
}
