#include "entornoQt.h"

#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "Guion.h"
#include "Pintores.h"
#include "ServicioLocal.h"
#include "Ventanas.h"
#include "frmInforme.h"

namespace {

Textos Botones(const QDialog& caja) {
    Textos textos;
    for (const auto* boton : caja.findChildren<QPushButton*>()) textos.push_back(Utf8(boton->text()));
    std::sort(textos.begin(), textos.end());
    return textos;
}

} // namespace

TEST(entornoQt, LasCajasHablanEspanol) {
    Entorno entorno = EntornoQt();
    EnModal([](QDialog& caja) {
        EXPECT_EQ(Utf8(caja.windowTitle()), "TOMBOLERA");
        EXPECT_EQ(Utf8(dynamic_cast<QMessageBox&>(caja).text()), "ERROR: <b>no es formato</b>");
        EXPECT_EQ(dynamic_cast<QMessageBox&>(caja).icon(), QMessageBox::Critical);
        EXPECT_EQ(Botones(caja), Textos{"Aceptar"});
    });
    Fallo(entorno, "ERROR: <b>no es formato</b>");
}

TEST(entornoQt, LaPreguntaSeRespondeNoSalvoQueSePulseSi) {
    const struct {
        Qt::Key tecla;
        bool respuesta;
    } casos[] = {{Qt::Key_Return, false}, {Qt::Key_Escape, false}, {Qt::Key_S, true}};
    for (const auto& caso : casos) {
        const Entorno entorno = EntornoQt();
        EnModal([&](QDialog& caja) {
            EXPECT_EQ(Botones(caja), (Textos{"No", "Sí"}));
            if (caso.tecla != Qt::Key_S) {
                QTest::keyClick(&caja, caso.tecla);
                return;
            }
            for (auto* boton : caja.findChildren<QPushButton*>())
                if (boton->text() == Q("Sí")) boton->click();
        });
        EXPECT_EQ(entorno.Preguntar("¿ Desea continuar ?"), caso.respuesta);
    }
}

TEST(entornoQt, CederTurnoPintaLasVentanasAbiertasComoMuchoCada10ms) {
    const Entorno entorno = EntornoQt();
    QTest::qWait(15);
    int pintadas = 0;
    const Pintor una([&] { ++pintadas; });
    for (int i = 0; i < 1000; ++i) entorno.CederTurno();
    EXPECT_GE(pintadas, 1);
    EXPECT_LT(pintadas, 1000);
    const int antes = pintadas;
    QTest::qWait(15);
    entorno.CederTurno();
    EXPECT_EQ(pintadas, antes + 1);
}

TEST(entornoQt, ElSitioSaleDelEntornoDelProceso) {
    qputenv("TOMBOLERA_SITIO", "https://ejemplo.es");
    EXPECT_EQ(EntornoQt().Sitio, "https://ejemplo.es");
    qunsetenv("TOMBOLERA_SITIO");
}

TEST(entornoQt, ElVisorLeeLaPaginaDeCodigosDelInforme) {
    const CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("informe.txt"), "Sue\xF1os\r\n12\r\n");
    const frmInforme informe(Q(carpeta.Ruta("informe.txt")), nullptr);
    EXPECT_EQ(Utf8(Hijo<QPlainTextEdit>(informe, "texto")->toPlainText()), "Sueños\n12\n");
}

TEST(entornoQt, LasVentanasSePintanMientrasSeEsperaAlServicio) {
    ServicioLocal servicio;
    servicio.Responder({.Cuerpo = std::string(20, 'x'), .Trozo = 1, .Pausa = std::chrono::milliseconds(25)});
    setenv("TOMBOLERA_SERVICIO", servicio.Direccion().c_str(), 1);
    const Entorno entorno = EntornoQt();
    unsetenv("TOMBOLERA_SERVICIO");
    int pintadas = 0;
    const Pintor una([&] { ++pintadas; });
    std::string cuerpo, fallo;
    EXPECT_TRUE(entorno.PedirHttp(entorno.Servicio, cuerpo, fallo)) << fallo;
    EXPECT_EQ(cuerpo, std::string(20, 'x'));
    EXPECT_GE(pintadas, 5);
}
