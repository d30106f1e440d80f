// The settings of the reduction and the process window, driven through their controls.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTreeWidget>
#include <QtTest/QTest>

#include <filesystem>
#include <memory>

#include "Guion.h"
#include "Ventanas.h"
#include "entornoQt.h"
#include "frmPrincipal.h"
#include "frmReduccion.h"
#include "lstFiltros.h"

namespace {

bool Habilitado(const QWidget& ventana, const std::string& control) {
    return Hijo<QWidget>(ventana, control)->isEnabled();
}

Textos Habilitados(const QWidget& ventana, const Textos& controles) {
    Textos si;
    for (const auto& control : controles)
        if (Habilitado(ventana, control)) si.push_back(control);
    return si;
}

// Opens on fresh settings with the row off.
struct Reduccion : Guion {
    std::unique_ptr<frmReduccion> ventana;

    Reduccion() { Abrir(); }
    void Abrir() {
        ventana = std::make_unique<frmReduccion>(sesion, entorno, nullptr);
        ventana->show();
    }
    void Bajar(const std::string& lista, int veces) {
        for (int i = 0; i < veces; ++i) QTest::keyClick(Hijo<QComboBox>(*ventana, lista), Qt::Key_Down);
    }
    bool Activa() const { return sesion.condiciones.lstFiltros[FilaReduccion].Activo; }
};

// Steps on the process window, each taken from the event loop once it is ready. A step that is not
// ready in time fails the test and ends the run, so that nothing is left hanging.
class Pasos {
  public:
    using Listo = std::function<bool(QDialog&)>;
    using Accion = std::function<void(QDialog&)>;

    void Dar(Listo listo, Accion accion) { pasos_.push_back({std::move(listo), std::move(accion)}); }
    void Empezar() { Esperar(0, 4000); }
    size_t Dados() const { return dados_; }

  private:
    void Esperar(size_t paso, int intentos) {
        if (paso < pasos_.size()) QTimer::singleShot(5, &vida_, [this, paso, intentos] { Intentar(paso, intentos); });
    }

    void Intentar(size_t paso, int intentos) {
        auto* ventana = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        try {
            if (ventana == nullptr || !pasos_[paso].first(*ventana)) {
                if (intentos > 0) return Esperar(paso, intentos - 1);
                ADD_FAILURE() << "step " << paso << " was never ready";
                return Soltar(ventana);
            }
            ++dados_;
            Esperar(paso + 1, 4000); // first, because the step may take the event loop
            pasos_[paso].second(*ventana);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
            Soltar(ventana);
        }
    }

    static void Soltar(QDialog* ventana) {
        if (ventana == nullptr) return;
        if (auto* detener = ventana->findChild<QAbstractButton*>(Q("imgDetener"))) detener->click();
        ventana->done(QDialog::Rejected);
    }

    std::vector<std::pair<Listo, Accion>> pasos_;
    size_t dados_ = 0;
    QObject vida_; ///< no step is taken after it
};

// The main window over the process window and the turns of the program itself.
struct Calculo : Guion {
    frmPrincipal ventana{sesion, entorno};

    Calculo() {
        entorno.MostrarVentanaProceso = EntornoQt().MostrarVentanaProceso;
        entorno.CederTurno = EntornoQt().CederTurno;
        MarcarHasta(12);
        MarcarDigitos({5});
        ventana.show();
        ventana.Pintar();
        QApplication::setActiveWindow(&ventana);
        QApplication::processEvents();
    }
    /// With the reduction's row on, and no cycles.
    explicit Calculo(const AjustesReduccion& ajustes) : Calculo() {
        sesion.trabajo.Reduccion = ajustes;
        sesion.trabajo.Reduccion.ActivarCiclos = 0;
        sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    }
    void AbrirFila(int k) {
        auto* lista = Hijo<QTreeWidget>(ventana, "lstFiltros");
        QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {},
                           lista->visualItemRect(lista->topLevelItem(k)).center());
    }
    std::string Fila(int k, int columna) const {
        return Utf8(Hijo<QTreeWidget>(ventana, "lstFiltros")->topLevelItem(k)->text(columna));
    }
};

const Textos BotonesProceso{"imgCalcular", "imgMejorar",   "imgDetener", "imgVerPorcentajes",
                            "imgHuecos",   "imgGarantias", "imgVolver",  "imgCalculoDefinitivo"};
const Textos EnReposo{"imgCalcular",  "imgMejorar", "imgVerPorcentajes",   "imgHuecos",
                      "imgGarantias", "imgVolver",  "imgCalculoDefinitivo"};

bool EnMarcha(QDialog& d) {
    return Habilitado(d, "imgDetener") && Texto(d, "lblApuestasVP") != "0" && Texto(d, "lblCiclos") != "0";
}

bool Parada(QDialog& d) {
    // A window over it may be the active one during a turn of its own work.
    return d.objectName() == Q("frmVentanaProceso") && Habilitado(d, "imgCalcular") &&
           Texto(d, "lblEstado") == "Terminado";
}

void NoSeCierra(QDialog& ventana) {
    QTest::keyClick(&ventana, Qt::Key_Escape);
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_FALSE(ventana.close());
    EXPECT_TRUE(ventana.isVisible());
}

} // namespace

TEST(frmReduccion, CadaControlLlegaALosAjustes) {
    Reduccion r;
    r.Bajar("cboTipoReduccion", 3);
    EXPECT_TRUE(r.Activa());
    r.Bajar("cboPorcentaje", 15);
    Pulsar(*r.ventana, "optTipo_0");
    auto* campo = Hijo<QLineEdit>(*r.ventana, "txtNColumnas");
    campo->selectAll();
    QTest::keyClicks(campo, Q("1x2-0"));
    EXPECT_EQ(Utf8(campo->text()), "120");
    Pulsar(*r.ventana, "chkApuestasExactas");
    Pulsar(*r.ventana, "chkActivarCiclos");
    Pulsar(*r.ventana, "chkAleatorio");
    EXPECT_TRUE(r.ventana->close());
    const AjustesReduccion esperados{3, 85, 120, 1, 0, 1, 1};
    EXPECT_EQ(r.sesion.trabajo.Reduccion, esperados);

    r.Abrir();
    EXPECT_EQ(Utf8(Hijo<QComboBox>(*r.ventana, "cboTipoReduccion")->currentText()), "Reducción al 3");
    EXPECT_EQ(Utf8(Hijo<QComboBox>(*r.ventana, "cboPorcentaje")->currentText()), "Asegurar el 85%");
    EXPECT_TRUE(Hijo<QRadioButton>(*r.ventana, "optTipo_0")->isChecked());
    EXPECT_EQ(Utf8(Hijo<QLineEdit>(*r.ventana, "txtNColumnas")->text()), "120");
    EXPECT_TRUE(Hijo<QCheckBox>(*r.ventana, "chkApuestasExactas")->isChecked());
    EXPECT_FALSE(Hijo<QCheckBox>(*r.ventana, "chkActivarCiclos")->isChecked());
    EXPECT_TRUE(Hijo<QCheckBox>(*r.ventana, "chkAleatorio")->isChecked());
    EXPECT_EQ(Utf8(Hijo<QAbstractButton>(*r.ventana, "imgActivar")->text()), "Reducción activada");
}

TEST(frmReduccion, ElAlcanceHabilitaLoSuyo) {
    const Textos controles{"txtNColumnas", "chkApuestasExactas", "cboPorcentaje"};
    Reduccion r;
    EXPECT_EQ(Habilitados(*r.ventana, controles), Textos{"cboPorcentaje"});
    Pulsar(*r.ventana, "optTipo_0");
    EXPECT_EQ(Habilitados(*r.ventana, controles), (Textos{"txtNColumnas", "chkApuestasExactas"}));
    Pulsar(*r.ventana, "chkApuestasExactas");
    Pulsar(*r.ventana, "optTipo_1");
    EXPECT_EQ(Habilitados(*r.ventana, controles), Textos{"cboPorcentaje"});
    EXPECT_FALSE(Hijo<QCheckBox>(*r.ventana, "chkApuestasExactas")->isChecked());
    EXPECT_TRUE(r.Activa());
}

TEST(frmReduccion, UnNumeroQueNoCabeNoSeCierra) {
    Reduccion r;
    Pulsar(*r.ventana, "optTipo_0");
    Hijo<QLineEdit>(*r.ventana, "txtNColumnas")->clear();
    QTest::keyClicks(Hijo<QLineEdit>(*r.ventana, "txtNColumnas"), Q("99999999999"));
    Pulsar(*r.ventana, "imgVolver");
    EXPECT_TRUE(r.ventana->isVisible());
    EXPECT_EQ(r.Cajas.size(), 1u);
    EXPECT_EQ(r.sesion.trabajo.Reduccion.NApuestasExactas, 1);
}

TEST(frmVentanaProceso, DelBoletoAlFicheroParandoRepitiendoYAceptando) {
    const CarpetaTemporal carpeta;
    Calculo c;
    EnModal([](QDialog& dialogo) {
        EXPECT_EQ(Utf8(dialogo.objectName()), "frmReduccion");
        for (int i = 0; i < 2; ++i) QTest::keyClick(Hijo<QComboBox>(dialogo, "cboTipoReduccion"), Qt::Key_Down);
        dialogo.close();
    });
    c.AbrirFila(FilaReduccion);
    EXPECT_EQ(c.Fila(FilaReduccion, 0), "Sí");
    EXPECT_EQ(c.Fila(FilaReduccion, 2), "al 4");

    std::string aceptadas;
    Pasos pasos;
    pasos.Dar(EnMarcha, [](QDialog& d) {
        EXPECT_EQ(Utf8(d.objectName()), "frmVentanaProceso");
        EXPECT_EQ(Habilitados(d, BotonesProceso), Textos{"imgDetener"});
        EXPECT_EQ(Utf8(Hijo<QGroupBox>(d, "fraPorcentajes")->title()), "Porcentajes ANTES de reducir");
        EXPECT_EQ(Texto(d, "lblN_11"), "50%");
        EXPECT_EQ(Texto(d, "lblN_12"), "0 %");
        EXPECT_EQ(Texto(d, "lblApuestasCondicionadasVP"), "924");
        EXPECT_EQ(Texto(d, "lblDirecto"), "En directo");
        NoSeCierra(d);
        Pulsar(d, "imgDetener");
        EXPECT_FALSE(Habilitado(d, "imgDetener"));
    });
    pasos.Dar(Parada, [](QDialog& d) {
        EXPECT_EQ(Habilitados(d, BotonesProceso), EnReposo);
        EXPECT_EQ(Utf8(Hijo<QGroupBox>(d, "fraPorcentajes")->title()), "Porcentajes DESPUES de reducir");
        NoSeCierra(d);
        Pulsar(d, "imgCalcular");
    });
    pasos.Dar(EnMarcha, [](QDialog& d) { Pulsar(d, "imgDetener"); });
    pasos.Dar(Parada, [&](QDialog& d) {
        aceptadas = Texto(d, "lblApuestasVP");
        Pulsar(d, "imgCalculoDefinitivo");
        EXPECT_FALSE(d.isVisible());
    });
    c.Ficheros = {carpeta.Ruta("reducido.TOM")};
    pasos.Empezar();
    QApplication::setActiveWindow(&c.ventana); // a dialog that has closed leaves none active offscreen
    QTest::keyClick(&c.ventana, Qt::Key_F5);
    EXPECT_EQ(pasos.Dados(), 4u);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(c.Cajas, Textos{});
    EXPECT_EQ(Texto(c.ventana, "lblApuestasReducidas"), aceptadas);
    EXPECT_LT(c.sesion.trabajo.Contador.Reducidas, 50);
    EXPECT_TRUE(std::filesystem::exists(carpeta.Ruta("reducido.xml")));
    EXPECT_TRUE(std::filesystem::exists(carpeta.Ruta("reducido.TOM")));
}

TEST(frmVentanaProceso, VolverDejaElSistemaSinGrabar) {
    const CarpetaTemporal carpeta;
    Calculo c({.TipoReduccion = 1});
    c.entorno.CarpetaInformes = carpeta.Ruta();
    Pasos pasos;
    pasos.Dar(Parada, [&](QDialog& d) {
        EXPECT_EQ(Texto(d, "lblCiclos"), "1");
        Pulsar(d, "imgVerPorcentajes");
        EXPECT_EQ(c.Informes.size(), 1u);
        Pulsar(d, "imgVolver");
    });
    pasos.Empezar();
    Pulsar(c.ventana, "lblMenu_4");
    EXPECT_EQ(pasos.Dados(), 1u);
    EXPECT_GT(c.sesion.trabajo.Contador.Reducidas, 0);
    EXPECT_LT(c.sesion.trabajo.Contador.Reducidas, 924);
    EXPECT_TRUE(c.Peticiones.empty());
}

// Twelve numbers al 5: one cycle leaves 46 bets, and the search for fewer goes on until it is stopped.
TEST(frmVentanaProceso, MejoraElSistemaYEnsenaSusHuecos) {
    const CarpetaTemporal carpeta;
    Calculo c({.TipoReduccion = 1});
    c.entorno.CarpetaInformes = carpeta.Ruta();
    const auto mejorando = [](QDialog& d) { return Texto(d, "lblEstado") == "Mejorando ..."; };
    const auto menos = [](QDialog& d) { return Hijo<QLabel>(d, "lblApuestasVP")->text().toInt() <= 42; };
    Pasos pasos;
    pasos.Dar(Parada, [](QDialog& d) {
        EXPECT_GT(Hijo<QLabel>(d, "lblApuestasVP")->text().toInt(), 42);
        Pulsar(d, "imgMejorar");
    });
    pasos.Dar(mejorando, [](QDialog& d) { EXPECT_EQ(Habilitados(d, BotonesProceso), Textos{"imgDetener"}); });
    pasos.Dar(menos, [](QDialog& d) { Pulsar(d, "imgDetener"); });
    pasos.Dar(Parada, [&](QDialog& d) {
        EXPECT_GE(Hijo<QLabel>(d, "lblCota")->text().toInt(), 25);
        EXPECT_EQ(Texto(d, "lblHuecos"), "-");
        Pulsar(d, "imgHuecos");
        EXPECT_EQ(Texto(d, "lblHuecos"), "0 de 924 (0,00 %)");
        EXPECT_EQ(c.Informes, Textos{carpeta.Ruta() + "/TOMBOLERA_HUECOS.txt"});
        Pulsar(d, "imgVolver");
    });
    pasos.Empezar();
    Pulsar(c.ventana, "lblMenu_4");
    EXPECT_EQ(pasos.Dados(), 4u);
    EXPECT_LE(c.sesion.trabajo.Contador.Reducidas, 42);
    EXPECT_EQ(c.Cajas, Textos{});
}

// The window of guarantees opens over the process window, and on the way back nothing runs again.
TEST(frmVentanaProceso, LasGarantiasNoVuelvenACalcular) {
    Calculo c({.TipoReduccion = 2});
    const auto abierta = [](QDialog& d) { return d.objectName() == Q("frmGarantiasTOTAL") && d.isVisible(); };
    Pasos pasos;
    pasos.Dar(Parada, [](QDialog& d) { Pulsar(d, "imgGarantias"); });
    pasos.Dar(abierta, [](QDialog& d) {
        Pulsar(d, "optTipoGarantias_2");
        Pulsar(d, "imgCalcularGarantias");
        EXPECT_TRUE(Hijo<QPlainTextEdit>(d, "txtResumen")->toPlainText().contains(Q("100.000% 4 si 6 ")));
        Pulsar(d, "imgVolver");
    });
    pasos.Dar(Parada, [](QDialog& d) {
        EXPECT_EQ(Utf8(d.objectName()), "frmVentanaProceso");
        EXPECT_EQ(Texto(d, "lblCiclos"), "1");
        Pulsar(d, "imgCalcular"); // the expansion that the measure has freed comes back
    });
    pasos.Dar(Parada, [](QDialog& d) { Pulsar(d, "imgVolver"); });
    pasos.Empezar();
    Pulsar(c.ventana, "lblMenu_4");
    EXPECT_EQ(pasos.Dados(), 4u);
    EXPECT_EQ(c.Cajas, Textos{});
}

TEST(frmVentanaProceso, UnSistemaSinReducirNoTieneGarantias) {
    Calculo c({.NApuestasExactas = 924, .ActivarNumeroApuestas = 1});
    Pasos pasos;
    pasos.Dar(Parada, [&](QDialog& d) {
        EXPECT_EQ(Texto(d, "lblApuestasVP"), "924");
        Pulsar(d, "imgGarantias");
        EXPECT_EQ(c.Cajas, Textos{"[!] AVISO: No se pueden calcular las garantías, el sistema reducido es igual al "
                                  "sistema condicionado"});
        Pulsar(d, "imgVolver");
    });
    pasos.Empezar();
    Pulsar(c.ventana, "lblMenu_4");
    EXPECT_EQ(pasos.Dados(), 1u);
}
