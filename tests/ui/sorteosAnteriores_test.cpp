// The dialog of earlier draws, driven through its controls.
#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QtTest/QTest>

#include "DialogosFiltro.h"
#include "Guion.h"
#include "HistoriaInventada.h"
#include "Pintores.h"
#include "TablaFiltros.h"
#include "TiemposSorteos.h"
#include "Ventanas.h"

namespace {

class SorteosAnterioresVentana : public testing::Test {
  protected:
    Guion guion;
    std::unique_ptr<QDialog> dialogo;

    SorteosAnterioresVentana() {
        guion.entorno.Servicio = "https://sorteos.ejemplo";
        guion.entorno.PedirHttp = [this](const std::string&, std::string& cuerpo, std::string&) {
            EXPECT_FALSE(dialogo->isEnabled());
            cuerpo = RespuestaXML(PRIMITIVA, SorteosInventados(PRIMITIVA, 400));
            return true;
        };
        guion.entorno.CederTurno = PintarAbiertas;
        dialogo = CrearDialogoFiltro(kSORTEOSANTERIORES, guion.sesion, guion.entorno, nullptr);
        dialogo->show();
    }
    void Pulsar(const std::string& boton) { QTest::mouseClick(Hijo<QAbstractButton>(*dialogo, boton), Qt::LeftButton); }
    void Elegir(const std::string& caja, const std::string& texto) {
        auto* lista = Hijo<QComboBox>(*dialogo, caja);
        const int fila = lista->findText(Q(texto));
        ASSERT_GE(fila, 0) << caja << " does not offer " << texto;
        lista->setCurrentIndex(fila);
    }
    void Escribir(const std::string& campo, const char* texto) {
        Hijo<QLineEdit>(*dialogo, campo)->selectAll();
        QTest::keyClicks(Hijo<QLineEdit>(*dialogo, campo), QLatin1String(texto));
    }
    std::string Rotulo(const std::string& nombre) { return Utf8(Hijo<QLabel>(*dialogo, nombre)->text()); }
};

} // namespace

TEST_F(SorteosAnterioresVentana, DeLaCargaAlCierre) {
    Pulsar("cmdCargar");
    EXPECT_TRUE(dialogo->isEnabled());
    EXPECT_EQ(Rotulo("lblSorteosCargados"), "400");
    EXPECT_EQ(Rotulo("lblTemporadaHASTA"), "1991");
    Elegir("cboAnioINI", "1990");
    Elegir("cboSorteoINI", "11");
    Elegir("cboAnioFIN", "1990");
    Elegir("cboSorteoFIN", "20");
    EXPECT_EQ(Rotulo("lblSorteosConsultados"), "10");
    Elegir("cboDia", "Sábado");
    EXPECT_EQ(Rotulo("lblSorteosConsultados"), "2");
    EnModal(
        [](QDialog& aciertos) { QTest::mouseClick(Hijo<QAbstractButton>(aciertos, "lblAcierto_3"), Qt::LeftButton); });
    Pulsar("cmdModificar");
    Escribir("txtSorteoMINIMO", "3");
    Escribir("txtSorteoMAXIMO", "2");
    Pulsar("imgVolver");
    EXPECT_TRUE(dialogo->isVisible());
    EXPECT_EQ(guion.Cajas.size(), 1u);
    Escribir("txtSorteoMINIMO", "1");
    Pulsar("cmdMASBloque");
    EXPECT_EQ(Rotulo("lblNumeroGrupo"), "GRUPO 2 (Máx. 20)");
    EXPECT_EQ(Hijo<QComboBox>(*dialogo, "cboAnioINI")->currentText(), QLatin1String("2024"));
    Pulsar("imgVolver");
    EXPECT_FALSE(dialogo->isVisible());
    const Condiciones& c = guion.sesion.condiciones;
    const BloqueSorteos& grupo = c.SORTEOSANTERIORES.grupo[0];
    EXPECT_EQ(grupo.DESDE.numero, 11);
    EXPECT_EQ(grupo.HASTA.anio, 1990);
    EXPECT_EQ(grupo.sorteoDIAS, 6);
    EXPECT_EQ(grupo.aciertosMinimoSORTEOS, 1);
    EXPECT_EQ(grupo.aciertosMaximoSORTEOS, 2);
    EXPECT_EQ(grupo.acertarEN[3], 1);
    EXPECT_TRUE(c.lstFiltros[kSORTEOSANTERIORES].Activo);
}

TEST_F(SorteosAnterioresVentana, UnAnioDeOtroTiempoSeVeYSeInicializa) {
    BloqueSorteos& grupo = guion.sesion.condiciones.SORTEOSANTERIORES.grupo[0];
    grupo.DESDE = {1970, 2500};
    dialogo = CrearDialogoFiltro(kSORTEOSANTERIORES, guion.sesion, guion.entorno, nullptr);
    EXPECT_EQ(Hijo<QComboBox>(*dialogo, "cboAnioINI")->currentText(), QLatin1String("1970"));
    EXPECT_EQ(Hijo<QComboBox>(*dialogo, "cboSorteoINI")->currentText(), QLatin1String("2500"));
    Pulsar("imgINIGrupo");
    EXPECT_EQ(Hijo<QComboBox>(*dialogo, "cboAnioINI")->currentText(), QLatin1String("2024"));
    EXPECT_EQ(grupo.DESDE.anio, 2024);
}

// On the pointer's way in, and by the keyboard; gone when either leaves.
TEST_F(SorteosAnterioresVentana, LosTiemposSeVenMientrasSeEstaEnSuBoton) {
    auto* boton = Hijo<QAbstractButton>(*dialogo, "imgInformacion");
    auto* tabla = Hijo<QFrame>(*dialogo, "picImagenTabla");
    EXPECT_FALSE(tabla->isVisible());
    QEnterEvent entrar({1, 1}, {1, 1}, {1, 1});
    QApplication::sendEvent(boton, &entrar);
    EXPECT_TRUE(tabla->isVisible());
    QPixmap retrato(tabla->size());
    tabla->render(&retrato);
    QDir().mkpath(QStringLiteral(CAPTURAS));
    EXPECT_TRUE(retrato.save(QStringLiteral(CAPTURAS "/picImagenTabla.png")));
    std::string textos;
    for (const QLabel* celda : tabla->findChildren<QLabel*>()) textos += Utf8(celda->text()) + "|";
    for (const TiempoSorteos& tiempo : TiemposSorteos)
        EXPECT_NE(textos.find(std::string(tiempo.Tiempo) + "|" + std::string(tiempo.Resultado) + "|"),
                  std::string::npos);
    QEvent salir(QEvent::Leave);
    QApplication::sendEvent(boton, &salir);
    EXPECT_FALSE(tabla->isVisible());
    QTest::keyClick(boton, Qt::Key_Space);
    EXPECT_TRUE(tabla->isVisible());
    dialogo->hide();
    EXPECT_FALSE(tabla->isVisible());
}
