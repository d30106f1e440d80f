#include "frmPrincipal.h"

#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include <filesystem>

#include "Guion.h"
#include "Ventanas.h"

namespace {

struct Principal : Guion {
    frmPrincipal ventana{sesion, entorno};

    Principal() {
        ventana.show();
        QApplication::setActiveWindow(&ventana);
        QApplication::processEvents();
    }

    void Pulsar(const std::string& boton) { QTest::mouseClick(Hijo<QAbstractButton>(ventana, boton), Qt::LeftButton); }
    void PulsarNumeros(std::initializer_list<int> numeros) {
        for (const int n : numeros) Pulsar("lblNumero_" + std::to_string(n - 1));
    }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) {
        QApplication::setActiveWindow(&ventana); // a dialog that has closed leaves none active offscreen
        QTest::keyClick(&ventana, tecla, con);
    }
    void Elegir(const std::string& lista, int indice) {
        auto* combo = Hijo<QComboBox>(ventana, lista);
        combo->setFocus();
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(indice, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
    }
    std::string Texto(const std::string& etiqueta) const { return Utf8(Hijo<QLabel>(ventana, etiqueta)->text()); }
    Textos Contadores() const {
        return {Texto("lblApuestasIniciales"), Texto("lblApuestasCondicionadas"), Texto("lblApuestasReducidas")};
    }
    QTreeWidget& Lista() const { return *Hijo<QTreeWidget>(ventana, "lstFiltros"); }
    std::string Fila(int k, int columna) const { return Utf8(Lista().topLevelItem(k)->text(columna)); }
    QPoint Punto(int k) const { return Lista().visualItemRect(Lista().topLevelItem(k)).center(); }
    int Ofrecidos(const std::string& nombre, int cuantos) const {
        int visibles = 0;
        for (int i = 0; i < cuantos; ++i)
            visibles += Hijo<QToolButton>(ventana, nombre + "_" + std::to_string(i))->isVisible();
        return visibles;
    }
};

constexpr int Sumas = 8;

} // namespace

TEST(frmPrincipal, DeLasMarcasAlFicheroDeApuestas) {
    const CarpetaTemporal carpeta;
    Principal p;
    p.PulsarNumeros({1, 5, 8, 13, 17, 22, 26, 31, 35, 38, 44, 49});
    EXPECT_EQ(p.Contadores(), (Textos{"924", "924", "0"}));
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "12 Números");
    p.Pulsar("lblReintegro_7");

    EnModal([](QDialog& dialogo) {
        EXPECT_EQ(Utf8(dialogo.objectName()), "frmFiltroSUMAS");
        QTest::keyClicks(Hijo<QLineEdit>(dialogo, "txtSumaMinima_0"), Q("120"));
        QTest::keyClicks(Hijo<QLineEdit>(dialogo, "txtSumaMaxima_0"), Q("180"));
        dialogo.close();
    });
    QTest::mouseDClick(p.Lista().viewport(), Qt::LeftButton, {}, p.Punto(Sumas));
    EXPECT_EQ(p.Fila(Sumas, 0), "Sí");
    EXPECT_EQ(p.Fila(Sumas, 3), "-");

    p.Tecla(Qt::Key_F5);
    const int eliminadas = std::stoi(p.Fila(Sumas, 3));
    EXPECT_GT(eliminadas, 0);
    EXPECT_LT(eliminadas, 924);
    const std::string quedan = std::to_string(924 - eliminadas);
    EXPECT_EQ(p.Contadores(), (Textos{"924", quedan, quedan}));
    EXPECT_TRUE(p.ventana.isWindowModified());

    p.Ficheros = {carpeta.Ruta("sistema.TOM")};
    p.Tecla(Qt::Key_F7);
    EXPECT_EQ(p.Cajas, Textos{});
    EXPECT_TRUE(std::filesystem::exists(carpeta.Ruta("sistema.TOM")));
    EXPECT_TRUE(std::filesystem::exists(carpeta.Ruta("sistema.xml")));
    EXPECT_FALSE(p.ventana.isWindowModified());
    EXPECT_EQ(Utf8(p.ventana.windowTitle()), "TOMBOLERA 11.1[*]");
}

TEST(frmPrincipal, AbrirGuardarYSoltarUnFicheroBase) {
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("mia.xml");
    Principal p;
    p.PulsarNumeros({2, 4, 6});
    p.Ficheros = {ruta};
    p.Tecla(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Utf8(p.ventana.windowTitle()), "TOMBOLERA 11.1 - Fichero : mia.xml[*]");
    p.Tecla(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "0 Números");
    p.Ficheros = {ruta};
    p.Tecla(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "3 Números");
    EXPECT_EQ(p.Cajas, Textos{});

    p.PulsarNumeros({8});
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(Q(ruta))});
    const auto soltar = [&] {
        QDragEnterEvent entrada(QPoint(300, 300), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&p.ventana, &entrada);
        EXPECT_TRUE(entrada.isAccepted());
        QDropEvent evento(QPointF(300, 300), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&p.ventana, &evento);
        QApplication::processEvents();
    };
    soltar();
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "4 Números");
    p.Respuestas = {true};
    soltar();
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "3 Números");
    EXPECT_EQ(p.Cajas.size(), 2u);

    for (const std::string& nombre : {carpeta.Ruta("no_existe.xml"), carpeta.Ruta()}) {
        datos.setUrls({QUrl::fromLocalFile(Q(nombre))});
        QDragEnterEvent entrada(QPoint(300, 300), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        entrada.setAccepted(false);
        QApplication::sendEvent(&p.ventana, &entrada);
        EXPECT_FALSE(entrada.isAccepted()) << nombre;
    }
}

TEST(frmPrincipal, FilasColumnasYTodos) {
    Principal p;
    p.Pulsar("imgINIFila_9");
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "4 Números");
    p.Pulsar("imgINIColumna_0");
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "13 Números");
    EXPECT_EQ(Utf8(Hijo<QToolButton>(p.ventana, "lblMarcarDesmarcarTODOS")->text()), "Desmarcar todos");
    p.Pulsar("lblMarcarDesmarcarTODOS");
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "0 Números");
    p.Pulsar("lblMarcarDesmarcarTODOS");
    EXPECT_EQ(p.Contadores(), (Textos{"13.983.816", "13.983.816", "0"}));
    EXPECT_TRUE(Hijo<QToolButton>(p.ventana, "lblNumero_48")->isChecked());
}

TEST(frmPrincipal, ArrastrarMarcaLasCeldasDelCamino) {
    Principal p;
    p.PulsarNumeros({12});
    auto* uno = Hijo<QToolButton>(p.ventana, "lblNumero_10");
    QTest::mousePress(uno, Qt::LeftButton);
    for (const int n : {12, 13, 14}) {
        const auto* celda = Hijo<QToolButton>(p.ventana, "lblNumero_" + std::to_string(n - 1));
        QTest::mouseMove(uno, uno->mapFromGlobal(celda->mapToGlobal(celda->rect().center())));
    }
    QTest::mouseRelease(uno, Qt::LeftButton);
    LogicaPrincipal logica{p.sesion, p.entorno};
    EXPECT_EQ(logica.Copiar(), "11, 12, 13, 14");
    p.PulsarNumeros({14});
    EXPECT_EQ(logica.Copiar(), "11, 12, 13");
}

TEST(frmPrincipal, ElBoletoSeManejaConElTeclado) {
    Principal p;
    Hijo<QToolButton>(p.ventana, "lblNumero_0")->setFocus();
    const auto tecla = [](int t) { QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(t)); };
    for (const int t : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Space, Qt::Key_Up, Qt::Key_Space}) tecla(t);
    LogicaPrincipal logica{p.sesion, p.entorno};
    EXPECT_EQ(logica.Copiar(), "12, 13");
    // Tab leaves the grid at once and comes back to the cell it left.
    const QWidget* celda = QApplication::focusWidget();
    tecla(Qt::Key_Tab);
    EXPECT_FALSE(Utf8(QApplication::focusWidget()->objectName()).starts_with("lblNumero"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), celda);
}

TEST(frmPrincipal, LaListaAlternaYAbre) {
    Principal p;
    QTest::mouseClick(p.Lista().viewport(), Qt::RightButton, {}, p.Punto(2));
    EXPECT_EQ(p.Fila(2, 0), "Sí");
    EXPECT_FALSE(p.ventana.isWindowModified());
    p.Lista().setFocus();
    QTest::keyClick(&p.Lista(), Qt::Key_Down);
    QTest::keyClick(&p.Lista(), Qt::Key_Space);
    EXPECT_EQ(p.Fila(3, 0), "Sí");
    QTest::mouseClick(p.Lista().viewport(), Qt::RightButton, {},
                      QPoint(20, p.Lista().viewport()->height() - 2)); // below the last row
    EXPECT_EQ(p.Fila(19, 0), "No");
    p.Elegir("cboTipoJuego", EURODREAMS);
    p.Lista().setCurrentItem(p.Lista().topLevelItem(5));
    QTest::keyClick(&p.Lista(), Qt::Key_Return);
    EXPECT_EQ(p.Cajas, Textos{"[!] AVISO: FILTRO NO PERMITIDO PARA EL JUEGO EURODREAMS"});
    EXPECT_FALSE(Utf8(p.Lista().topLevelItem(5)->toolTip(1)).find("EURODREAMS") == std::string::npos);
}

TEST(frmPrincipal, CadaJuegoEnsenaSuBoleto) {
    struct Caso {
        int juego, numeros, digitos;
        bool panel;
        const char *titulo, *cargar;
    };
    const Caso casos[] = {{EURODREAMS, 40, 5, true, "SUEÑOS", "Cargar Sueños"},
                          {BONOLOTO, 49, 0, false, "", ""},
                          {PRIMITIVA, 49, 10, true, "REINTEGROS", "Cargar Reintegros"}};
    Principal p;
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.juego);
        p.PulsarNumeros({3});
        p.Elegir("cboTipoJuego", c.juego);
        EXPECT_EQ(p.Texto("lblTipoCombinacion"), "0 Números");
        EXPECT_EQ(p.Ofrecidos("lblNumero", 49), c.numeros);
        EXPECT_EQ(p.Ofrecidos("lblReintegro", 10), c.digitos);
        EXPECT_EQ(Hijo<QWidget>(p.ventana, "picCuadroReintegros")->isVisible(), c.panel);
        EXPECT_EQ(p.Texto("lblTituloReintegros"), c.titulo);
        EXPECT_EQ(Utf8(Hijo<QCheckBox>(p.ventana, "chkReintegros")->text()), c.cargar);
    }
    p.Elegir("cboTipoJuego", EURODREAMS);
    p.Pulsar("imgINIFila_2");    // 3, 13, 23, 33
    p.Pulsar("imgINIColumna_1"); // 10 to 19, of which 11 decides
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "13 Números");
}

TEST(frmPrincipal, LaRuedaNoCambiaDeJuego) {
    Principal p;
    p.PulsarNumeros({1, 2});
    auto* lista = Hijo<QComboBox>(p.ventana, "cboTipoJuego");
    lista->setFocus();
    const QPointF punto = lista->rect().center();
    QWheelEvent rueda(punto, lista->mapToGlobal(punto), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(lista, &rueda);
    EXPECT_EQ(p.sesion.trabajo.cboTipoJuego, PRIMITIVA);
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "2 Números");
}

TEST(frmPrincipal, BaseAlAzar) {
    Principal p;
    EnModal([](QDialog& dialogo) {
        EXPECT_EQ(Utf8(dialogo.objectName()), "frmAlazar");
        Hijo<QComboBox>(dialogo, "cboNumeros")->setCurrentIndex(8);
        QTest::mouseClick(Hijo<QAbstractButton>(dialogo, "cmdAlazar"), Qt::LeftButton);
    });
    p.Elegir("cboTipoCombinacion", PronosticoAleatorio);
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "9 Números");
    EXPECT_EQ(p.Contadores()[0], "84");
}

TEST(frmPrincipal, BaseDesdeArchivo) {
    const CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("mias.txt"), "01,02,03,04,05,06+3\r\n01,02,03,04,05,49+3\r\n");
    Principal p;
    p.Elegir("cboTipoCombinacion", PronosticoDesdeArchivo); // cancelled: the list goes back
    EXPECT_EQ(Hijo<QComboBox>(p.ventana, "cboTipoCombinacion")->currentIndex(), PronosticoManual);
    p.Ficheros = {carpeta.Ruta("mias.txt")};
    p.Elegir("cboTipoCombinacion", PronosticoDesdeArchivo);
    EXPECT_EQ(p.Contadores(), (Textos{"2", "2", "2"}));
    EXPECT_EQ(p.Texto("txtFicheroASCII"), "mias.txt");
    EXPECT_TRUE(Hijo<QLabel>(p.ventana, "txtFicheroASCII")->isVisible());
    EXPECT_EQ(p.Texto("cmdCuadroApuDirecto"), "Apuestas Importadas");
    for (const char* nombre : {"lblNumero_0", "lblReintegro_3", "cboTipoReintegro", "lblMarcarDesmarcarTODOS"})
        EXPECT_FALSE(Hijo<QWidget>(p.ventana, nombre)->isEnabled()) << nombre;
}

TEST(frmPrincipal, ApuestasDeUnFicheroDeCadaDisposicion) {
    const CarpetaTemporal carpeta;
    for (const char* texto : {"010203040506\r\n020304050648\r\n", "01,02,03,04,05,06\n02,03,04,05,06,48\n",
                              "01 02 03 04 05 06\r\n02 03 04 05 06 48"}) {
        Principal p;
        p.PulsarNumeros({20});
        EscribirTodo(carpeta.Ruta("apuestas.txt"), texto);
        p.Elegir("cboTipoCombinacion", PronosticoDesdeArchivo); // cancelled
        EXPECT_EQ(p.Texto("lblTipoCombinacion"), "1 Números");
        EXPECT_EQ(Hijo<QComboBox>(p.ventana, "cboTipoCombinacion")->currentIndex(), PronosticoManual);

        p.Pulsar("chkReintegros");
        p.Ficheros = {carpeta.Ruta("apuestas.txt")};
        p.Elegir("cboTipoCombinacion", PronosticoDesdeArchivo);
        EXPECT_EQ(p.Cajas.size(), 1u);
        EXPECT_EQ(p.Contadores(), (Textos{"2", "2", "2"}));
        EXPECT_EQ(p.Texto("lblTipoCombinacion"), "7 Números");
        EXPECT_EQ(p.Texto("txtFicheroASCII"), "apuestas.txt");
        EXPECT_EQ(p.Texto("cmdCuadroApuDirecto"), "Apuestas Importadas");
        EXPECT_FALSE(Hijo<QToolButton>(p.ventana, "lblNumero_0")->isEnabled());
        EXPECT_FALSE(Hijo<QComboBox>(p.ventana, "cboTipoReintegro")->isEnabled());
        EXPECT_TRUE(Hijo<QComboBox>(p.ventana, "cboTipoCombinacion")->isEnabled());
        p.Tecla(Qt::Key_F5);
        EXPECT_EQ(Apuestas(p.sesion.trabajo.ApuestasReducidas, 7),
                  (std::vector<Apuesta>{{1, 2, 3, 4, 5, 6, 1}, {2, 3, 4, 5, 6, 48, 1}}));
    }
}

TEST(frmPrincipal, BloqueadaMientrasCalculaYDesbloqueadaDespues) {
    Principal p;
    p.MarcarHasta(15);
    p.MarcarDigitos({1});
    p.ventana.Pintar();
    QWidget* celda = Hijo<QToolButton>(p.ventana, "lblNumero_3");
    celda->setFocus();
    const std::vector<std::string> bloqueados{
        "lblMenu_0",  "lblMenu_4",        "lblMenu_6",          "lblNumero_0",  "lblReintegro_1",
        "lstFiltros", "cboTipoReintegro", "cboTipoCombinacion", "cboTipoJuego", "chkReintegros"};
    p.EnTurno(1, [&] {
        PintarAbiertas();
        for (const auto& nombre : bloqueados) EXPECT_FALSE(Hijo<QWidget>(p.ventana, nombre)->isEnabled()) << nombre;
        EXPECT_FALSE(p.ventana.menuBar()->isEnabled());
        EXPECT_TRUE(Hijo<QProgressBar>(p.ventana, "actividad")->isVisible());
        EXPECT_FALSE(p.ventana.close());
        p.Tecla(Qt::Key_F5);
        p.Tecla(Qt::Key_N, Qt::ControlModifier);
    });
    p.Pulsar("lblMenu_4");
    EXPECT_EQ(p.Cajas, Textos{});
    for (const auto& nombre : bloqueados) EXPECT_TRUE(Hijo<QWidget>(p.ventana, nombre)->isEnabled()) << nombre;
    EXPECT_FALSE(Hijo<QProgressBar>(p.ventana, "actividad")->isVisible());
    EXPECT_TRUE(p.ventana.isVisible());
    EXPECT_EQ(p.Contadores(), (Textos{"5.005", "5.005", "5.005"}));
}

TEST(frmPrincipal, CerrarPregunta) {
    Principal p;
    p.PulsarNumeros({1});
    EXPECT_FALSE(p.ventana.close());
    EXPECT_TRUE(p.ventana.isVisible());
    p.Respuestas = {true};
    Hijo<QAction>(p.ventana, "menuSalir")->trigger();
    EXPECT_FALSE(p.ventana.isVisible());
    EXPECT_EQ(p.Cajas.size(), 2u);
}

TEST(frmPrincipal, CopiarYPegarPorElPortapapeles) {
    Principal p;
    QApplication::clipboard()->setText(Q("3, 7, 12, 60"));
    p.Tecla(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(p.Texto("lblTipoCombinacion"), "3 Números");
    EXPECT_EQ(p.Cajas.size(), 1u);
    p.Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Utf8(QApplication::clipboard()->text()), "3, 7, 12");
}

TEST(frmPrincipal, ElPanelDeEsperaSigueAlFichero) {
    Principal p;
    auto* panel = Hijo<QFrame>(p.ventana, "picVentanaEspera");
    EXPECT_FALSE(panel->isVisible());
    p.sesion.trabajo.picVentanaEspera = {true, 0.5};
    PintarAbiertas();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(Hijo<QProgressBar>(p.ventana, "lblProgressBar")->value(), 2363);
    EXPECT_LE((panel->geometry().center() - panel->parentWidget()->rect().center()).manhattanLength(), 2);
    p.sesion.trabajo.picVentanaEspera = {};
    PintarAbiertas();
    EXPECT_FALSE(panel->isVisible());
}

// One step for a visit to a dialog, with whatever is done in it.
TEST(frmPrincipal, DeshacerYRehacer) {
    Principal p;
    p.PulsarNumeros({1, 2, 3, 4, 5, 6, 7});
    EnModal([](QDialog& dialogo) {
        QTest::keyClicks(Hijo<QLineEdit>(dialogo, "txtSumaMaxima_0"), QStringLiteral("40"));
        QTest::keyClicks(Hijo<QLineEdit>(dialogo, "txtSumaMinima_0"), QStringLiteral("30"));
        dialogo.close();
    });
    p.Lista().setCurrentItem(p.Lista().topLevelItem(Sumas));
    QTest::keyClick(&p.Lista(), Qt::Key_Return);
    EXPECT_EQ(p.sesion.condiciones.SUMAS.intervalos[0], (Intervalo{30, 40}));
    p.Tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(p.sesion.condiciones.SUMAS.intervalos[0].EnUso());
    EXPECT_EQ(p.Fila(Sumas, 0), "No");
    EXPECT_EQ(p.Contadores()[0], "7");
    p.Tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(p.Contadores()[0], "1");
    EXPECT_FALSE(Hijo<QAbstractButton>(p.ventana, "lblNumero_6")->isChecked());
    p.Tecla(Qt::Key_Y, Qt::ControlModifier);
    p.Tecla(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(p.Fila(Sumas, 0), "Sí");
    EXPECT_EQ(p.sesion.condiciones.SUMAS.intervalos[0], (Intervalo{30, 40}));
}
