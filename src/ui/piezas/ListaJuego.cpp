#include "ListaJuego.h"

#include <QStyleOptionComboBox>
#include <QStylePainter>

#include "Juegos.h"
#include "TextoQt.h"
#include "tema.h"

ListaJuego::ListaJuego() {
    setObjectName(Q("cboTipoJuego"));
    setAccessibleName(Q("Juego"));
    for (const Juego& juego : Juegos) addItem(Q(juego.Nombre));
}

// Drawn here because styles make a button's colour lighter, too light for a white text.
void ListaJuego::paintEvent(QPaintEvent*) {
    const QColor fondo = QColor::fromRgb(Juegos[static_cast<size_t>(qMax(0, currentIndex()))].ColorFondo);
    const QColor texto = Contraste(Qt::black, fondo) > Contraste(Qt::white, fondo) ? Qt::black : Qt::white;
    QStyleOptionComboBox opcion;
    initStyleOption(&opcion);
    QStylePainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setOpacity(isEnabled() ? 1 : 0.5);
    pintor.setBrush(fondo);
    pintor.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2)
                             : QPen(Mezclar(palette().color(QPalette::WindowText), fondo, 0.4)));
    pintor.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    pintor.setPen(texto);
    const QRect zona = style()->subControlRect(QStyle::CC_ComboBox, &opcion, QStyle::SC_ComboBoxEditField, this);
    pintor.drawText(zona.adjusted(2, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, currentText());
    const QRect flecha = style()->subControlRect(QStyle::CC_ComboBox, &opcion, QStyle::SC_ComboBoxArrow, this);
    const QPoint centro = flecha.center();
    const QPoint puntas[] = {centro + QPoint(-4, -2), centro + QPoint(4, -2), centro + QPoint(0, 3)};
    pintor.setBrush(texto);
    pintor.setPen(Qt::NoPen);
    pintor.drawPolygon(puntas, 3);
}
