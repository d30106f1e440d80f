// Ctrl+C over every table of results: the whole with its headings, or what is selected.
#include <QAbstractItemView>
#include <QClipboard>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTextBlock>
#include <QTreeWidget>
#include <QtTest/QTest>

#include "Ventanas.h"
#include "dialogos.h"
#include "frmPrincipal.h"

namespace {

std::string Copiado(QWidget& control) {
    QApplication::clipboard()->clear();
    control.window()->show();
    control.window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(control.window()));
    control.setFocus();
    QTest::keyClick(&control, Qt::Key_C, Qt::ControlModifier);
    return Utf8(QApplication::clipboard()->text());
}

std::unique_ptr<QDialog> Abrir(Guion& g, const std::string& nombre) {
    for (const DialogoProbado& probado : Dialogos())
        if (probado.nombre == nombre) return probado.crear(g);
    throw std::runtime_error("no hay " + nombre);
}

} // namespace

TEST(Copia, SinSeleccionVaLaTablaEnteraConTitulos) {
    const struct {
        const char *ventana, *control, *principio;
    } casos[] = {
        {"frmEstadisticas", "txtDatos", "Números\tApariciones\n01\t"},
        {"frmGarantiasTOTAL", "tablaGarantias", "Apuestas\tPorcentajes\tde 6\tde 5"},
        {"frmAnalisis", "imgSwitch", "Número\tApuestas\tPorcentaje\n1\t"},
        {"frmEscrutar", "lstPremios", "Categoría\tApuestas\n"},
        {"frmCalculadoraPremios", "cmdCopiar", "Categoría\tNºPremios\tEuros\n6\t"},
        {"frmCoeficienteRentabilidad", "lstCR", "Coeficiente\tApuestas\n0,0\t"},
        {"frmVentanaProceso", "imgVolver", "Número\tPorcentaje\n1\t"},
        {"frmAlgebra", "txtVentanaResultados",
         "Proceso de SUMA de sistemas (quitar repetidas) terminado CORRECTAMENTE\n"
         "Nº Apuestas Sistema Sumado\t4\n"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.ventana);
        Guion g;
        const auto ventana = Abrir(g, caso.ventana);
        ventana->show();
        QWidget& control = *Hijo<QWidget>(*ventana, caso.control);
        if (auto* vista = qobject_cast<QAbstractItemView*>(&control)) vista->clearSelection();
        const std::string texto = Copiado(control);
        EXPECT_TRUE(texto.starts_with(caso.principio)) << texto;
    }
}

// Whatever shows results copies something: a new window may not forget it.
TEST(Copia, NingunaTablaCalla) {
    for (const DialogoProbado& probado : Dialogos()) {
        Guion g;
        const auto ventana = probado.crear(g);
        ventana->show();
        for (auto* vista : ventana->findChildren<QAbstractItemView*>()) {
            if (!vista->isVisible() || !vista->isEnabled() || vista->model()->rowCount() == 0) continue;
            vista->clearSelection();
            EXPECT_NE(Copiado(*vista), "") << probado.nombre << " " << Utf8(vista->objectName());
        }
        for (auto* texto : ventana->findChildren<QPlainTextEdit*>())
            if (texto->isVisible() && texto->isReadOnly() && !texto->toPlainText().isEmpty()) {
                EXPECT_NE(Copiado(*texto), "") << probado.nombre << " " << Utf8(texto->objectName());
            }
    }
}

TEST(Copia, SoloLoElegido) {
    Guion g;
    const auto estadisticas = Abrir(g, "frmEstadisticas");
    auto& texto = *Hijo<QPlainTextEdit>(*estadisticas, "txtDatos");
    QTextCursor cursor(texto.document()->findBlockByNumber(1));
    cursor.movePosition(QTextCursor::Right); // from within a line to the start of the one after the last
    cursor.setPosition(texto.document()->findBlockByNumber(3).position(), QTextCursor::KeepAnchor);
    texto.setTextCursor(cursor);
    const QString elegido = Q(Copiado(texto));
    EXPECT_EQ(elegido.count(QLatin1Char('\n')), 2);
    EXPECT_TRUE(elegido.startsWith(Q("02\t")) && elegido.contains(Q("\n03\t"))) << Utf8(elegido);

    const auto garantias = Abrir(g, "frmGarantiasTOTAL");
    auto& tabla = *Hijo<QTableWidget>(*garantias, "tablaGarantias");
    tabla.setRangeSelected({1, 0, 2, 1}, true);
    const QString celdas = tabla.item(1, 0)->text() + Q("\t") + tabla.item(1, 1)->text() + Q("\n");
    EXPECT_TRUE(Q(Copiado(tabla)).startsWith(celdas)) << Copiado(tabla);

    const auto rentabilidad = Abrir(g, "frmCoeficienteRentabilidad");
    auto& lista = *Hijo<QListWidget>(*rentabilidad, "lstCR");
    lista.setCurrentRow(15);
    EXPECT_EQ(Copiado(lista), "1,5\t" + Utf8(lista.item(15)->text().section(Q(": "), 1)) + "\n");
}

// The ticket has another use for the same key in the same window.
TEST(Copia, LaListaDeCondicionesYElBoletoCadaUnoLoSuyo) {
    Guion g;
    g.Marcar({3, 7});
    frmPrincipal ventana(g.sesion, g.entorno);
    auto& lista = *Hijo<QTreeWidget>(ventana, "lstFiltros");
    lista.setCurrentItem(lista.topLevelItem(8));
    EXPECT_EQ(Copiado(lista), "No\tSumas\t-\t-\n");
    lista.clearSelection();
    EXPECT_TRUE(Copiado(lista).starts_with("ACT\tCONDICION\tNºACT\tELIMINAN\nNo\tBajos y Altos\t")) << Copiado(lista);
    EXPECT_EQ(Copiado(*Hijo<QWidget>(ventana, "lblNumero_6")), "3, 7");
}
