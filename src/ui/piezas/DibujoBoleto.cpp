#include "DibujoBoleto.h"

#include <QPainter>

#include "Juegos.h"
#include "TextoQt.h"
#include "modGeneral.h"

namespace {

// Paper and ink of the printed ticket, the same under a light and a dark desktop.
constexpr QColor Papel(0xFF, 0xFD, 0xF5), Tinta(0xB8, 0x10, 0x2A), Suave(0xFB, 0xD3, 0xC9), Raya(0xDF, 0xA9, 0x9D);
constexpr int Columnas = 5, Filas = 10;

} // namespace

DibujoBoleto::DibujoBoleto(TonoNumero (*tono)(int), const QString& descripcion) : tono_(tono) {
    setAccessibleName(descripcion);
    setToolTip(descripcion);
    setFixedSize(sizeHint());
}

QSize DibujoBoleto::sizeHint() const {
    const int lado = fontMetrics().height() + 5;
    return {Columnas * (lado + 4) + 1, Filas * lado + 1};
}

// Each column is a ten: number n stands in column n / 10 and row n % 10, and the first cell is empty.
void DibujoBoleto::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    const int ancho = (width() - 1) / Columnas, alto = (height() - 1) / Filas;
    pintor.fillRect(0, 0, ancho * Columnas, alto * Filas, Papel);
    for (int n = 0; n <= NumeroMaximoBoleto; ++n) {
        const QRect celda(n / 10 * ancho, n % 10 * alto, ancho, alto);
        const TonoNumero tono = n == 0 ? TonoNumero::Normal : tono_(n);
        if (tono != TonoNumero::Normal) pintor.fillRect(celda, tono == TonoNumero::Central ? Tinta : Suave);
        pintor.setPen(tono == TonoNumero::Central ? QColor(Qt::white) : Tinta);
        if (n > 0) pintor.drawText(celda, Qt::AlignCenter, Q(Formato00(n)));
        pintor.setPen(Raya);
        pintor.drawRect(celda);
    }
}
