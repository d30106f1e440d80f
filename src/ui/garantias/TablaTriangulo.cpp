#include "TablaTriangulo.h"

#include <QHeaderView>

#include "CopiarTabla.h"
#include "TextoQt.h"

namespace {

constexpr int Clases = 7, ColumnaApuestas = 0, ColumnaPorcentajes = 1, ColumnaDe6 = 2, AltoFila = 26;

int Fila(int clase) {
    return 6 - clase;
}

int Columna(int aciertos) {
    return ColumnaDe6 + 6 - aciertos;
}

void PonerTexto(QTableWidget& tabla, int fila, int columna, const std::string& texto) {
    QTableWidgetItem& celda = *tabla.item(fila, columna);
    const QString nuevo = Q(texto);
    if (celda.text() == nuevo) return;
    celda.setText(nuevo);
    celda.setToolTip(nuevo);
}

// A draw of a class has no bets of more hits than the class: those cells are no part of the triangle.
void CrearCeldas(QTableWidget& tabla) {
    for (int c = 0; c < Clases; ++c) {
        for (int columna = 0; columna < tabla.columnCount(); ++columna) {
            auto* celda = new QTableWidgetItem;
            celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            celda->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            tabla.setItem(Fila(c), columna, celda);
        }
        for (int h = c + 1; h < Clases; ++h) {
            tabla.item(Fila(c), Columna(h))->setFlags(Qt::NoItemFlags);
            tabla.item(Fila(c), Columna(h))->setBackground(tabla.palette().window());
        }
        tabla.setVerticalHeaderItem(Fila(c), new QTableWidgetItem(QString::number(c) + Q(" aciertos")));
        tabla.setRowHeight(Fila(c), AltoFila);
    }
    tabla.verticalHeaderItem(Fila(1))->setText(Q("1 acierto"));
}

void AjustarMedidas(QTableWidget& tabla) {
    const QFontMetrics letra = tabla.fontMetrics();
    const auto ancho = [&letra](const char* texto) { return letra.horizontalAdvance(Q(texto)) + 14; };
    tabla.setColumnWidth(ColumnaApuestas, ancho("13983816"));
    tabla.setColumnWidth(ColumnaPorcentajes, ancho("100.000% 6 si 6"));
    for (int h = 0; h < Clases; ++h) tabla.setColumnWidth(Columna(h), ancho("999999-999999"));
    tabla.verticalHeader()->setFixedWidth(ancho("6 aciertos"));
    tabla.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabla.horizontalHeader()->setSectionResizeMode(ColumnaApuestas, QHeaderView::Fixed);
    tabla.horizontalHeader()->setSectionResizeMode(ColumnaPorcentajes, QHeaderView::Fixed);
    const int marco = 2 * tabla.frameWidth();
    tabla.setMinimumWidth(tabla.verticalHeader()->width() + ancho("13983816") + ancho("100.000% 6 si 6") +
                          Clases * ancho("999999-999999") + marco);
    tabla.setFixedHeight(tabla.horizontalHeader()->sizeHint().height() + Clases * AltoFila + marco);
}

} // namespace

QTableWidget* CrearTablaTriangulo() {
    auto* tabla = new QTableWidget(Clases, ColumnaDe6 + Clases);
    tabla->setObjectName(Q("tablaGarantias"));
    tabla->setAccessibleName(Q("Resultados por clase y nivel de aciertos"));
    tabla->setHorizontalHeaderLabels(
        {Q("Apuestas"), Q("Porcentajes"), Q("de 6"), Q("de 5"), Q("de 4"), Q("de 3"), Q("de 2"), Q("de 1"), Q("de 0")});
    tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla->setTabKeyNavigation(false);
    tabla->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tabla->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tabla->setCornerButtonEnabled(false);
    tabla->horizontalHeader()->setHighlightSections(false);
    tabla->verticalHeader()->setHighlightSections(false);
    tabla->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    CrearCeldas(*tabla);
    AjustarMedidas(*tabla);
    HabilitarCopia(*tabla);
    return tabla;
}

void PintarTablaTriangulo(QTableWidget& tabla, const LogicaGarantias& logica) {
    const ResultadosGarantias& resultados = logica.resultados;
    const auto visibles = logica.Visibles();
    for (int c = 0; c < Clases; ++c) {
        tabla.setRowHidden(Fila(c), !visibles[c]);
        tabla.setColumnHidden(Columna(c), !visibles[c]);
        PonerTexto(tabla, Fila(c), ColumnaApuestas, resultados.lblApu[c]);
        PonerTexto(tabla, Fila(c), ColumnaPorcentajes, resultados.lblPor[c]);
        for (int h = 0; h <= c; ++h) PonerTexto(tabla, Fila(c), Columna(h), resultados.lblde[c][h]);
    }
}
