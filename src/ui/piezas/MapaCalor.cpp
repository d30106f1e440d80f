#include "MapaCalor.h"

#include <QHelpEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

#include "tema.h"

namespace {

constexpr QColor Papel(0xFF, 0xFD, 0xF5), Raya(0xDF, 0xC9, 0xBD), Apagada(0x6B, 0x62, 0x5E);
constexpr QColor Claro(0xFF, 0xEF, 0xC8), Medio(0xEE, 0x8A, 0x4A), Oscuro(0x7A, 0x10, 0x20);
constexpr int Margen = 8, AltoEscala = 12;

} // namespace

QColor TonoCalor(double parte) {
    parte = std::clamp(parte, 0.0, 1.0);
    return parte < 0.5 ? Mezclar(Medio, Claro, 2 * parte) : Mezclar(Oscuro, Medio, 2 * parte - 1);
}

MapaCalor::MapaCalor(const QString& descripcion) {
    setAccessibleName(descripcion);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MapaCalor::Poner(std::vector<CeldaCalor> celdas, const QString& menor, const QString& mayor) {
    celdas_ = std::move(celdas);
    menor_ = menor;
    mayor_ = mayor;
    filas_ = columnas_ = 0;
    for (const CeldaCalor& celda : celdas_) {
        filas_ = std::max(filas_, celda.fila + 1);
        columnas_ = std::max(columnas_, celda.columna + 1);
    }
    updateGeometry();
    update();
}

QSize MapaCalor::sizeHint() const {
    const int alto = fontMetrics().height();
    return {columnas_ * (alto * 3) + 2 * Margen, filas_ * (alto + 12) + alto + AltoEscala + 4 * Margen};
}

// What the scale leaves to the cells.
QRect MapaCalor::Boleto() const {
    const int escala = fontMetrics().height() + AltoEscala + 2 * Margen;
    return rect().adjusted(Margen, Margen, -Margen, -Margen - escala);
}

// Edges in whole pixels, each shared with the neighbour.
QRect MapaCalor::Lugar(const CeldaCalor& celda) const {
    const QRect boleto = Boleto();
    const auto x = [&](int c) { return boleto.left() + boleto.width() * c / columnas_; };
    const auto y = [&](int f) { return boleto.top() + boleto.height() * f / filas_; };
    return {QPoint(x(celda.columna), y(celda.fila)), QPoint(x(celda.columna + 1) - 1, y(celda.fila + 1) - 1)};
}

bool MapaCalor::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
    const auto* ayuda = static_cast<QHelpEvent*>(evento);
    const auto celda = std::find_if(celdas_.begin(), celdas_.end(),
                                    [&](const CeldaCalor& c) { return Lugar(c).contains(ayuda->pos()); });
    if (celda == celdas_.end())
        QToolTip::hideText();
    else
        QToolTip::showText(ayuda->globalPos(), celda->consejo, this, Lugar(*celda));
    return true;
}

void MapaCalor::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), Papel);
    pintor.setPen(Raya);
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
    for (const CeldaCalor& celda : celdas_) PintarCelda(pintor, celda);
    if (!menor_.isEmpty()) PintarEscala(pintor);
}

// An empty cell is an outline with its caption in small, so that it is not taken for a light shade.
void MapaCalor::PintarCelda(QPainter& pintor, const CeldaCalor& celda) const {
    const QRect lugar = Lugar(celda).adjusted(1, 1, -1, -1);
    const QColor fondo = celda.calor ? TonoCalor(*celda.calor) : Papel;
    pintor.fillRect(lugar, fondo);
    QFont letra = font();
    letra.setBold(celda.calor.has_value());
    pintor.setFont(letra);
    if (celda.calor) {
        pintor.setPen(Contraste(fondo, Qt::white) > Contraste(fondo, Qt::black) ? Qt::white : Qt::black);
    } else {
        pintor.setPen(QPen(Raya, 1, Qt::DashLine));
        pintor.drawRect(lugar.adjusted(0, 0, -1, -1));
        pintor.setPen(Apagada);
    }
    pintor.drawText(lugar, Qt::AlignCenter, celda.rotulo);
}

void MapaCalor::PintarEscala(QPainter& pintor) const {
    const int alto = fontMetrics().height();
    const QRect barra(Margen + 1, height() - Margen - alto - AltoEscala - 4, width() - 2 * Margen - 2, AltoEscala);
    QLinearGradient tonos(barra.topLeft(), barra.topRight());
    for (const double parte : {0.0, 0.5, 1.0}) tonos.setColorAt(parte, TonoCalor(parte));
    pintor.fillRect(barra, tonos);
    pintor.setFont(font());
    pintor.setPen(Qt::black);
    const QRect textos(barra.left(), barra.bottom() + 5, barra.width(), alto);
    pintor.drawText(textos, Qt::AlignLeft | Qt::AlignVCenter, menor_);
    pintor.drawText(textos, Qt::AlignRight | Qt::AlignVCenter, mayor_);
}
