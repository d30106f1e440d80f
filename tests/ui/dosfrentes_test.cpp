// The two front ends on one base: the windows and the batch program tell the same.
#include <QTreeWidget>
#include <QtTest/QTest>

#include <fmt/format.h>

#include "Guion.h"
#include "Proceso.h"
#include "TablaFiltros.h"
#include "Ventanas.h"
#include "frmPrincipal.h"
#include "modXML.h"

namespace {

template <size_t N>
void Permitir(std::array<uint8_t, N>& tabla, size_t desde, size_t hasta) {
    for (size_t i = desde; i <= hasta; ++i) tabla[i] = 1;
}

void PonerTablas(Condiciones& c) {
    Permitir(c.ALTOSBAJOS.Bajos, 1, 5);
    Permitir(c.DECENAS.Decena[0], 0, 2);
    Permitir(c.DECENAS.FigurasDecenas, 3, 9);
    Permitir(c.HOMOLOGOS.HomologosAcertados, 2, 4);
    Permitir(c.PARESIMPARES.ParesActivos, 1, 5);
    Permitir(c.SEGUIDOS.NumerosSeguidos, 2, 3);
    Permitir(c.EXTERIORESINTERIORES.ExterioresInterioresActivos, 2, 5);
    Permitir(c.SUPERIORESINFERIORES.SuperioresInferioresActivos, 1, 4);
    Permitir(c.COLINDANTES.ColindantesAcertados, 0, 4);
    Permitir(c.COEFICIENTERENTABILIDAD.RangosCR, 9, 11);
    c.DISTANCIAS.Distancia[5] = {18, 45};
    c.SUMAS.intervalos[3] = {100, 190};
    c.TERMINACIONES.SumaMinima = 15;
    c.SUMASPORTRIOS.intervalosT1[0] = {12, 60};
}

void PonerGrupos(Condiciones& c) {
    GrupoNumeros& grupo = c.GRUPOS.grupo[7];
    Permitir(grupo.numeros, 1, 15);
    Permitir(grupo.aciertos, 1, 2);
    grupo.posiciones[5] = 0;
    Permitir(c.GRUPOSRELACIONADOS.subgrupos[0], 1, 12);
    Permitir(c.GRUPOSRELACIONADOS.subgrupos[1], 30, 42);
    Permitir(c.GRUPOSRELACIONADOS.condiciones[0], 1, 1);
    Permitir(c.GRUPOSRELACIONADOS.condiciones[3], 1, 3);
    Permitir(c.POSICIONES.Bola[5], 35, 48);
    c.VALORACIONES.grupo[2].intervalos[1] = {20, 34};
    for (size_t n = 1; n <= 49; ++n) c.VALORACIONES.grupo[2].valoraciones[n] = static_cast<int16_t>(n * 7 % 10);
    for (size_t g = 0; g < 3; ++g) {
        Permitir(c.GRUPOSENTRELIMITES.grupo[g].numeros, 10 * g + 5, 10 * g + 19);
        Permitir(c.GRUPOSENTRELIMITES.grupo[g].aciertos, 2, 3);
    }
    c.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES = 2;
}

// Every condition that needs no draws, on, each with something to take away.
std::string BaseConTodo() {
    Guion guion;
    guion.Marcar({1, 2, 4, 7, 9, 10, 13, 14, 18, 19, 21, 22, 25, 28, 30, 31, 33, 36, 38, 40, 41, 44, 45, 47, 49});
    guion.MarcarDigitos({6});
    Condiciones& c = guion.sesion.condiciones;
    PonerTablas(c);
    PonerGrupos(c);
    for (size_t k = 0; k < NFiltros; ++k) c.lstFiltros[k].Activo = k != kSORTEOSANTERIORES;
    return GenerarXMLBase(guion.sesion, guion.entorno);
}

// As `tombolera-lote calcular` prints it, read off the controls.
std::string CuentasDeLaVentana(const frmPrincipal& ventana) {
    const auto cuenta = [](const QString& texto) { return QString(texto).remove(QLatin1Char('.')).toStdString(); };
    const auto contador = [&](const char* nombre) { return cuenta(Hijo<QLabel>(ventana, nombre)->text()); };
    std::string texto =
        fmt::format("Iniciales: {}\nCondicionadas: {}\nReducidas: {}\nCiclos: 0\n", contador("lblApuestasIniciales"),
                    contador("lblApuestasCondicionadas"), contador("lblApuestasReducidas"));
    auto* lista = Hijo<QTreeWidget>(ventana, "lstFiltros");
    for (int k = 0; k < NFiltros; ++k)
        if (const QTreeWidgetItem* fila = lista->topLevelItem(k); fila->text(0) == Q("Sí"))
            texto +=
                fmt::format("Eliminadas {}: {}\n", TablaFiltros[static_cast<size_t>(k)].nombre, cuenta(fila->text(3)));
    return texto;
}

} // namespace

TEST(DosFrentes, TodasLasCondicionesQuitanLoMismo) {
    const CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("todo.xml"), BaseConTodo());
    Guion guion;
    frmPrincipal ventana(guion.sesion, guion.entorno);
    ventana.show();
    QApplication::setActiveWindow(&ventana);
    guion.Ficheros = {carpeta.Ruta("todo.xml")};
    QTest::keyClick(&ventana, Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(&ventana, Qt::Key_F5);
    EXPECT_EQ(guion.Cajas, Textos{});
    for (size_t k = 0; k < NFiltros; ++k)
        if (k != kSORTEOSANTERIORES) {
            EXPECT_GT(guion.sesion.condiciones.lstFiltros[k].Eliminadas.value_or(0), 0) << TablaFiltros[k].nombre;
        }
    EXPECT_GT(guion.sesion.trabajo.Contador.Reducidas, 0);

    const Resultado lote = Correr({"calcular", carpeta.Ruta("todo.xml")});
    EXPECT_EQ(lote.Estado, 0);
    EXPECT_EQ(CuentasDeLaVentana(ventana), lote.Salida);
}

// The reports of the menu and those of the orders are the same files, byte by byte.
TEST(DosFrentes, LosInformesSonLosMismosFicheros) {
    const CarpetaTemporal carpeta, otra;
    const std::string base = carpeta.Ruta("todo.xml");
    EscribirTodo(base, BaseConTodo());
    Guion guion;
    guion.entorno.CarpetaInformes = carpeta.Ruta();
    frmPrincipal ventana(guion.sesion, guion.entorno);
    ventana.show();
    QApplication::setActiveWindow(&ventana);
    guion.Ficheros = {base};
    QTest::keyClick(&ventana, Qt::Key_O, Qt::ControlModifier);
    Hijo<QAction>(ventana, "menuVerResumenFiltros")->trigger();
    QTest::keyClick(&ventana, Qt::Key_F5);
    Hijo<QAction>(ventana, "menuInformeApuestasEliminadas")->trigger();
    EnModal([](QDialog& analisis) { Hijo<QAbstractButton>(analisis, "imgVerAnalisis")->click(); });
    QTest::keyClick(&ventana, Qt::Key_F6);
    for (const auto& [orden, nombre] : {std::pair{"resumen", "TOMBOLERA_INFORME.txt"},
                                        {"eliminadas", "TOMBOLERA_RESUMEN.txt"},
                                        {"analisis", "TOMBOLERA_ANALISIS.txt"}}) {
        EXPECT_EQ(Correr({"--carpeta", otra.Ruta(), orden, base}).Estado, 0);
        EXPECT_EQ(LeerTodo(carpeta.Ruta(nombre)), LeerTodo(otra.Ruta(nombre))) << orden;
    }
}
