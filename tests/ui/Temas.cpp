#include "Temas.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>

#include <algorithm>
#include <cmath>

#include "TextoQt.h"
#include "tema.h"

namespace {

constexpr double Suficiente = 4.5;

struct Zona {
    QRect lugar; ///< within the control
    QString texto;
};

// The place of the text within a box or a field, which has a frame and signs of its own.
Zona ZonaDe(const QAbstractButton& boton) {
    const QRect todo = boton.rect();
    if (!qobject_cast<const QCheckBox*>(&boton) && !qobject_cast<const QRadioButton*>(&boton))
        return {todo.adjusted(4, 4, -4, -4), boton.text()};
    QStyleOptionButton opcion;
    opcion.initFrom(&boton);
    opcion.text = boton.text();
    const bool redondo = qobject_cast<const QRadioButton*>(&boton) != nullptr;
    return {boton.style()->subElementRect(redondo ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents,
                                          &opcion, &boton),
            boton.text()};
}

Zona ZonaDe(const QComboBox& lista) {
    QStyleOptionComboBox opcion;
    opcion.initFrom(&lista);
    return {lista.style()->subControlRect(QStyle::CC_ComboBox, &opcion, QStyle::SC_ComboBoxEditField, &lista),
            lista.currentText()};
}

Zona ZonaDe(const QGroupBox& caja) {
    QStyleOptionGroupBox opcion;
    opcion.initFrom(&caja);
    opcion.text = caja.title();
    opcion.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
    return {caja.style()->subControlRect(QStyle::CC_GroupBox, &opcion, QStyle::SC_GroupBoxLabel, &caja), caja.title()};
}

std::vector<Zona> ZonasDe(const QAbstractItemView& vista) {
    if (qobject_cast<const QHeaderView*>(&vista)) return {{vista.rect(), Q("cabecera")}};
    std::vector<Zona> zonas;
    const QPoint interior = vista.viewport()->pos();
    for (int f = 0; f < vista.model()->rowCount(); ++f)
        for (int c = 0; c < vista.model()->columnCount(); ++c) {
            const QModelIndex indice = vista.model()->index(f, c);
            if (indice.flags() & Qt::ItemIsEnabled)
                zonas.push_back({vista.visualRect(indice).translated(interior), indice.data().toString()});
        }
    return zonas;
}

std::vector<Zona> ZonasDeTexto(const QWidget& control) {
    if (const auto* e = qobject_cast<const QLabel*>(&control)) return {{e->rect(), e->text()}};
    if (const auto* b = qobject_cast<const QAbstractButton*>(&control)) return {ZonaDe(*b)};
    if (const auto* l = qobject_cast<const QLineEdit*>(&control))
        return {{l->rect().adjusted(4, 4, -4, -4), l->text() + l->placeholderText()}};
    if (const auto* c = qobject_cast<const QComboBox*>(&control)) return {ZonaDe(*c)};
    if (const auto* g = qobject_cast<const QGroupBox*>(&control)) return {ZonaDe(*g)};
    if (const auto* v = qobject_cast<const QAbstractItemView*>(&control)) return ZonasDe(*v);
    if (const auto* t = qobject_cast<const QPlainTextEdit*>(&control))
        return {{t->viewport()->geometry(), t->toPlainText()}};
    return {};
}

// Of the colour that fills most of the place and the one in it that stands out most: a letter's strokes
// have their full colour somewhere, whatever its edges are.
double ContrasteEn(const QImage& imagen, const QRect& lugar) {
    QHash<QRgb, int> veces;
    for (int y = lugar.top(); y <= lugar.bottom(); ++y)
        for (int x = lugar.left(); x <= lugar.right(); ++x) ++veces[imagen.pixel(x, y)];
    QRgb fondo = 0;
    for (auto i = veces.cbegin(); i != veces.cend(); ++i)
        if (i.value() > veces.value(fondo)) fondo = i.key();
    double mayor = 1;
    for (auto i = veces.cbegin(); i != veces.cend(); ++i)
        mayor = std::max(mayor, Contraste(QColor(fondo), QColor(i.key())));
    return mayor;
}

} // namespace

QPalette PaletaOscura() {
    QPalette p;
    const QColor fondo(0x2B, 0x2B, 0x2E), campo(0x1E, 0x1E, 0x20), texto(0xEE, 0xEE, 0xEE);
    p.setColor(QPalette::Window, fondo);
    p.setColor(QPalette::Button, QColor(0x3A, 0x3A, 0x3E));
    p.setColor(QPalette::Base, campo);
    p.setColor(QPalette::AlternateBase, fondo);
    for (const auto rol : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::ToolTipText})
        p.setColor(rol, texto);
    for (const auto rol : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        p.setColor(QPalette::Disabled, rol, QColor(0x85, 0x85, 0x88));
    p.setColor(QPalette::ToolTipBase, fondo);
    p.setColor(QPalette::PlaceholderText, QColor(0xB0, 0xB0, 0xB0));
    p.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xE4));
    p.setColor(QPalette::HighlightedText, Qt::white);
    return p;
}

std::vector<std::string> TextosApagados(QWidget& ventana) {
    const QImage imagen = ventana.grab().toImage().convertToFormat(QImage::Format_RGB32);
    std::vector<std::string> apagados;
    for (const QWidget* control : ventana.findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled() || control->window() != &ventana) continue;
        const QRect seVe = control->visibleRegion().boundingRect();
        for (const Zona& zona : ZonasDeTexto(*control)) {
            const QRect lugar = (zona.lugar & seVe).translated(control->mapTo(&ventana, QPoint()));
            if (zona.texto.trimmed().isEmpty() || lugar.height() < control->fontMetrics().ascent() / 2) continue;
            const double contraste = ContrasteEn(imagen, lugar & imagen.rect());
            if (contraste < Suficiente)
                apagados.push_back(Utf8(control->objectName() + Q(" \"") + zona.texto.left(30) + Q("\" ")) +
                                   std::to_string(contraste));
        }
    }
    return apagados;
}
