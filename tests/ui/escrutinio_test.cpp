// The check against one draw and the prize calculator, driven through their controls from the main window.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QRadioButton>
#include <QTreeWidget>
#include <QtTest/QTest>

#include "CalcularSistema.h"
#include "Guion.h"
#include "Sesiones.h"
#include "Texto8bits.h"
#include "Ventanas.h"
#include "entornoQt.h"
#include "frmCalculadoraPremios.h"
#include "frmEscrutar.h"
#include "frmInforme.h"
#include "frmPrincipal.h"
#include "modEncriptarFichero.h"

namespace {

constexpr const char* Respuesta =
    "<r><PRIMITIVA><SORTEOS><SORTEO anio='2024' sorteo='39' dia='J' fecha='16/05/2024' recaudacion='9.876.543,00' "
    "bote='1.250.000,00'><ESCRUTINIO><CAT6R premio='0' /><CAT6 premio='1.512.345,50' acertantes='1' />"
    "<CAT5C premio='70.123,04' acertantes='3' /><CAT5 premio='2.345,67' acertantes='161' />"
    "<CAT4 premio='55,5' acertantes='12345' /><CAT3 premio='8' acertantes='234567' /></ESCRUTINIO></SORTEO>"
    "</SORTEOS></PRIMITIVA></r>";

// A calculated system of 924 bets of twelve numbers.
struct Escrutinio : Guion {
    explicit Escrutinio(int juego) {
        CambiarJuego(sesion, juego);
        entorno.CarpetaInformes = carpeta.Ruta();
        entorno.Servicio = "http://servicio";
        entorno.PedirHttp = [](const std::string&, std::string& cuerpo, std::string&) {
            cuerpo = Respuesta;
            return true;
        };
        Marcar({1, 5, 8, 11, 15, 19, 22, 26, 31, 33, 38, 40});
        if (juego != BONOLOTO) MarcarDigitos({2});
        CalcularSistema(sesion, entorno);
    }
    CarpetaTemporal carpeta;
};

void Sortear(const QWidget& ventana, std::initializer_list<int> numeros) {
    for (const int n : numeros) Pulsar(ventana, "lblNumero_" + std::to_string(n - 1));
}

Textos Resultados(const QWidget& ventana) {
    Textos filas;
    const auto* lista = Hijo<QTreeWidget>(ventana, "lstPremios");
    for (int i = 0; i < lista->topLevelItemCount(); ++i)
        filas.push_back(Utf8(lista->topLevelItem(i)->text(0) + QLatin1Char(' ') + lista->topLevelItem(i)->text(1)));
    return filas;
}

void Retratar(QWidget& ventana, const std::string& nombre) {
    QDir().mkpath(Q(CAPTURAS));
    EXPECT_TRUE(ventana.grab().save(Q(CAPTURAS) + Q("/") + Q(nombre) + Q(".png")));
}

void RetratarInforme(const std::string& ruta, const std::string& nombre) {
    frmInforme informe(Q(ruta), nullptr);
    informe.show();
    Retratar(informe, nombre);
}

void Soltar(QWidget& ventana, const std::string& ruta) {
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(Q(ruta))});
    QDragEnterEvent entrada(QPoint(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&ventana, &entrada);
    EXPECT_TRUE(entrada.isAccepted());
    QDropEvent evento(QPointF(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&ventana, &evento);
    QApplication::processEvents();
}

void Escribir(const QWidget& ventana, const std::string& campo, const std::string& texto) {
    auto* caja = Hijo<QLineEdit>(ventana, campo);
    caja->selectAll();
    QTest::keyClicks(caja, Q(texto));
}

} // namespace

TEST(frmEscrutar, UnSistemaSeCompruebaEnCadaJuego) {
    const std::vector<Textos> esperados{
        {"6 1", "5+C 6", "5 30", "4 225", "3 400", "2 225", "1 36", "0 1", " ", "Reinteg. 924"},
        {"6 1", "5+C 6", "5 30", "4 225", "3 400", "2 225", "1 36", "0 1"},
        {"6+S 1", "6 1", "5 36", "4 225", "3 400", "2 225", "1 36", "0 1", " ", "Sueños: 924"}};
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        Escrutinio e(juego);
        SCOPED_TRACE(e.sesion.trabajo.TipoJuego());
        frmEscrutar ventana(e.sesion, e.entorno, nullptr);
        ventana.show();
        EXPECT_EQ(Utf8(ventana.windowTitle()), "ESCRUTAR - " + e.sesion.trabajo.TipoJuego());
        Sortear(ventana, {1, 5, 8, 11, 15, 19, 22}); // the seventh is refused
        EXPECT_EQ(Texto(ventana, "lblTipoCombinacion"), "6 Números Seleccionados");
        EXPECT_EQ(Resultados(ventana)[7], "0 924");
        EXPECT_EQ(Texto(ventana, "lblEscrutando"), "El sorteo ha cambiado: pulse «Escrutar».");
        auto* complementario = Hijo<QComboBox>(ventana, "cboComplementario");
        EXPECT_EQ(complementario->isVisible(), juego != EURODREAMS);
        if (juego != EURODREAMS) QTest::keyClicks(complementario, Q("22"));
        auto* digito = Hijo<QComboBox>(ventana, "cboReintegro");
        EXPECT_EQ(digito->isVisible(), juego != BONOLOTO);
        if (juego != BONOLOTO) QTest::keyClicks(digito, Q("2"));
        Pulsar(ventana, "imgEscrutar");
        EXPECT_EQ(Resultados(ventana), esperados[static_cast<size_t>(juego)]);
        EXPECT_EQ(Texto(ventana, "lblApuestas"), "924");
        EXPECT_EQ(Texto(ventana, "lblBoletos"), juego == EURODREAMS ? "154" : "116");
        EXPECT_EQ(Texto(ventana, "lblEscrutando"), "");
        Pulsar(ventana, "imgVerBoletosPremiados");
        EXPECT_EQ(e.Informes, Textos{e.carpeta.Ruta("TOMBOLERA_PREMIOS.txt")});
        const std::string nombre = "frmEscrutar_" + e.sesion.trabajo.TipoJuego();
        Retratar(ventana, nombre);
        RetratarInforme(e.Informes[0], nombre + "_informe");
        Pulsar(ventana, "cmdCopiar");
        EXPECT_TRUE(Utf8(QApplication::clipboard()->text())
                        .ends_with("\nApuestas\t924\nBoletos\t" + Texto(ventana, "lblBoletos") + "\n"));
        Pulsar(ventana, "imgININumeros");
        EXPECT_EQ(Resultados(ventana)[7], "0 924");
        EXPECT_EQ(e.Cajas, Textos{});
    }
}

TEST(frmEscrutar, UnFicheroSoltadoEsLaCombinacionNueva) {
    Escrutinio e(PRIMITIVA);
    const std::string ruta = e.carpeta.Ruta("sistema.TOM");
    GuardarFicheroApuestas(ruta, "0", 900, e.sesion.trabajo.ApuestasReducidas, nullptr, e.entorno);
    frmEscrutar ventana(e.sesion, e.entorno, nullptr);
    ventana.show();
    EXPECT_FALSE(Hijo<QAbstractButton>(ventana, "cmdDesdeFichero")->isEnabled());
    Soltar(ventana, ruta);
    EXPECT_TRUE(Hijo<QRadioButton>(ventana, "optModo_1")->isChecked());
    EXPECT_TRUE(Hijo<QAbstractButton>(ventana, "cmdDesdeFichero")->isEnabled());
    EXPECT_EQ(Texto(ventana, "txtFicheroASCII"), "sistema.TOM");
    EXPECT_EQ(Texto(ventana, "lblApuestas"), "900");
    Pulsar(ventana, "optModo_0");
    EXPECT_EQ(Texto(ventana, "lblApuestas"), "924");
    Pulsar(ventana, "optModo_1");
    Pulsar(ventana, "chkReintegros");
    EXPECT_EQ(Texto(ventana, "lblApuestas"), "0");
    e.Ficheros = {ruta};
    Pulsar(ventana, "cmdDesdeFichero");
    EXPECT_EQ(e.Cajas, Textos{"[!] AVISO: Se ha asignado al fichero cargado el REINTEGRO 0."});
    EXPECT_EQ(Resultados(ventana)[9], "Reinteg. 900");
}

// Turns of the event loop come in the middle of the run: nothing can be pressed or closed by then.
TEST(frmEscrutar, MientrasEscrutaNoSeTocaNiSeCierra) {
    Escrutinio e(BONOLOTO);
    frmEscrutar ventana(e.sesion, e.entorno, nullptr);
    ventana.show();
    e.EnTurno(e.Turnos + 1, [&] {
        ventana.Pintar();
        EXPECT_FALSE(Hijo<QAbstractButton>(ventana, "imgEscrutar")->isEnabled());
        EXPECT_EQ(Texto(ventana, "lblEscrutando"), "Escrutando ...");
        ventana.close();
        EXPECT_TRUE(ventana.isVisible());
    });
    Pulsar(ventana, "imgEscrutar");
    EXPECT_TRUE(Hijo<QAbstractButton>(ventana, "imgEscrutar")->isEnabled());
    EXPECT_EQ(Texto(ventana, "lblEscrutando"), "");
}

TEST(frmCalculadoraPremios, DelMenuAlInformeConLosPremiosDelServicio) {
    Escrutinio e(PRIMITIVA);
    frmPrincipal principal(e.sesion, e.entorno);
    principal.show();
    const std::string guardado = e.carpeta.Ruta("premios.xml");
    EnModal([&](QDialog& escrutar) {
        ASSERT_EQ(Utf8(escrutar.objectName()), "frmEscrutar");
        Sortear(escrutar, {1, 5, 8, 11, 15, 19});
        Pulsar(escrutar, "imgEscrutar");
        EnModal([&](QDialog& d) {
            ASSERT_EQ(Utf8(d.objectName()), "frmCalculadoraPremios");
            Escribir(d, "txtDia", "16");
            Pulsar(d, "cmdConsultarSorteo");
            EXPECT_EQ(Texto(d, "txtRecaudacion"), "9.876.543,00");
            EXPECT_EQ(Texto(d, "txtSorteoAciertos_3"), "12.345");
            EXPECT_EQ(Utf8(Hijo<QLineEdit>(d, "txtCalculadoraEuros_2")->text()), "2345,67");
            // 1512345,50 + 36 x 2345,67 + 225 x 55,50 + 400 x 8,00
            EXPECT_EQ(Texto(d, "txtPremiosTOTAL"), "1612477,12");
            EXPECT_EQ(Texto(d, "txtPorcentajeTOTAL"), "174510,51%");
            Retratar(d, "frmCalculadoraPremios_sorteo");
            Pulsar(d, "cmdVerInformePremios");
            Pulsar(d, "cmdCopiar");
            EXPECT_TRUE(Utf8(QApplication::clipboard()->text())
                            .starts_with("Categoría\tNºPremios\tEuros\n6\t1\t1512345,5\n5+C\t0\t70123,04\n"));
            e.Ficheros = {guardado};
            Pulsar(d, "cmdGuardarPremios");
            Pulsar(d, "cmdIniCalculadoraPremios");
            Escribir(d, "txtCalculadoraEuros_4", "2,x");
            EXPECT_EQ(Texto(d, "txtPremiosTOTAL"), "800,00");
            EXPECT_EQ(Texto(d, "txtPorcentajeTOTAL"), "86,58%");
            Retratar(d, "frmCalculadoraPremios_perdida");
            Soltar(d, guardado);
            EXPECT_EQ(Texto(d, "txtPremiosTOTAL"), "1612477,12");
            d.close();
        });
        Pulsar(escrutar, "imgCalculadoraPremios");
        escrutar.close();
    });
    principal.findChild<QAction*>(Q("menuEscrutinioApuestas"))->trigger();
    ASSERT_EQ(e.Informes, Textos{e.carpeta.Ruta("TOMBOLERA_TEMP.txt")});
    RetratarInforme(e.Informes[0], "frmCalculadoraPremios_informe");
    EXPECT_TRUE(LeerTodo(e.Informes[0]).ends_with("Porcentaje Recuperado : 174510,51%\r\n"));
    EXPECT_EQ(e.Cajas, Textos{});
}

TEST(frmCalculadoraPremios, EurodreamsNoLaTiene) {
    Escrutinio e(EURODREAMS);
    frmEscrutar ventana(e.sesion, e.entorno, nullptr);
    ventana.show();
    Pulsar(ventana, "imgCalculadoraPremios");
    EXPECT_EQ(e.Cajas, Textos{"[i] CALCULADORA DE PREMIOS NO DISPONIBLE PARA EL JUEGO EURODREAMS"});
}
