// The whole program in a row: every command, every window and every control, in the three games.
#include <QComboBox>
#include <QMenuBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest/QTest>

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>

#include "Conductor.h"
#include "Guion.h"
#include "HistoriaInventada.h"
#include "Pintores.h"
#include "TablaFiltros.h"
#include "Ventanas.h"
#include "dialogos.h"
#include "entornoQt.h"
#include "frmEstadisticas.h"
#include "frmInforme.h"
#include "frmPrincipal.h"

namespace {

constexpr std::array<int, 12> Doce{1, 5, 8, 13, 17, 22, 26, 31, 33, 35, 38, 40};

struct Paseo : Guion {
    CarpetaTemporal carpeta;
    Conductor& conductor;
    std::unique_ptr<frmPrincipal> ventana;

    Paseo(int juego, Conductor& quien) : conductor(quien) {
        const Entorno real = EntornoQt();
        entorno.CederTurno = real.CederTurno;
        entorno.MostrarVentanaProceso = real.MostrarVentanaProceso;
        entorno.VerInforme = [](const std::string& ruta) {
            frmInforme informe(Q(ruta), QApplication::activeWindow());
            MostrarModal(informe);
        };
        entorno.Preguntar = [this](const std::string& texto) {
            Cajas.push_back("[?] " + texto);
            return true;
        };
        entorno.PedirAbrir = [this](const PeticionFichero& p) { return FicheroPara(p); };
        entorno.PedirGuardar = [this](const PeticionFichero& p) { return carpeta.Ruta(NombrePara(p)); };
        entorno.PedirVarios = [this](const PeticionFichero& p) { return Textos{FicheroPara(p), FicheroPara(p)}; };
        entorno.PedirHttp = [juego](const std::string&, std::string& cuerpo, std::string&) {
            const Sorteos sorteos = SorteosInventados(juego, 400);
            cuerpo = RespuestaXML(juego, sorteos, PremiosInventados(sorteos));
            return true;
        };
        entorno.CarpetaInformes = carpeta.Ruta();
        entorno.Servicio = "https://servicio";
        entorno.Sitio = "https://sitio";
        EscribirTodo(carpeta.Ruta("estadisticas.txt"), TextoFicheroSorteos(SorteosInventados(juego, 400)));
        std::string apuestas;
        for (int i = 1; i <= 30; ++i) apuestas += fmt::format("{:02},12,17,23,31,40\r\n", i % 9 + 1);
        EscribirTodo(carpeta.Ruta("apuestas.txt"), apuestas);
        ventana = std::make_unique<frmPrincipal>(sesion, entorno);
        ventana->show();
        // They change what the rest of the walk goes through: it uses them itself.
        conductor.Intocables = {"frmPrincipal cboTipoJuego", "frmPrincipal cboTipoCombinacion",
                                "frmPrincipal lstFiltros",
                                "frmVisualizar cmdImprimir"}; // the desktop's own print dialog
        Elegir("cboTipoJuego", juego);
    }

    static std::string NombrePara(const PeticionFichero& p) {
        const std::string& patron = p.Filtros.at(0).second;
        const bool premios = p.Titulo.find("Premios") != std::string::npos;
        const bool porcentajes = p.Titulo.find("Porcentajes") != std::string::npos;
        return (premios ? "premios" : porcentajes ? "porcentajes" : "guardado") + patron.substr(1);
    }

    // What an earlier save left, where there is one of the kind.
    std::string FicheroPara(const PeticionFichero& p) const {
        const std::string guardado = carpeta.Ruta(NombrePara(p));
        if (p.Titulo == "Abrir Fichero") return carpeta.Ruta("estadisticas.txt");
        if (p.Titulo.find("XML") != std::string::npos || p.Titulo.find("Porcentajes") != std::string::npos)
            return std::filesystem::exists(guardado) ? guardado : std::string();
        return carpeta.Ruta("apuestas.txt");
    }

    void Pulsar(const std::string& nombre) {
        conductor.Hacer([&] { QTest::mouseClick(Hijo<QAbstractButton>(*ventana, nombre), Qt::LeftButton); });
    }

    void Elegir(const std::string& lista, int indice) {
        auto* combo = Hijo<QComboBox>(*ventana, lista);
        conductor.Anotar(*combo);
        conductor.Hacer([&] {
            QTest::keyClick(combo, Qt::Key_Home);
            for (int i = 0; i < indice; ++i) QTest::keyClick(combo, Qt::Key_Down);
        });
    }

    void Menu(Orden orden) {
        const auto entrada = std::find_if(EntradasMenu.begin(), EntradasMenu.end(),
                                          [orden](const EntradaMenu& e) { return e.orden == orden; });
        conductor.Hacer([&] { Hijo<QAction>(*ventana, std::string(entrada->nombre))->trigger(); });
    }

    void Marcar() {
        for (const int n : Doce) Pulsar("lblNumero_" + std::to_string(n - 1));
        if (sesion.trabajo.JuegoActual().TieneDigito()) Pulsar("lblReintegro_3");
    }

    // Its dialog is used and leaves the condition as it was.
    void AbrirFila(int k) {
        auto* lista = Hijo<QTreeWidget>(*ventana, "lstFiltros");
        lista->setCurrentItem(lista->topLevelItem(k));
        conductor.Anotar(*lista);
        conductor.Hacer([&] { QTest::keyClick(lista, Qt::Key_Return); });
        if (sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo) QTest::keyClick(lista, Qt::Key_Space);
    }

    // It stays open beside the main window.
    void UsarEstadisticas() {
        auto* estadisticas = ventana->findChild<QDialog*>(Q("frmEstadisticas"));
        ASSERT_NE(estadisticas, nullptr);
        conductor.Usar(*estadisticas);
        conductor.Cerrar(*estadisticas);
    }

    // A fresh piece of work after everything gives the right system.
    void ComprobarEstado() {
        EXPECT_FALSE(sesion.trabajo.FormularioBloqueado);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        Menu(Orden::Nuevo);
        Marcar();
        Pulsar("lblMenu_4");
        const Contadores& c = sesion.trabajo.Contador;
        EXPECT_EQ((std::array{c.Iniciales, c.Condicionadas, c.Reducidas}), (std::array{924, 924, 924}));
        EXPECT_EQ(conductor.Rebeldes(), std::set<std::string>{});
    }
};

void RecorrerTodo(Paseo& p) {
    p.Marcar();
    for (int k = 0; k < NFilas; ++k) p.AbrirFila(k);
    p.sesion.condiciones.SUMAS.intervalos[0] = {60, 150};
    p.sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
    p.sesion.trabajo.Reduccion.TipoReduccion = 2;
    p.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    for (const char* boton : {"lblMenu_4", "lblMenu_5"}) p.Pulsar(boton);
    for (const EntradaMenu& entrada : EntradasMenu) {
        if (entrada.orden == Orden::Nuevo || entrada.orden == Orden::Salir) continue;
        p.Menu(entrada.orden);
        if (entrada.orden == Orden::Estadisticas) p.UsarEstadisticas();
    }
    p.Pulsar("lblMenu_4"); // once more, to leave by the other way
    p.Elegir("cboTipoCombinacion", 1);
    p.Elegir("cboTipoCombinacion", 2);
    p.Menu(Orden::Nuevo);
    p.conductor.Usar(*p.ventana);
    p.ComprobarEstado();
}

// The desktop's own print dialog; the stops of runs that end before anybody can press them; of the lists that
// there are for each number, those of the numbers that are not in the base or not marked; the guarantees of
// an imported base.
bool SeComprende(const std::string& control) {
    return control == "frmVisualizar cmdImprimir" || control == "frmGarantiasTOTAL optTipoGarantias_1" ||
           control.ends_with(" cmdStop") || control.ends_with(" imgDetener") ||
           control.starts_with("frmFiltroVALORACIONES cboPorcentaje_") ||
           control.starts_with("frmSistemasPropios cboOrden_");
}

// What is right to be told to somebody who presses everything in the order of the windows.
bool SeEspera(const std::string& caja) {
    constexpr std::string_view principios[] = {
        "[!] AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS",
        "[!] AVISO: DEBE SELECCIONAR MINIMO 6 PORCENTAJES DE NUMEROS",
        "[!] AVISO: FILTRO NO PERMITIDO PARA EL JUEGO EURODREAMS",
        "[!] AVISO: Se han importado 0 apuestas.",
        "[!] DEBE SELECCIONAR UN FICHERO DE LA LISTA PARA ELIMINARLO",
        "[!] SE HAN ACTUALIZADO 400 COMBINACIONES EN EL FICHERO: ",
        "[?] NO HA GUARDADO LA COMBINACION ACTUAL EN XML, ",
        "[?] Se perderán todos los cálculos, ",
        "[?] Se van actualizar los datos del fichero '",
        "[?] ¿ ESTA SEGURO QUE QUIERE BORRAR TODA LA LISTA DE FICHEROS ?",
        "[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (datos incorrectos: Apuestas con ",
        "[X] ERROR AL TRATAR EL FICHERO DE ACTUALIZACION DESDE INTERNET", // of another game
        "[X] ERROR: Cantidad de números seleccionados del sistema DESTINO distinto del sistema ORIGEN",
        "[X] ERROR: NO SE PUEDE GUARDAR, EL SISTEMA RESULTANTE TIENE 0 APUESTAS",
        "[X] ERROR: No hay apuestas generadas",
        "[X] ERROR: No hay ningún fichero de sorteos cargado",
        "[X] ERROR: No se han generado apuestas",
        "[X] ERROR: SORTEO NO ENCONTRADO",
        "[X] ERROR: TIENE QUE SELECCIONAR ALGUN COEFICIENTE DE RENTABILIDAD CON APUESTAS, HAY 0 SELECCIONADAS",
        "[i] CALCULADORA DE PREMIOS NO DISPONIBLE PARA EL JUEGO EURODREAMS",
    };
    return std::any_of(std::begin(principios), std::end(principios),
                       [&](std::string_view principio) { return caja.starts_with(principio); });
}

} // namespace

TEST(Recorrido, CadaControlDeCadaVentanaEnLosTresJuegos) {
    Conductor conductor;
    std::set<std::string> cajas;
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        SCOPED_TRACE(Juegos[static_cast<size_t>(juego)].Nombre);
        conductor.Olvidar();
        Paseo p(juego, conductor);
        RecorrerTodo(p);
        cajas.insert(p.Cajas.begin(), p.Cajas.end());
    }
    std::set<std::string> todas;
    for (const VentanaProbada& probada : TodasLasVentanas()) todas.insert(probada.nombre);
    EXPECT_EQ(conductor.Ventanas(), todas);
    auto sinUsar = conductor.SinUsar();
    std::erase_if(sinUsar, SeComprende);
    EXPECT_EQ(sinUsar, std::set<std::string>{});
    std::erase_if(cajas, SeEspera);
    EXPECT_EQ(cajas, std::set<std::string>{});
}
