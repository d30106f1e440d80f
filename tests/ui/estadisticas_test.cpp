// The statistics window, opened from the main window and driven through its controls.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QUrl>
#include <QtTest/QTest>

#include <algorithm>
#include <filesystem>

#include "GraficoBarras.h"
#include "Guion.h"
#include "HistoriaInventada.h"
#include "LogicaEstadisticas.h"
#include "Pintores.h"
#include "ServicioLocal.h"
#include "Sesiones.h"
#include "Ventanas.h"
#include "frmPrincipal.h"
#include "tema.h"

namespace {

constexpr size_t NSorteos = 900; // of 1990, 1991 and 1992

const Textos Marcos{"fraFicheros", "fraConsultas", "fraEstadisticas", "fraDatos", "imgVolver"};

struct Estadisticas : Guion {
    CarpetaTemporal carpeta;
    Sorteos sorteos = SorteosInventados(BONOLOTO, NSorteos);
    std::string ruta = carpeta.Ruta("bonoloto.txt");
    frmPrincipal principal{sesion, entorno};
    QDialog* ventana = nullptr;

    explicit Estadisticas(int juego = BONOLOTO) {
        CambiarJuego(sesion, juego);
        entorno.CarpetaInformes = carpeta.Ruta();
        entorno.CederTurno = PintarAbiertas;
        entorno.Servicio = "https://sorteos.example";
        EscribirTodo(ruta, TextoFicheroSorteos(sorteos));
        principal.show();
        Abrir();
    }
    void Abrir() {
        Hijo<QAction>(principal, "menuEstadisticas")->trigger();
        for (auto* d : principal.findChildren<QDialog*>(Q("frmEstadisticas")))
            if (d->isVisible()) ventana = d;
    }
    void Pulsar(const std::string& boton) const { Hijo<QAbstractButton>(*ventana, boton)->click(); }
    void Cargar() {
        Ficheros = {ruta};
        Pulsar("cmdAbrirEstadisticas");
    }
    std::string Rotulo(const std::string& nombre) const { return Utf8(Hijo<QLabel>(*ventana, nombre)->text()); }
    std::string Datos() const { return Utf8(Hijo<QPlainTextEdit>(*ventana, "txtDatos")->toPlainText()); }
    GraficoBarras& Grafico() const { return *static_cast<GraficoBarras*>(Hijo<QWidget>(*ventana, "grafico")); }
    void Escribir(const std::string& campo, const std::string& texto) const {
        auto* linea = Hijo<QLineEdit>(*ventana, campo);
        linea->selectAll();
        QTest::keyClicks(linea, Q(texto));
    }
    Textos Habilitados() const {
        Textos si;
        for (const auto& marco : Marcos)
            if (Hijo<QWidget>(*ventana, marco)->isEnabled()) si.push_back(marco);
        return si;
    }
};

// The count at the end of each line of a statistic.
std::vector<int64_t> Veces(const std::string& texto) {
    std::vector<int64_t> veces;
    const QString lineas = Q(texto);
    for (const QString& linea : lineas.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        veces.push_back(linea.section(Q("> "), -1).trimmed().toLongLong());
    return veces;
}

std::vector<int64_t> Veces(const Barras& datos) {
    std::vector<int64_t> veces;
    for (const Barra& barra : datos.barras) veces.push_back(barra.valor);
    return veces;
}

} // namespace

TEST(frmEstadisticas, DelFicheroACadaEstadisticaYSuImagen) {
    Estadisticas e;
    EXPECT_EQ(Utf8(e.ventana->windowTitle()), "ESTADISTICAS - TOMBOLERA");
    EXPECT_FALSE(e.ventana->isModal());
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "0");
    EXPECT_EQ(e.Rotulo("lblTemporadaDESDE"), "-");
    e.Pulsar("cmdConsultar");
    EXPECT_EQ(e.Cajas, Textos{"[!] No hay ningún fichero de sorteos cargado"});
    e.Cargar();
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "900");
    EXPECT_EQ(e.Rotulo("lblTemporadaHASTA"), std::to_string(e.sorteos.back().anio));
    EXPECT_EQ(e.Rotulo("lblSorteoDESDE"), std::to_string(e.sorteos.front().sorteo));
    EXPECT_EQ(Utf8(Hijo<QLineEdit>(*e.ventana, "txtFicheroASCII")->toolTip()), e.ruta);
    for (int i = 0; i < NEstadisticas; ++i) {
        SCOPED_TRACE(i);
        e.Pulsar("optFiltro_" + std::to_string(i));
        EXPECT_EQ(e.Datos(), "");
        EXPECT_TRUE(e.Grafico().Datos().barras.empty());
        EXPECT_EQ(e.Rotulo("lblDatos"), TituloEstadistica(i));
        e.Pulsar("cmdConsultar");
        EXPECT_EQ(e.Rotulo("lblSorteosConsultados"), "900");
        const auto veces = Veces(e.Datos());
        EXPECT_FALSE(veces.empty());
        EXPECT_GT(*std::max_element(veces.begin(), veces.end()), 0);
        EXPECT_EQ(Veces(e.Grafico().Datos()), veces);
        e.Ficheros = {e.carpeta.Ruta("imagen" + std::to_string(i) + ".png")};
        e.Pulsar("cmdGuardarGrafico");
        EXPECT_EQ(QImage(Q(e.carpeta.Ruta("imagen" + std::to_string(i) + ".png"))), e.Grafico().Retrato());
    }
    EXPECT_EQ(e.Cajas.size(), 1u);
}

TEST(frmEstadisticas, LaConsultaTomaSusCampos) {
    Estadisticas e;
    e.Cargar();
    e.Escribir("txtTemporadaDESDE", "1x991");
    e.Escribir("txtTemporadaHASTA", "19923");
    e.Escribir("txtSorteoDESDE", "10");
    e.Escribir("txtSorteoHASTA", "2000");
    EXPECT_EQ(Utf8(Hijo<QLineEdit>(*e.ventana, "txtTemporadaHASTA")->text()), "1992");
    EXPECT_EQ(Utf8(Hijo<QLineEdit>(*e.ventana, "txtSorteoHASTA")->text()), "200");
    auto* dia = Hijo<QComboBox>(*e.ventana, "cboDia");
    EXPECT_EQ(dia->count(), 7);
    dia->setFocus();
    for (int i = 0; i < 3; ++i) QTest::keyClick(dia, Qt::Key_Down);
    EXPECT_EQ(Utf8(dia->currentText()), "Miércoles");
    QTest::keyClick(Hijo<QLineEdit>(*e.ventana, "txtSorteoHASTA"), Qt::Key_Return);
    const auto piden = std::count_if(e.sorteos.begin(), e.sorteos.end(), [](const Sorteo& s) {
        return s.anio >= 1991 && s.anio <= 1992 && s.sorteo >= 10 && s.sorteo <= 200 && s.dia == 3;
    });
    EXPECT_GT(piden, 0);
    EXPECT_EQ(e.Rotulo("lblSorteosConsultados"), std::to_string(piden));
    e.Escribir("txtSorteoHASTA", "9");
    e.Pulsar("cmdConsultar");
    Hijo<QLineEdit>(*e.ventana, "txtTemporadaDESDE")->selectAll();
    QTest::keyClick(Hijo<QLineEdit>(*e.ventana, "txtTemporadaDESDE"), Qt::Key_Backspace);
    e.Pulsar("cmdConsultar");
    EXPECT_EQ(e.Cajas, (Textos{"[X] ERROR: Número de sorteo mínimo mayor que número de sorteo máximo",
                               "[X] ERROR: Algún campo de la consulta esta vacío"}));
}

TEST(frmEstadisticas, LaActualizacionEsperaConTodoDeshabilitado) {
    Estadisticas e;
    e.Cargar();
    e.Pulsar("cmdConsultar");
    const Sorteos nuevos = SorteosInventados(BONOLOTO, NSorteos + 1);
    std::string pedida;
    e.entorno.PedirHttp = [&](const std::string& url, std::string& cuerpo, std::string&) {
        pedida = url;
        e.entorno.CederTurno();
        EXPECT_EQ(e.Habilitados(), Textos{});
        EXPECT_TRUE(Hijo<QWidget>(*e.ventana, "picVentanaEspera")->isVisible());
        EXPECT_FALSE(e.ventana->close());
        EXPECT_FALSE(e.principal.close());
        QTest::keyClick(e.ventana, Qt::Key_Escape);
        EXPECT_TRUE(e.ventana->isVisible());
        cuerpo = RespuestaXML(BONOLOTO, nuevos);
        return true;
    };
    e.Respuestas = {true};
    e.Pulsar("cmdActualizar");
    EXPECT_NE(pedida.find("juego=BONOLOTO"), std::string::npos) << pedida;
    EXPECT_EQ(e.Cajas.size(), 2u);
    EXPECT_EQ(e.Cajas.back(), "[!] SE HAN ACTUALIZADO 901 COMBINACIONES EN EL FICHERO: " + e.ruta);
    EXPECT_EQ(e.Habilitados(), Marcos);
    EXPECT_FALSE(Hijo<QWidget>(*e.ventana, "picVentanaEspera")->isVisible());
    EXPECT_TRUE(e.principal.menuBar()->isEnabled());
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "901");
    EXPECT_EQ(e.Datos(), "");
    EXPECT_TRUE(e.Grafico().Datos().barras.empty());

    const std::string antes = LeerTodo(e.ruta);
    e.entorno.PedirHttp = [](const std::string&, std::string&, std::string& fallo) {
        fallo = "conexión cortada";
        return false;
    };
    e.Pulsar("cmdActualizar");
    EXPECT_EQ(e.Cajas.back(), "[X] ERROR AL ABRIR EL FICHERO DE ACTUALIZACION (conexión cortada)");
    EXPECT_EQ(e.Habilitados(), Marcos);
    EXPECT_EQ(LeerTodo(e.ruta), antes);
}

TEST(frmEstadisticas, LaActualizacionPorHttpsYLaQueSeCortaAMedias) {
    ServicioLocal servicio;
    Estadisticas e;
    e.Cargar();
    servicio.Conectar(e.entorno);
    const std::string respuesta = RespuestaXML(BONOLOTO, SorteosInventados(BONOLOTO, NSorteos + 50));
    servicio.Responder({.Cuerpo = respuesta, .Trozo = 4096, .Pausa = std::chrono::milliseconds(1)});
    e.Respuestas = {true};
    e.Pulsar("cmdActualizar");
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "950");
    EXPECT_EQ(servicio.Peticiones(), Textos{"/servicios/v1/xml2/eurodreams?temporada=todas&juego=BONOLOTO"});
    const std::string antes = LeerTodo(e.ruta);
    e.Cajas.clear();
    servicio.Responder({.Cuerpo = respuesta, .CortarTras = respuesta.size() / 2});
    e.Pulsar("cmdActualizar");
    ASSERT_EQ(e.Cajas.size(), 1u);
    EXPECT_TRUE(e.Cajas[0].starts_with("[X] ERROR AL ABRIR EL FICHERO DE ACTUALIZACION (")) << e.Cajas[0];
    EXPECT_EQ(LeerTodo(e.ruta), antes);
    EXPECT_EQ(e.Habilitados(), Marcos);
}

TEST(frmEstadisticas, UnTrabajoDeLaPrincipalDejaSoloLosDatos) {
    Estadisticas e;
    e.Cargar();
    e.MarcarHasta(14);
    e.principal.Pintar();
    Textos habilitados = Marcos;
    e.entorno.CederTurno = [&] {
        PintarAbiertas();
        habilitados = e.Habilitados();
        EXPECT_FALSE(e.ventana->close());
    };
    Hijo<QAbstractButton>(e.principal, "lblMenu_4")->click();
    EXPECT_EQ(habilitados, Textos{"fraDatos"});
    EXPECT_EQ(e.sesion.trabajo.Contador.Reducidas, 3003);
    EXPECT_EQ(e.Habilitados(), Marcos);
}

TEST(frmEstadisticas, HayUnaSolaYSeCierraConLaPrincipal) {
    Estadisticas e;
    e.Cargar();
    QDialog* primera = e.ventana;
    e.Abrir();
    EXPECT_EQ(e.ventana, primera);
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "900");
    e.Pulsar("imgVolver");
    EXPECT_FALSE(primera->isVisible());
    e.Abrir();
    EXPECT_NE(e.ventana, primera);
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "0");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(e.principal.findChildren<QDialog*>(Q("frmEstadisticas")), QList<QDialog*>{e.ventana});
    EXPECT_TRUE(e.principal.close());
    EXPECT_FALSE(e.ventana->isVisible());
}

TEST(frmEstadisticas, ElJuegoDaSuColorYQuitaLasDelBoleto) {
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        SCOPED_TRACE(juego);
        Estadisticas e(juego);
        auto* lista = Hijo<QComboBox>(*e.ventana, "cboTipoJuego");
        EXPECT_EQ(lista->currentIndex(), juego);
        for (int i = 0; i < NEstadisticas; ++i)
            EXPECT_EQ(Hijo<QWidget>(*e.ventana, "optFiltro_" + std::to_string(i))->isEnabled(),
                      juego != EURODREAMS || i < 8);
        const QImage imagen = lista->grab().toImage();
        const QColor fondo = imagen.pixelColor(imagen.width() / 2, 4);
        EXPECT_EQ(fondo.rgb() & 0xFFFFFF, Juegos[static_cast<size_t>(juego)].ColorFondo);
        double mejor = 0; // what stands out most are text and arrow
        for (int x = 3; x < imagen.width() - 3; ++x)
            mejor = std::max(mejor, Contraste(imagen.pixelColor(x, imagen.height() / 2), fondo));
        EXPECT_GE(mejor, 4.5);
    }
    Estadisticas e(PRIMITIVA);
    e.Pulsar("optFiltro_9");
    auto* lista = Hijo<QComboBox>(*e.ventana, "cboTipoJuego");
    lista->setFocus();
    for (int i = 0; i < 2; ++i) QTest::keyClick(lista, Qt::Key_Down);
    EXPECT_TRUE(Hijo<QRadioButton>(*e.ventana, "optFiltro_0")->isChecked());
    EXPECT_EQ(e.Rotulo("lblDatos"), TituloEstadistica(0));
    EXPECT_EQ(e.sesion.trabajo.cboTipoJuego, PRIMITIVA);
}

TEST(frmEstadisticas, UnFicheroArrastradoSeCargaYElMaloSeDice) {
    Estadisticas e;
    const auto soltar = [&](const std::string& ruta) {
        QMimeData datos;
        datos.setUrls({QUrl::fromLocalFile(Q(ruta))});
        QDragEnterEvent entrada(QPoint(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        entrada.setAccepted(false);
        QApplication::sendEvent(e.ventana, &entrada);
        if (!entrada.isAccepted()) return false;
        QDropEvent evento(QPointF(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(e.ventana, &evento);
        QTest::qWait(1);
        return true;
    };
    EXPECT_TRUE(soltar(e.ruta));
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "900");
    EXPECT_FALSE(soltar(e.carpeta.Ruta()));
    e.sesion.trabajo.FormularioBloqueado = true;
    EXPECT_FALSE(soltar(e.ruta));
    e.sesion.trabajo.FormularioBloqueado = false;
    EscribirTodo(e.carpeta.Ruta("malo.txt"), "01,02,03,04,05,50,07,08 2010 1 J\r\n");
    EXPECT_TRUE(soltar(e.carpeta.Ruta("malo.txt")));
    EXPECT_EQ(e.Cajas, Textos{"[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO ()"});
    EXPECT_EQ(e.Rotulo("lblSorteosCargados"), "0");
    EXPECT_EQ(e.Rotulo("lblSorteoHASTA"), "-");
}

TEST(frmEstadisticas, UnClicEnUnaBarraSenalaSuLineaDelTexto) {
    Estadisticas e;
    e.Cargar();
    e.Pulsar("cmdConsultar");
    GraficoBarras& grafico = e.Grafico();
    const QPointF barra = grafico.Dibujo().Rectangulo(16).center();
    QTest::mouseClick(&grafico, Qt::LeftButton, {}, barra.toPoint());
    const QString linea = Hijo<QPlainTextEdit>(*e.ventana, "txtDatos")->textCursor().selectedText();
    EXPECT_EQ(Utf8(linea), "17 ---> " + std::to_string(grafico.Datos().barras[16].valor));
    e.Pulsar("imgINIFichero");
    EXPECT_EQ(e.Datos(), "");
    EXPECT_EQ(Utf8(Hijo<QLineEdit>(*e.ventana, "txtFicheroASCII")->text()), "");
}
