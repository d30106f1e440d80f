#include "RejillaValores.h"

#include <QGridLayout>
#include <QLabel>

#include "Juegos.h"
#include "TextoQt.h"
#include "tema.h"

namespace {

void Poner(QGridLayout& rejilla, int numero, QWidget* control, int fila, int columna) {
    auto* etiqueta = new QLabel(QString::number(numero));
    etiqueta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    etiqueta->setMinimumWidth(etiqueta->fontMetrics().horizontalAdvance(Q("00")) + 2);
    rejilla.addWidget(etiqueta, fila, 2 * columna);
    rejilla.addWidget(control, fila, 2 * columna + 1);
}

QGridLayout* CrearColumna(QGridLayout& donde, int columna) {
    auto* caja = new QWidget;
    auto* rejilla = new QGridLayout(caja);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setVerticalSpacing(3);
    for (int fila = 0; fila < 10; ++fila) rejilla->setRowStretch(fila, 1);
    donde.addWidget(caja, 0, columna);
    return rejilla;
}

} // namespace

QFrame* CrearRejillaValores(int maximo, const std::function<QWidget*(int)>& crear) {
    auto* papel = new QFrame;
    papel->setObjectName(Q("papel"));
    papel->setStyleSheet(EstiloBoleto());
    auto* rejilla = new QGridLayout(papel);
    rejilla->setContentsMargins(8, 8, 8, 8);
    rejilla->setVerticalSpacing(3);
    QGridLayout* columna = nullptr;
    for (int n = 1; n <= maximo; ++n) {
        QWidget* control = crear(n);
        if (maximo != NumeroMaximoBoleto) {
            Poner(*rejilla, n, control, (n - 1) / 5, (n - 1) % 5);
            continue;
        }
        if (n == 1 || n % 10 == 0) columna = CrearColumna(*rejilla, n / 10);
        if (n == 1) columna->setRowMinimumHeight(0, control->sizeHint().height());
        Poner(*columna, n, control, n % 10, 0);
    }
    return papel;
}
