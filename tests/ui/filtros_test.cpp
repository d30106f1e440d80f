// The filter dialogs, driven through their controls.
#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest/QTest>

#include "Boleto.h"
#include "FiltroAbierto.h"
#include "FiltrosSencillos.h"
#include "Guion.h"
#include "LogicaFiltroDISTANCIAS.h"
#include "Sesiones.h"
#include "Ventanas.h"
#include "frmAlazar.h"

namespace {

void Escribir(const QDialog& dialogo, const std::string& campo, const std::string& texto) {
    auto* linea = Hijo<QLineEdit>(dialogo, campo);
    linea->selectAll();
    QTest::keyClicks(linea, Q(texto));
}

// Letters that no key of the test library has.
void Teclear(QLineEdit& linea, const QString& letras) {
    for (const QChar letra : letras) {
        QKeyEvent pulsada(QEvent::KeyPress, 0, Qt::NoModifier, QString(letra));
        QApplication::sendEvent(&linea, &pulsada);
    }
}

std::string Indice(const std::string& nombre, size_t i) {
    return nombre + "_" + std::to_string(i);
}

/// The four dialogs with typed values: their fields, and where the record keeps each.
struct CampoTecleado {
    int k;
    std::string nombre;
    std::function<int(const Condiciones&)> valor;
};

std::vector<CampoTecleado> CamposTecleados() {
    std::vector<CampoTecleado> campos;
    for (size_t i = 0; i < 10; ++i) {
        campos.push_back({kSUMAS, Indice("txtSumaMinima", i), [i](auto& c) { return c.SUMAS.intervalos[i].Minimo; }});
        campos.push_back({kSUMAS, Indice("txtSumaMaxima", i), [i](auto& c) { return c.SUMAS.intervalos[i].Maximo; }});
    }
    for (size_t i = 0; i < 5; ++i) {
        const auto de = [&](const std::string& nombre, auto valor) {
            campos.push_back({kSUMASPORTRIOS, Indice(nombre, i), valor});
        };
        de("txtSumaMinimaT1", [i](auto& c) { return c.SUMASPORTRIOS.intervalosT1[i].Minimo; });
        de("txtSumaMaximaT1", [i](auto& c) { return c.SUMASPORTRIOS.intervalosT1[i].Maximo; });
        de("txtSumaMinimaT2", [i](auto& c) { return c.SUMASPORTRIOS.intervalosT2[i].Minimo; });
        de("txtSumaMaximaT2", [i](auto& c) { return c.SUMASPORTRIOS.intervalosT2[i].Maximo; });
    }
    for (size_t i = 0; i < ParesDistancias.size(); ++i) {
        const std::string nombre = "txtDistancia" + std::string(ParesDistancias[i].Cifras);
        campos.push_back({kDISTANCIAS, nombre + "Min", [i](auto& c) { return c.DISTANCIAS.Distancia[i].Minimo; }});
        campos.push_back({kDISTANCIAS, nombre + "Max", [i](auto& c) { return c.DISTANCIAS.Distancia[i].Maximo; }});
    }
    campos.push_back(
        {kTERMINACIONES, "txtSumaTerminacionesMinimo", [](auto& c) { return c.TERMINACIONES.SumaMinima; }});
    campos.push_back(
        {kTERMINACIONES, "txtSumaTerminacionesMaximo", [](auto& c) { return c.TERMINACIONES.SumaMaxima; }});
    return campos;
}

} // namespace

TEST(DialogosFiltro, CadaCampoTecleadoLlegaASuValorYSeVuelveAVer) {
    const auto campos = CamposTecleados();
    for (const int k : {kSUMAS, kSUMASPORTRIOS, kDISTANCIAS, kTERMINACIONES}) {
        SCOPED_TRACE(k);
        Guion guion;
        auto dialogo = Abierto(guion, k);
        int valor = 100;
        for (const CampoTecleado& campo : campos)
            if (campo.k == k) Escribir(*dialogo, campo.nombre, std::to_string(++valor));
        EXPECT_TRUE(Activa(guion, k));
        Pulsar(*dialogo, "imgVolver");
        EXPECT_FALSE(dialogo->isVisible());
        EXPECT_EQ(guion.Cajas, Textos{});
        dialogo = Abierto(guion, k);
        valor = 100;
        for (const CampoTecleado& campo : campos)
            if (campo.k == k) {
                EXPECT_EQ(campo.valor(guion.sesion.condiciones), ++valor) << campo.nombre;
                EXPECT_EQ(Texto(*dialogo, campo.nombre), std::to_string(valor));
            }
    }
}

TEST(DialogosFiltro, UnCierreRechazadoDejaElDialogoConSusTextos) {
    Guion guion;
    const auto dialogo = Abierto(guion, kSUMAS);
    Escribir(*dialogo, "txtSumaMinima_4", "20");
    Escribir(*dialogo, "txtSumaMaxima_4", "500");
    QTest::keyClick(Hijo<QLineEdit>(*dialogo, "txtSumaMaxima_4"), Qt::Key_Escape);
    dialogo->close();
    Pulsar(*dialogo, "imgVolver");
    EXPECT_TRUE(dialogo->isVisible());
    const std::string caja = "[X] ERROR: La suma mínima de los intervalos activados(<>0) debe ser mayor que 21";
    EXPECT_EQ(guion.Cajas, Textos(3, caja));
    EXPECT_EQ(Texto(*dialogo, "txtSumaMaxima_4"), "500");
    Escribir(*dialogo, "txtSumaMinima_4", "21");
    Escribir(*dialogo, "txtSumaMaxima_4", "279");
    Pulsar(*dialogo, "imgVolver");
    EXPECT_FALSE(dialogo->isVisible());
    EXPECT_EQ(guion.sesion.condiciones.SUMAS.intervalos[4], (Intervalo{21, 279}));
}

TEST(DialogosFiltro, LasTeclasDeUnCampoDeNumeros) {
    const struct {
        std::function<void(QLineEdit&)> pulsar;
        std::string texto;
        bool activa;
    } casos[] = {
        {[](QLineEdit& l) { Teclear(l, QStringLiteral("a-. 7ñ€")); }, "7", true},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_X, Qt::NoModifier); }, "0", true},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_Return); }, "0", true},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_Backspace); }, "", true},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_Delete); }, "", true},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_Tab); }, "0", false},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_Home); }, "0", false},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_Escape); }, "0", false},
        {[](QLineEdit& l) { QTest::keyClick(&l, Qt::Key_C, Qt::ControlModifier); }, "0", false},
        {[](QLineEdit& l) {
             QApplication::clipboard()->setText(QStringLiteral("1.2a3"));
             l.paste();
         },
         "123", true},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(&caso - casos);
        Guion guion;
        const auto dialogo = Abierto(guion, kDISTANCIAS);
        auto* linea = Hijo<QLineEdit>(*dialogo, "txtDistancia23Max");
        linea->setFocus();
        linea->selectAll();
        caso.pulsar(*linea);
        EXPECT_EQ(Utf8(linea->text()), caso.texto);
        EXPECT_EQ(Activa(guion, kDISTANCIAS), caso.activa);
        EXPECT_EQ(Utf8(Hijo<QAbstractButton>(*dialogo, "imgActivar")->text()),
                  caso.activa ? "Condición activada" : "Condición desactivada");
    }
}

TEST(DialogosFiltro, CadaModificarAbreElSelectorDeSuTabla) {
    for (const FiltroSencillo& filtro : FiltrosSencillos) {
        Guion guion;
        const auto dialogo = Abierto(guion, filtro.Fila);
        for (size_t i = 0; i < filtro.Tablas.size(); ++i) {
            SCOPED_TRACE(filtro.Tablas[i].Boton);
            EnModal([&](QDialog& aciertos) {
                EXPECT_EQ(Utf8(aciertos.objectName()), "frmAciertos");
                EXPECT_EQ(aciertos.findChild<QAbstractButton*>(Q("lblAcierto_0")) == nullptr,
                          filtro.MinimoAcierto == 1);
                Pulsar(aciertos, "imgTodos");
                Pulsar(aciertos, "imgNinguno");
                Pulsar(aciertos, Indice("lblAcierto", i + 1));
                QTest::keyClick(&aciertos, Qt::Key_6);
                EXPECT_TRUE(Hijo<QAbstractButton>(aciertos, "lblAcierto_6")->isChecked());
                QTest::keyClick(Hijo<QAbstractButton>(aciertos, "lblAcierto_6"), Qt::Key_Return);
                EXPECT_FALSE(aciertos.isVisible());
            });
            Pulsar(*dialogo, std::string(filtro.Tablas[i].Boton));
            const std::string lista = std::to_string(i + 1) + ",6";
            EXPECT_EQ(Texto(*dialogo, std::string(filtro.Tablas[i].Texto)), lista);
            EXPECT_EQ(TextoLista(filtro.Tabla(guion.sesion.condiciones, i)), lista);
            EXPECT_TRUE(Activa(guion, filtro.Fila));
        }
    }
}

TEST(DialogosFiltro, CadaCasillaLlegaASuMarca) {
    for (const FiltroSencillo& filtro : FiltrosSencillos) {
        for (size_t i = 0; i < filtro.Casillas.size(); ++i) {
            SCOPED_TRACE(std::string(filtro.Ventana) + " " + std::to_string(i));
            Guion guion;
            auto dialogo = Abierto(guion, filtro.Fila);
            const std::string casilla =
                Indice(std::string(filtro.NombreCasillas), i + static_cast<size_t>(filtro.PrimeraCasilla));
            Hijo<QAbstractButton>(*dialogo, casilla)->click();
            EXPECT_TRUE(Activa(guion, filtro.Fila));
            dialogo->close();
            EXPECT_EQ(TextoLista(filtro.Marcas(guion.sesion.condiciones)), std::to_string(i));
            EXPECT_TRUE(Hijo<QAbstractButton>(*Abierto(guion, filtro.Fila), casilla)->isChecked());
        }
    }
}

TEST(DialogosFiltro, TERMINACIONESGuardaTablasYFiguras) {
    Guion guion;
    auto dialogo = Abierto(guion, kTERMINACIONES);
    const RegistroTERMINACIONES& registro = guion.sesion.condiciones.TERMINACIONES;
    for (size_t d = 0; d < 10; ++d) {
        EnModal([&](QDialog& aciertos) { Pulsar(aciertos, Indice("lblAcierto", d % 7)); });
        Pulsar(*dialogo, Indice("cmdModificar", d));
        EXPECT_EQ(TextoLista(registro.TerminadosEn[d]), std::to_string(d % 7));
        EXPECT_EQ(Texto(*dialogo, Indice("txtAciertos", d)), std::to_string(d % 7));
    }
    for (const size_t figura : {1, 4, 10}) Hijo<QAbstractButton>(*dialogo, Indice("chkFigura", figura))->click();
    dialogo->close();
    EXPECT_EQ(TextoLista(registro.FigurasTerminaciones), "0,3,9");
    dialogo = Abierto(guion, kTERMINACIONES);
    EXPECT_TRUE(Hijo<QAbstractButton>(*dialogo, "chkFigura_4")->isChecked());
    EXPECT_FALSE(Hijo<QAbstractButton>(*dialogo, "chkFigura_5")->isChecked());
}

TEST(DialogosFiltro, ElInterruptorDiceElEstadoDeLaFila) {
    Guion guion;
    for (int k = 0; k < NFiltros; ++k) {
        const auto dialogo = Abierto(guion, k);
        const auto* boton = Hijo<QAbstractButton>(*dialogo, "imgActivar");
        Pulsar(*dialogo, "imgActivar");
        EXPECT_TRUE(Activa(guion, k)) << k;
        EXPECT_EQ(Utf8(boton->text()), "Condición activada") << k;
        Pulsar(*dialogo, "imgActivar");
        EXPECT_FALSE(Activa(guion, k)) << k;
        EXPECT_EQ(Utf8(boton->text()), "Condición desactivada") << k;
    }
}

TEST(DialogosFiltro, AbrirDesdeLaListaRechazaEnEurodreamsYDejaSinGuardar) {
    Guion guion;
    CambiarJuego(guion.sesion, EURODREAMS);
    AbrirDialogoFiltro(kCOLINDANTES, guion.sesion, guion.entorno, nullptr);
    EXPECT_EQ(guion.Cajas, Textos{"[!] AVISO: FILTRO NO PERMITIDO PARA EL JUEGO EURODREAMS"});
    EXPECT_FALSE(guion.sesion.trabajo.CombinacionGuardada);
    CambiarJuego(guion.sesion, PRIMITIVA);
    std::string abierto;
    EnModal([&](QDialog& dialogo) { abierto = Utf8(dialogo.objectName()); });
    AbrirDialogoFiltro(kCOLINDANTES, guion.sesion, guion.entorno, nullptr);
    EXPECT_EQ(abierto, "frmFiltroCOLINDANTES");
}

TEST(frmAlazar, MarcaLosElegidosYCierra) {
    for (const auto& [juego, maximo] : {std::pair{PRIMITIVA, 49}, {EURODREAMS, 40}}) {
        Guion guion;
        CambiarJuego(guion.sesion, juego);
        frmAlazar dialogo(guion.sesion.trabajo, nullptr);
        dialogo.show();
        auto* lista = Hijo<QComboBox>(dialogo, "cboNumeros");
        EXPECT_EQ(lista->count(), maximo);
        EXPECT_EQ(Utf8(lista->currentText()), "6");
        lista->setCurrentIndex(11);
        Pulsar(dialogo, "cmdAlazar");
        EXPECT_FALSE(dialogo.isVisible());
        EXPECT_EQ(ContarBase(guion.sesion.trabajo), 12);
        EXPECT_EQ(guion.sesion.trabajo.Contador.Iniciales, 924);
    }
}

TEST(frmAlazar, CerrarSinMarcarDejaElBoleto) {
    Guion guion;
    guion.Marcar({1, 2, 3});
    frmAlazar dialogo(guion.sesion.trabajo, nullptr);
    dialogo.show();
    Pulsar(dialogo, "imgVolver");
    EXPECT_EQ(ContarBase(guion.sesion.trabajo), 3);
}
