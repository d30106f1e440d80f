// The generators, own systems, the viewer and the coefficient of a file, driven through their controls from start to
// end.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QUrl>
#include <QtTest/QTest>

#include "Guion.h"
#include "Sesiones.h"
#include "Ventanas.h"
#include "frmCoeficienteRentabilidad.h"
#include "frmGeneradorApuestas.h"
#include "frmGeneradorApuestasXPorcentaje.h"
#include "frmSistemasPropios.h"
#include "frmVisualizar.h"
#include "modImportarASCII.h"

namespace {

void Escribir(const QWidget& ventana, const std::string& campo, const char* texto) {
    auto* linea = Hijo<QLineEdit>(ventana, campo);
    linea->selectAll();
    QTest::keyClicks(linea, QLatin1String(texto));
}

void Elegir(const QWidget& ventana, const std::string& lista, int indice) {
    auto* combo = Hijo<QComboBox>(ventana, lista);
    combo->setCurrentIndex(indice);
    emit combo->activated(indice);
}

void Retratar(QWidget& ventana, const char* nombre) {
    EXPECT_TRUE(ventana.grab().save(QStringLiteral(CAPTURAS "/") + QLatin1String(nombre) + QStringLiteral(".png")));
}

struct Taller : Guion {
    CarpetaTemporal carpeta;

    std::vector<Apuesta> Leer(const std::string& nombre) {
        Tabla tabla;
        LeerApuestas(carpeta.Ruta(nombre), true, tabla, nullptr, sesion.trabajo.JuegoActual(), entorno);
        return Apuestas(tabla, 7);
    }
};

} // namespace

TEST(Herramientas, GenerarPorNumeros) {
    Taller t;
    frmGeneradorApuestas ventana(t.sesion.trabajo, t.entorno, nullptr);
    ventana.show();
    for (const int n : {3, 9, 14, 21, 33, 40, 48}) Pulsar(ventana, "lblNumero_" + std::to_string(n - 1));
    EXPECT_EQ(Texto(ventana, "lblApuestasIniciales"), "7 Apuestas");
    Escribir(ventana, "txtApuestas", "7x");
    Retratar(ventana, "herramienta_generar_numeros");
    t.Ficheros = {t.carpeta.Ruta("azar.TOM")};
    Pulsar(ventana, "cmdGenerar");
    EXPECT_EQ(t.Leer("azar.TOM").size(), 7u);
    Elegir(ventana, "cboNumeros", 11);
    Pulsar(ventana, "cmdAlazar");
    EXPECT_EQ(Texto(ventana, "lblTipoCombinacion"), "12 Números");
    EXPECT_EQ(t.Cajas, Textos{});
}

TEST(Herramientas, GenerarPorPorcentajes) {
    Taller t;
    frmGeneradorApuestasXPorcentaje ventana(t.sesion.trabajo, t.entorno, nullptr);
    ventana.show();
    for (const int n : {1, 2, 3, 4, 5, 6}) Elegir(ventana, "cboPorcentaje_" + std::to_string(n - 1), 50);
    EXPECT_EQ(Texto(ventana, "lblTitNumeros"), "6 Porcentajes de Números Seleccionados");
    EXPECT_EQ(Texto(ventana, "lblSumaPorcentajes"), "300 %");
    Escribir(ventana, "txtApuestas", "10");
    Retratar(ventana, "herramienta_generar_porcentajes");
    t.Ficheros = {t.carpeta.Ruta("azar.TOM")};
    Pulsar(ventana, "cmdGenerar");
    int unos = 0;
    for (const Apuesta& a : t.Leer("azar.TOM")) unos += a[0] == 1;
    EXPECT_EQ(unos, 5);
    EXPECT_EQ(t.Cajas, Textos{});
}

TEST(Herramientas, SistemaPropioConSuOrden) {
    Taller t;
    EscribirTodo(t.carpeta.Ruta("origen.txt"), "010203040506\r\n020304050607\r\n");
    frmSistemasPropios ventana(t.sesion.trabajo, t.entorno, nullptr);
    ventana.show();
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(Q(t.carpeta.Ruta("origen.txt")))});
    QDragEnterEvent entrada(QPoint(9, 9), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&ventana, &entrada);
    QDropEvent soltar(QPointF(9, 9), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&ventana, &soltar);
    QApplication::processEvents();
    EXPECT_EQ(Texto(ventana, "lblTitNumerosORIGEN"), "7 Números");
    QTest::keyClick(Hijo<QWidget>(ventana, "txtPorcentajesNumeros"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(Q("Número\tPorcentaje\n1\t50 %\n2\t100 %\n")));
    for (const int n : {11, 12, 13, 14, 15, 16, 49}) Pulsar(ventana, "lblNumeroFINAL_" + std::to_string(n - 1));
    Pulsar(ventana, "chkElegirOrden");
    int posicion = 7; // the largest origin to the smallest destination
    for (const int n : {11, 12, 13, 14, 15, 16, 49}) Elegir(ventana, "cboOrden_" + std::to_string(n - 1), posicion--);
    Retratar(ventana, "herramienta_sistemas_propios");
    t.Ficheros = {t.carpeta.Ruta("propio.TOM")};
    Pulsar(ventana, "imgCalculoDefinitivo");
    EXPECT_EQ(t.Leer("propio.TOM"), (std::vector<Apuesta>{{12, 13, 14, 15, 16, 49, 0}, {11, 12, 13, 14, 15, 16, 0}}));
    EXPECT_EQ(t.Cajas.size(), 1u); // the notice about the digit
}

TEST(Herramientas, VisorBoletoABoletoYEnPdf) {
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        Taller t;
        CambiarJuego(t.sesion, juego);
        std::string texto;
        for (int i = 1; i <= 20; ++i)
            texto += "0" + std::to_string(i % 9 + 1) + ",12,17,23,31,40+" + std::to_string(i % 5 + 1) + "\r\n";
        EscribirTodo(t.carpeta.Ruta("f.txt"), texto);
        frmVisualizar ventana(t.sesion.trabajo, t.entorno, nullptr);
        ventana.show();
        if (juego == EURODREAMS) Pulsar(ventana, "chkReintegros");
        t.Ficheros = {t.carpeta.Ruta("f.txt")};
        Pulsar(ventana, "cmdDesdeFichero");
        const int boletos = juego == EURODREAMS ? 4 : 3;
        EXPECT_EQ(Texto(ventana, "lblNumeroBoleto"), "Boleto actual : 1/" + std::to_string(boletos));
        EXPECT_EQ(Texto(ventana, "lblColumna_0"), "02");
        EXPECT_EQ(Texto(ventana, "lblReintegro_0"), juego == BONOLOTO ? "" : "02") << juego;
        Retratar(ventana, ("herramienta_visor_" + std::to_string(juego)).c_str());
        ventana.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
        QTest::keyClick(&ventana, Qt::Key_C, Qt::ControlModifier);
        EXPECT_TRUE(QApplication::clipboard()->text().contains(Q("\n1\t02\t12\t17\t23\t31\t40\t")));
        Pulsar(ventana, "imgUltimo");
        EXPECT_FALSE(Hijo<QAbstractButton>(ventana, "imgAvanzar")->isEnabled());
        Escribir(ventana, "txtIrboleto", "2");
        QTest::keyClick(Hijo<QLineEdit>(ventana, "txtIrboleto"), Qt::Key_Return);
        EXPECT_EQ(Texto(ventana, "lblNumeroBoleto"), "Boleto actual : 2/" + std::to_string(boletos));
        t.Ficheros = {t.carpeta.Ruta("boletos.pdf")};
        Pulsar(ventana, "cmdPdf");
        const std::string pdf = LeerTodo(t.carpeta.Ruta("boletos.pdf"));
        EXPECT_TRUE(pdf.starts_with("%PDF-"));
        EXPECT_NE(pdf.find("/Count 2"), std::string::npos); // pages
        t.Ficheros = {t.carpeta.Ruta("no existe/b.pdf")};
        Pulsar(ventana, "cmdPdf");
        ASSERT_EQ(t.Cajas.size(), 1u);
        EXPECT_TRUE(t.Cajas[0].starts_with("[X] ERROR AL GUARDAR EL FICHERO")) << t.Cajas[0];
    }
}

TEST(Herramientas, RentabilidadDelFicheroALasApuestasElegidas) {
    Taller t;
    std::string texto;
    for (int a = 10; a < 40; ++a)
        for (int b = a + 1; b < 46; ++b)
            texto += "0" + std::to_string(1 + b % 9) + std::to_string(a) + std::to_string(b) + "464749\r\n";
    EscribirTodo(t.carpeta.Ruta("f.txt"), texto);
    frmCoeficienteRentabilidad ventana(t.sesion, t.entorno, nullptr);
    ventana.show();
    t.Ficheros = {t.carpeta.Ruta("f.txt")};
    Pulsar(ventana, "cmdDesdeFichero");
    EXPECT_EQ(Texto(ventana, "lblApuCargadas"), "615");
    Pulsar(ventana, "imgCalcular");
    auto* lista = Hijo<QListWidget>(ventana, "lstCR");
    ASSERT_EQ(lista->count(), 100);
    int elegidas = 0, todas = 0;
    for (int i = 0; i < lista->count(); ++i) {
        const int cuantas = lista->item(i)->text().split(Q(": ")).last().toInt();
        todas += cuantas;
        if (cuantas == 0 || i % 2 == 0) continue;
        lista->item(i)->setCheckState(Qt::Checked);
        elegidas += cuantas;
    }
    EXPECT_EQ(todas, 615);
    EXPECT_GT(elegidas, 0);
    EXPECT_EQ(Texto(ventana, "lblApuestasSeleccionadasCR"), "Apuestas: " + std::to_string(elegidas));
    t.Ficheros = {t.carpeta.Ruta("elegidas.TOM")};
    Pulsar(ventana, "imgGrabarApuestasCR");
    EXPECT_EQ(t.Leer("elegidas.TOM").size(), static_cast<size_t>(elegidas));
    EXPECT_EQ(t.Cajas, Textos{"[!] SE HAN GUARDADO " + std::to_string(elegidas) + " APUESTAS"});
}
