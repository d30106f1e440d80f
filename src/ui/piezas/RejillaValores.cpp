#include "RejillaValores.h"

#include <QGridLayout>
#include <QLabel>

#include "Juegos.h"
#include "TextoQt.h"
#include "tema.h"

namespace {

// Where the number 0 would be, as high as its neighbours.
void PonerHueco(QGridLayout& rejilla, const QWidget& control) {
    auto* hueco = new QWidget;
    hueco->setFixedHeight(control.sizeHint().height());
    rejilla.addWidget(new QLabel, 0, 0);
    rejilla.addWidget(hueco, 0, 1);
}

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
        if (n == 1) PonerHueco(*columna, *control);
        Poner(*columna, n, control, n % 10, 0);
    }
    return papel;
}

QPalette ColoresSobrePapel(const QPalette& base) {
    QPalette paleta = base;
    const QColor tinta(0x1C, 0x1C, 0x1C), apagada(0x6B, 0x62, 0x5E);
    for (const auto rol : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        paleta.setColor(rol, tinta);
        paleta.setColor(QPalette::Disabled, rol, apagada);
    }
    for (const auto rol : {QPalette::Base, QPalette::Window, QPalette::Button}) paleta.setColor(rol, Qt::white);
    return paleta;
}
