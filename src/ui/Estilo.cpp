#include "Estilo.h"

#include <QPainter>
#include <QStyleOption>

#include "tema.h"

void Estilo::polish(QPalette& paleta) {
    QProxyStyle::polish(paleta);
    paleta.setColor(QPalette::PlaceholderText,
                    Mezclar(paleta.color(QPalette::Text), paleta.color(QPalette::Base), 0.7));
}

void Estilo::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                           const QWidget* widget) const {
    QProxyStyle::drawPrimitive(elemento, opcion, pintor, widget);
    // A field with the focus has the highlight's edge.
    const bool campo = elemento == PE_FrameLineEdit && !(opcion->state & State_HasFocus);
    const bool redondo = elemento == PE_IndicatorRadioButton;
    if ((!campo && !redondo && elemento != PE_IndicatorCheckBox) || baseStyle()->name() != QLatin1String("fusion"))
        return;
    const QPalette& paleta = opcion->palette;
    pintor->save();
    pintor->setRenderHint(QPainter::Antialiasing);
    pintor->setPen(Mezclar(paleta.color(QPalette::WindowText), paleta.color(QPalette::Window), 0.55));
    pintor->setBrush(Qt::NoBrush);
    const QRectF borde = QRectF(opcion->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    redondo ? pintor->drawEllipse(borde) : pintor->drawRoundedRect(borde, 2, 2);
    pintor->restore();
}
