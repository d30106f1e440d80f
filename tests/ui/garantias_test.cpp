// The window of guarantees, from the menu to its reports, driven through its controls.
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest/QTest>

#include <filesystem>

#include "Boleto.h"
#include "CalcularSistema.h"
#include "Guion.h"
#include "Pintores.h"
#include "Ventanas.h"
#include "entornoQt.h"
#include "frmGarantiasTOTAL.h"
#include "frmPrincipal.h"

namespace {

std::string Celda(const QWidget& ventana, int fila, int columna) {
    return Utf8(Hijo<QTableWidget>(ventana, "tablaGarantias")->item(fila, columna)->text());
}

QString Campo(const QWidget& ventana, const std::string& nombre) {
    return Hijo<QPlainTextEdit>(ventana, nombre)->toPlainText();
}

void Elegir(const QWidget& ventana, int indice) {
    auto* lista = Hijo<QComboBox>(ventana, "cboTipoGarantias");
    QTest::keyClick(lista, Qt::Key_Home);
    for (int i = 0; i < indice; ++i) QTest::keyClick(lista, Qt::Key_Down);
}

void Retratar(QWidget& ventana, const std::string& nombre) {
    QDir().mkpath(Q(CAPTURAS));
    EXPECT_TRUE(ventana.grab().save(Q(CAPTURAS) + Q("/") + Q(nombre) + Q(".png")));
}

// A reduction "al 4" of fourteen numbers.
struct Reducido : Guion {
    CarpetaTemporal carpeta;

    Reducido() {
        entorno.CarpetaInformes = carpeta.Ruta();
        entorno.CederTurno = EntornoQt().CederTurno;
        MarcarHasta(14);
        MarcarDigitos({1});
        sesion.trabajo.Reduccion.TipoReduccion = 2;
        sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
        EXPECT_TRUE(CalcularSistema(sesion, entorno));
    }
};

} // namespace

TEST(frmGarantiasTOTAL, DelMenuALosInformes) {
    Reducido r;
    frmPrincipal principal(r.sesion, r.entorno);
    principal.show();
    principal.Pintar();
    bool hecho = false;
    EnModal([&](QDialog& d) {
        EXPECT_EQ(Utf8(d.objectName()), "frmGarantiasTOTAL");
        EXPECT_EQ(Celda(d, 0, 0), "");
        Pulsar(d, "imgCalcularGarantias");
        const auto sistema = r.sesion.trabajo.ApuestasReducidas.Apuestas();
        EXPECT_EQ(Celda(d, 0, 0), std::to_string(sistema)) << "each bet is a draw of six hits";
        EXPECT_TRUE(Celda(d, 2, 1).ends_with("100.000% 4 si 6")) << Celda(d, 2, 1);
        EXPECT_TRUE(Campo(d, "txtResumen").contains(Q("100.000% 4 si 6  1-")));
        Retratar(d, "garantias_total");
        Pulsar(d, "cmdCopiarTabla");
        EXPECT_TRUE(QApplication::clipboard()->text().startsWith(Q("Apuestas\tPorcentajes\tde 6\tde 5")));
        Elegir(d, 3);
        EXPECT_TRUE(Hijo<QTableWidget>(d, "tablaGarantias")->isRowHidden(2));
        EXPECT_FALSE(Hijo<QTableWidget>(d, "tablaGarantias")->isRowHidden(3));
        EXPECT_EQ(Campo(d, "txtResumen"), QString());
        Pulsar(d, "imgCalcularGarantias");
        Retratar(d, "garantias_si3");
        Pulsar(d, "imgVerInformeTabulado");
        EXPECT_EQ(r.Informes, Textos{r.carpeta.Ruta("TOMBOLERA_GARANTIAS_si3.txt")});
        Elegir(d, 0);
        Pulsar(d, "imgCalcularGarantias");
        Pulsar(d, "imgVerInformeTabulado");
        EXPECT_EQ(r.Informes.size(), 7u);
        hecho = true;
        Pulsar(d, "imgVolver");
        EXPECT_FALSE(d.isVisible());
    });
    principal.findChild<QAction*>(Q("menuGarantias"))->trigger();
    EXPECT_TRUE(hecho);
    EXPECT_EQ(r.Cajas, Textos{});
    for (int k = 1; k <= 6; ++k)
        EXPECT_TRUE(std::filesystem::exists(r.carpeta.Ruta("TOMBOLERA_GARANTIAS_si" + std::to_string(k) + ".txt")));
}

TEST(frmGarantiasTOTAL, SinApuestasNoSeAbre) {
    Guion guion;
    frmPrincipal principal(guion.sesion, guion.entorno);
    principal.show();
    principal.findChild<QAction*>(Q("menuGarantias"))->trigger();
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR: No hay apuestas generadas"});
}

TEST(frmGarantiasTOTAL, LasExtendidasYLaOtraMedida) {
    Reducido r;
    frmGarantiasTOTAL ventana(r.sesion, r.entorno, nullptr);
    ventana.show();
    EXPECT_FALSE(Hijo<QWidget>(ventana, "optTipoGarantias_1")->isEnabled());
    Pulsar(ventana, "optTipoGarantias_2");
    EXPECT_FALSE(Hijo<QWidget>(ventana, "cboTipoGarantias")->isVisible());
    Pulsar(ventana, "imgCalcularGarantias");
    EXPECT_EQ(Celda(ventana, 0, 2), "1-1");
    Pulsar(ventana, "imgGarantiasExtendidas");
    EXPECT_TRUE(Hijo<QWidget>(ventana, "picMiniGarantias")->isVisible());
    EXPECT_FALSE(Hijo<QWidget>(ventana, "imgCalcularGarantias")->isEnabled());
    EXPECT_TRUE(
        Campo(ventana, "txtMiniGarantias").startsWith(Q("DETALLE DE MINI GARANTIAS\n100.000% 2 si 2 (91 Apu.)")));
    QApplication::processEvents();
    Retratar(ventana, "garantias_extendidas");
    Pulsar(ventana, "cmdCerrarpicMiniGarantias");
    EXPECT_FALSE(Hijo<QWidget>(ventana, "picMiniGarantias")->isVisible());
    EXPECT_TRUE(Hijo<QWidget>(ventana, "imgCalcularGarantias")->isEnabled());
    EXPECT_EQ(Celda(ventana, 0, 2), "1-1") << "the results are still there";
}

// The whole ticket, stopped by its button from the event loop.
TEST(frmGarantiasTOTAL, MientrasCalculaSoloViveDetener) {
    Guion guion;
    guion.entorno.CederTurno = EntornoQt().CederTurno;
    guion.MarcarHasta(49);
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    LeerBase(trabajo);
    trabajo.ApuestasReducidas.Dimensionar(7, 300);
    trabajo.Contador.Reducidas = 300;
    for (int i = 1; i <= 300; ++i)
        for (int r = 1; r <= 6; ++r) trabajo.ApuestasReducidas(r, i) = static_cast<uint8_t>(r * 8 - i % (r + 2));
    frmGarantiasTOTAL ventana(guion.sesion, guion.entorno, nullptr);
    const Pintor pintor([&ventana] { ventana.Pintar(); });
    ventana.show();
    QApplication::processEvents();
    bool parada = false;
    QTimer::singleShot(0, &ventana, [&] {
        EXPECT_FALSE(Hijo<QWidget>(ventana, "imgVolver")->isEnabled());
        EXPECT_FALSE(Hijo<QWidget>(ventana, "cboTipoGarantias")->isEnabled());
        EXPECT_EQ(Utf8(Hijo<QLabel>(ventana, "lblEspera")->text()), "Calculando garantías y porcentajes ...");
        QTest::keyClick(&ventana, Qt::Key_Escape);
        EXPECT_TRUE(ventana.isVisible());
        Retratar(ventana, "garantias_calculando");
        Pulsar(ventana, "cmdStop");
        parada = true;
    });
    Pulsar(ventana, "imgCalcularGarantias");
    EXPECT_TRUE(parada);
    EXPECT_EQ(Utf8(Campo(ventana, "txtResumen")), "Proceso de cálculo de porcentajes/garantías detenido");
    EXPECT_EQ(Celda(ventana, 0, 0), "");
    EXPECT_TRUE(Hijo<QWidget>(ventana, "imgVolver")->isEnabled());
}
