#include "GraficoHallazgos.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "TextoQt.h"
#include "modGeneral.h"
#include "tema.h"

namespace {

constexpr double Radio = 3;
constexpr int Margen = 6;

} // namespace

GraficoHallazgos::GraficoHallazgos(const LogicaVentanaProceso& l) : logica(l) {
    setObjectName(Q("graficoHallazgos"));
    setAccessibleName(Q("Sistemas encontrados"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void GraficoHallazgos::Refrescar() {
    if (pintados == logica.Hallazgos.size() && cicloPintado == logica.CicloActual) return;
    pintados = logica.Hallazgos.size();
    cicloPintado = logica.CicloActual;
    update();
}

// The first cycles find most, so that cycles stand by their logarithm; a decade at the least.
double GraficoHallazgos::UltimoCiclo() const {
    return std::max({10.0, logica.CicloActual, logica.Hallazgos.empty() ? 0 : logica.Hallazgos.back().Ciclo});
}

QRectF GraficoHallazgos::Zona() const {
    const int alto = fontMetrics().height();
    const int mayor = logica.Hallazgos.empty() ? 0 : logica.Hallazgos.front().Apuestas;
    const int ancho = fontMetrics().horizontalAdvance(Q(FormatoMiles(mayor, logica.entorno.SeparadorMiles)));
    return QRectF(rect()).adjusted(ancho + 2 * Margen, alto / 2.0 + Margen, -2 * Margen, -alto - 2 * Margen);
}

// Sizes only fall: the first is the top of the chart and the last the bottom, a single one the middle.
QPointF GraficoHallazgos::Punto(double ciclo, int32_t apuestas) const {
    const QRectF zona = Zona();
    const double mayor = logica.Hallazgos.front().Apuestas, menor = logica.Hallazgos.back().Apuestas;
    const double altura = mayor > menor ? (apuestas - menor) / (mayor - menor) : 0.5;
    const double avance = std::log(std::max(ciclo, 1.0)) / std::log(UltimoCiclo());
    return {zona.left() + zona.width() * avance, zona.bottom() - zona.height() * altura};
}

void GraficoHallazgos::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    if (logica.Hallazgos.empty()) {
        pintor.drawText(rect(), Qt::AlignCenter, Q("Todavía no hay ningún sistema"));
        return;
    }
    PintarEjes(pintor);
    PintarLinea(pintor);
}

void GraficoHallazgos::PintarEjes(QPainter& pintor) const {
    const QRectF zona = Zona();
    const QColor texto = palette().color(QPalette::WindowText);
    const QColor raya = Mezclar(texto, palette().color(QPalette::Window), 0.25);
    const double alto = fontMetrics().height();
    for (const int32_t apuestas : {logica.Hallazgos.front().Apuestas, logica.Hallazgos.back().Apuestas}) {
        const double y = Punto(1, apuestas).y();
        pintor.setPen(raya);
        pintor.drawLine(QPointF(zona.left(), y), QPointF(zona.right(), y));
        pintor.setPen(texto);
        pintor.drawText(QRectF(0, y - alto / 2, zona.left() - Margen, alto), Qt::AlignRight | Qt::AlignVCenter,
                        Q(FormatoMiles(apuestas, logica.entorno.SeparadorMiles)));
    }
    const QString titulo = Q("ciclo");
    const QRectF pie(zona.left(), zona.bottom() + Margen, zona.width(), alto);
    pintor.drawText(pie, Qt::AlignRight | Qt::AlignVCenter, titulo);
    double libre = 0, hasta = pie.right() - fontMetrics().horizontalAdvance(titulo) - Margen;
    for (double ciclo = 1; ciclo <= UltimoCiclo(); ciclo *= 10) {
        const QString cifra = Q(FormatoMiles(static_cast<int64_t>(ciclo), logica.entorno.SeparadorMiles));
        const double ancho = fontMetrics().horizontalAdvance(cifra), x = Punto(ciclo, 0).x();
        if (x - ancho / 2 < libre || x + ancho / 2 > hasta) continue;
        pintor.drawText(QRectF(x - ancho / 2, pie.top(), ancho + 1, alto), Qt::AlignCenter, cifra);
        libre = x + ancho / 2 + Margen;
    }
}

// Steps: a size stands until a smaller one is found.
void GraficoHallazgos::PintarLinea(QPainter& pintor) const {
    QPolygonF linea;
    for (const auto& hallazgo : logica.Hallazgos) {
        const QPointF punto = Punto(hallazgo.Ciclo, hallazgo.Apuestas);
        if (!linea.isEmpty()) linea << QPointF(punto.x(), linea.last().y());
        linea << punto;
    }
    linea << QPointF(Punto(std::max(logica.CicloActual, logica.Hallazgos.back().Ciclo), 0).x(), linea.last().y());
    const QColor color = palette().color(QPalette::Highlight);
    pintor.setPen(QPen(color, 2));
    pintor.drawPolyline(linea);
    pintor.setBrush(color);
    for (const auto& hallazgo : logica.Hallazgos)
        pintor.drawEllipse(Punto(hallazgo.Ciclo, hallazgo.Apuestas), Radio, Radio);
}

// The size that stood at the cycle under the mouse.
QString GraficoHallazgos::TextoEn(const QPoint& lugar) const {
    const LogicaVentanaProceso::Hallazgo* elegido = nullptr;
    for (const auto& hallazgo : logica.Hallazgos)
        if (elegido == nullptr || Punto(hallazgo.Ciclo, hallazgo.Apuestas).x() <= lugar.x() + Radio)
            elegido = &hallazgo;
    if (elegido == nullptr) return {};
    const char miles = logica.entorno.SeparadorMiles;
    return Q(FormatoMiles(elegido->Apuestas, miles) + " apuestas en el ciclo " +
             FormatoMiles(static_cast<int64_t>(elegido->Ciclo), miles));
}

bool GraficoHallazgos::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip) return QWidget::event(evento);
    const auto& ayuda = *static_cast<const QHelpEvent*>(evento);
    QToolTip::showText(ayuda.globalPos(), TextoEn(ayuda.pos()), this);
    return true;
}
