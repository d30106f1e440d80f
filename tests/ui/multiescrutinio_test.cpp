// Many draws and many files, from their windows to the reports.
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QtTest/QTest>

#include <cstdlib>

#include <fmt/format.h>

#include "Guion.h"
#include "HistoriaInventada.h"
#include "Ventanas.h"
#include "frmMultiEscrutinioEstadistico.h"
#include "frmMultiEscrutinioMultiFichero.h"

namespace {

void Pulsar(const QDialog& ventana, const std::string& boton) {
    auto* b = Hijo<QPushButton>(ventana, boton);
    ASSERT_TRUE(b->isEnabled()) << boton;
    QTest::mouseClick(b, Qt::LeftButton);
}

void Teclear(const QDialog& ventana, const std::string& campo, const char* texto) {
    auto* linea = Hijo<QLineEdit>(ventana, campo);
    linea->selectAll();
    QTest::keyClicks(linea, QLatin1String(texto));
}

std::string Dicho(const QDialog& ventana, const std::string& etiqueta) {
    return Utf8(Hijo<QLabel>(ventana, etiqueta)->text());
}

std::string Escrito(const QDialog& ventana, const std::string& texto) {
    return Utf8(Hijo<QPlainTextEdit>(ventana, texto)->toPlainText());
}

std::string Portapapeles() {
    return Utf8(QApplication::clipboard()->text());
}

void CopiarLinea(const QDialog& ventana, const std::string& texto, int linea) {
    auto* campo = Hijo<QPlainTextEdit>(ventana, texto);
    QTextCursor cursor(campo->document()->findBlockByNumber(linea));
    cursor.select(QTextCursor::LineUnderCursor);
    campo->setTextCursor(cursor);
    QTest::keyClick(campo, Qt::Key_C, Qt::ControlModifier);
}

void Soltar(QDialog& ventana, const Textos& rutas) {
    QMimeData datos;
    QList<QUrl> urls;
    for (const std::string& ruta : rutas) urls << QUrl::fromLocalFile(Q(ruta));
    datos.setUrls(urls);
    QDragEnterEvent entrada(QPoint(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&ventana, &entrada);
    if (entrada.isAccepted()) {
        QDropEvent caida(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&ventana, &caida);
    }
    QTest::qWait(1);
}

void Retratar(QWidget& ventana, const QString& nombre) {
    QDir().mkpath(Q(CAPTURAS));
    EXPECT_TRUE(ventana.grab().save(Q(CAPTURAS) + Q("/") + nombre + Q(".png")));
}

struct ConHistoria : Guion {
    CarpetaTemporal carpeta;
    const Sorteos sorteos = SorteosInventados(BONOLOTO, 900);

    ConHistoria() {
        entorno.CarpetaInformes = carpeta.Ruta();
        entorno.Servicio = "https://servicio";
        const std::string respuesta = RespuestaXML(BONOLOTO, sorteos, PremiosInventados(sorteos));
        entorno.PedirHttp = [respuesta](const std::string& url, std::string& cuerpo, std::string&) {
            if (url.ends_with("BONOLOTO")) cuerpo = respuesta;
            return !cuerpo.empty();
        };
    }
    // Bets that are draws of the history from `desde` on.
    std::string Apuestas(const std::string& nombre, size_t desde, size_t cuantas) {
        std::string texto;
        for (size_t i = desde; i < desde + cuantas; ++i)
            texto +=
                fmt::format("{:02}\r\n", fmt::join(sorteos[i].numeros.begin(), sorteos[i].numeros.begin() + 6, ","));
        EscribirTodo(carpeta.Ruta(nombre), texto);
        return carpeta.Ruta(nombre);
    }
};

TEST(VentanaMultiEstadistico, DeLosSorteosAlInforme) {
    ConHistoria guion;
    frmMultiEscrutinioEstadistico ventana(guion.sesion, guion.entorno, nullptr);
    ventana.show();
    EXPECT_EQ(Utf8(ventana.windowTitle()), "MultiEscrutinio Estadístico (TIPO DE JUEGO SELECCIONADO: PRIMITIVA)");
    auto* juego = Hijo<QComboBox>(ventana, "cboTipoJuego");
    EXPECT_EQ(juego->count(), 2);
    QTest::keyClick(juego, Qt::Key_Down);
    Pulsar(ventana, "cmdCargar");
    EXPECT_EQ(Dicho(ventana, "lblSorteosCargados"), "900");
    EXPECT_EQ(Dicho(ventana, "lblTemporadaHASTA") + "/" + Dicho(ventana, "lblSorteoHASTA"), "1992/300");
    guion.Ficheros = {guion.Apuestas("mi sistema.txt", 310, 40)};
    Pulsar(ventana, "cmdDesdeFichero");
    EXPECT_EQ(Dicho(ventana, "txtFicheroASCII"), "mi sistema.txt");
    Teclear(ventana, "txtTemporadaDESDE", "1991");
    Teclear(ventana, "txtTemporadaHASTA", "1991");
    Teclear(ventana, "txtSorteoDESDE", "11");
    Teclear(ventana, "txtSorteoHASTA", "29");
    EXPECT_FALSE(Hijo<QPushButton>(ventana, "imgCopiar")->isEnabled());
    Pulsar(ventana, "cmdEscrutar");
    EXPECT_TRUE(Escrito(ventana, "txtDatos").starts_with("000001. 1991  011  ")) << Escrito(ventana, "txtDatos");
    EXPECT_NE(Escrito(ventana, "txtDatos").find("\nSorteos Escrutados    : 19\n"), std::string::npos);
    Pulsar(ventana, "imgCopiar");
    EXPECT_TRUE(Portapapeles().starts_with("Año\tSorteo\tDía\tNúmeros\t6\t5+C\t5\t4\t3\tImporte\n1991\t11\t"));
    CopiarLinea(ventana, "txtDatos", 1);
    EXPECT_TRUE(Portapapeles().starts_with("1991\t12\t")) << Portapapeles();
    Retratar(ventana, Q("multiescrutinio_estadistico"));
    Pulsar(ventana, "imgVerInforme");
    EXPECT_EQ(guion.Informes, Textos{guion.carpeta.Ruta("TOMBOLERA_ESCRUTINIO.txt")});
    Soltar(ventana, {guion.Apuestas("otro.txt", 0, 7)});
    EXPECT_EQ(Dicho(ventana, "lblApuCargadas"), "7");
    Soltar(ventana, {guion.Apuestas("a.txt", 0, 3), guion.Apuestas("b.txt", 0, 3)});
    EXPECT_EQ(Dicho(ventana, "lblApuCargadas"), "7") << "one file at a time";
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(VentanaMultiEstadistico, MientrasEscrutaSoloSePuedeDetener) {
    ConHistoria guion;
    guion.sesion.trabajo.cboTipoJuego = BONOLOTO;
    frmMultiEscrutinioEstadistico ventana(guion.sesion, guion.entorno, nullptr);
    ventana.show();
    Pulsar(ventana, "cmdCargar");
    Soltar(ventana, {guion.Apuestas("a.txt", 0, 50)});
    guion.EnTurno(guion.Turnos + 400, [&] {
        ventana.Pintar();
        for (const char* boton : {"cmdCargar", "cmdDesdeFichero", "cmdEscrutar", "imgVerInforme", "imgVolver"})
            EXPECT_FALSE(Hijo<QPushButton>(ventana, boton)->isEnabled()) << boton;
        EXPECT_TRUE(Hijo<QProgressBar>(ventana, "lblProgressBar")->isVisible());
        QTest::keyClick(&ventana, Qt::Key_Escape);
        EXPECT_TRUE(ventana.isVisible());
        Retratar(ventana, Q("multiescrutinio_estadistico_corriendo"));
        Pulsar(ventana, "cmdStop");
    });
    Pulsar(ventana, "cmdEscrutar");
    EXPECT_EQ(Escrito(ventana, "txtDatos").find("TOTALES"), std::string::npos);
    EXPECT_FALSE(Hijo<QPushButton>(ventana, "cmdStop")->isEnabled());
    EXPECT_TRUE(Hijo<QPushButton>(ventana, "cmdEscrutar")->isEnabled());
}

TEST(VentanaMultiFichero, DeLosFicherosAlResumenYAlDetalle) {
    ConHistoria guion;
    frmMultiEscrutinioMultiFichero ventana(guion.sesion, guion.entorno, nullptr);
    ventana.show();
    guion.Ficheros = {guion.Apuestas("sorteos.txt", 0, 60)};
    Pulsar(ventana, "cmdDesdeFicheroSORTEOS");
    EXPECT_EQ(Dicho(ventana, "lblApuCargadas"), "60");
    Soltar(ventana, {guion.Apuestas("sistema de catorce números.txt", 10, 30), guion.Apuestas("b.txt", 100, 400),
                     guion.carpeta.Ruta("sorteos.txt")});
    guion.entorno.PedirVarios = [&](const PeticionFichero&) { return Textos{guion.carpeta.Ruta("falta.TOM")}; };
    Pulsar(ventana, "cmdADD");
    EXPECT_EQ(Dicho(ventana, "lblFicheros"), "4 ficheros");
    EXPECT_EQ(Dicho(ventana, "lblEstado"), "Ventana de estado : -");
    Pulsar(ventana, "imgEscrutar");
    const std::string resumen = Escrito(ventana, "txtInforme");
    EXPECT_TRUE(resumen.starts_with("FICHERO                    APUESTAS   DE6 ")) << resumen;
    EXPECT_NE(resumen.find("\nsistema de catorce números 30         30        "), std::string::npos) << resumen;
    EXPECT_NE(resumen.find("\nfalta.TOM                  0          (error al leer el fichero)"), std::string::npos);
    Retratar(ventana, Q("multiescrutinio_multifichero"));
    Pulsar(ventana, "imgCopiar");
    EXPECT_TRUE(Portapapeles().starts_with("Fichero\tApuestas\tDE6\t")) << Portapapeles();
    CopiarLinea(ventana, "txtInforme", 4);
    EXPECT_TRUE(Portapapeles().starts_with("falta.TOM\t0\t")) << Portapapeles();
    Pulsar(ventana, "imgVerInformeResumenPremios");
    Hijo<QListWidget>(ventana, "lstFicheros")->setCurrentRow(3);
    Pulsar(ventana, "cmdDEL");
    QTest::mouseClick(Hijo<QCheckBox>(ventana, "chkTipoListadoPremios"), Qt::LeftButton);
    Pulsar(ventana, "imgEscrutar");
    EXPECT_EQ(Escrito(ventana, "txtInforme"),
              "Fichero 1: sistema de catorce números.txt\nApuestas Fichero 1: 30\nFichero 2: b.txt\n"
              "Apuestas Fichero 2: 400\nFichero 3: sorteos.txt\nApuestas Fichero 3: 60\n");
    EXPECT_EQ(guion.Informes.size(), 4u);
    Retratar(ventana, Q("multiescrutinio_multifichero_detalle"));
    guion.Respuestas = {true, false, true};
    Pulsar(ventana, "cmdDELALL");
    EXPECT_EQ(Hijo<QListWidget>(ventana, "lstFicheros")->count(), 0);
    Pulsar(ventana, "imgINICombinacionSORTEOS");
    EXPECT_EQ(Dicho(ventana, "lblApuCargadas"), "0");
    Pulsar(ventana, "imgVolver");
    EXPECT_TRUE(ventana.isVisible());
    QTest::keyClick(&ventana, Qt::Key_Escape);
    EXPECT_FALSE(ventana.isVisible());
}

TEST(VentanaMultiFichero, DetenerSaltaElFichero) {
    ConHistoria guion;
    frmMultiEscrutinioMultiFichero ventana(guion.sesion, guion.entorno, nullptr);
    ventana.show();
    guion.Ficheros = {guion.Apuestas("sorteos.txt", 0, 60)};
    Pulsar(ventana, "cmdDesdeFicheroSORTEOS");
    Soltar(ventana, {guion.Apuestas("a.txt", 10, 30), guion.Apuestas("b.txt", 100, 400)});
    guion.EnTurno(guion.Turnos + 30, [&] {
        ventana.Pintar();
        EXPECT_FALSE(Hijo<QPushButton>(ventana, "imgEscrutar")->isEnabled());
        EXPECT_EQ(Dicho(ventana, "lblEscrutando"), "Escrutando Fichero 1 (30 Apu.)");
        Retratar(ventana, Q("multiescrutinio_multifichero_corriendo"));
        Pulsar(ventana, "cmdStop");
    });
    Pulsar(ventana, "imgEscrutar");
    const std::string resumen = Escrito(ventana, "txtInforme");
    EXPECT_NE(resumen.find("\na.txt                      30         (proceso detenido, fichero no escrutado)\n"),
              std::string::npos)
        << resumen;
    EXPECT_NE(resumen.find("\nb.txt                      400        0         "), std::string::npos) << resumen;
}

} // namespace
