#include "tema.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

#include "TextoQt.h"

// The macro declares a function of the global scope.
static void PrepararRecursos() {
    Q_INIT_RESOURCE(tombolera);
}

namespace {

QByteArray LeerRecurso(std::string_view nombre) {
    static const bool preparados = (PrepararRecursos(), true);
    QFile fichero(Q(":/iconos/") + Q(nombre) + Q(".svg"));
    return preparados && fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
}

QPixmap Dibujar(const QByteArray& svg, int lado) {
    QPixmap imagen(lado, lado);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    QSvgRenderer(svg).render(&pintor);
    return imagen;
}

double Luminancia(const QColor& color) {
    const auto lineal = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) + 0.0722 * lineal(color.blueF());
}

} // namespace

double Contraste(const QColor& uno, const QColor& otro) {
    const double a = Luminancia(uno), b = Luminancia(otro);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Resalte(const QPalette& paleta) {
    constexpr double suficiente = 4.5;
    const QColor texto = paleta.color(QPalette::HighlightedText);
    const QColor lejos = Luminancia(texto) > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
    QColor fondo = paleta.color(QPalette::Highlight);
    for (int i = 0; i < 20 && Contraste(fondo, texto) < suficiente; ++i) fondo = Mezclar(fondo, lejos, 0.93);
    return fondo;
}

bool EsOscura(const QPalette& paleta) {
    return paleta.color(QPalette::Window).lightness() < paleta.color(QPalette::WindowText).lightness();
}

QColor Mezclar(const QColor& una, const QColor& otra, double parte) {
    const auto mezcla = [parte](int a, int b) { return qRound(a * parte + b * (1 - parte)); };
    return {mezcla(una.red(), otra.red()), mezcla(una.green(), otra.green()), mezcla(una.blue(), otra.blue())};
}

QIcon IconoLinea(std::string_view nombre, const QPalette& paleta) {
    const QByteArray svg = LeerRecurso(nombre);
    QIcon icono;
    for (const auto& [modo, grupo] :
         {std::pair{QIcon::Normal, QPalette::Active}, {QIcon::Disabled, QPalette::Disabled}}) {
        QByteArray coloreado = svg;
        coloreado.replace("currentColor", paleta.color(grupo, QPalette::ButtonText).name().toUtf8());
        for (const int lado : {24, 36, 48, 72}) icono.addPixmap(Dibujar(coloreado, lado), modo);
    }
    return icono;
}

QIcon IconoPrograma() {
    const QByteArray svg = LeerRecurso("programa");
    QIcon icono;
    for (const int lado : {16, 32, 48, 128}) icono.addPixmap(Dibujar(svg, lado));
    return icono;
}

QString EstiloBoleto() {
    return Q(R"(
        QFrame#papel { background: #fffdf5; border: 1px solid #d8b4a8; border-radius: 6px; }
        QFrame#papel QLabel { background: transparent; color: #7a1020; }
        QFrame#papel QToolButton {
            background: #fffdf5; color: #b8102a; border: 1px solid #dfa99d; border-radius: 4px; padding: 0px; }
        QFrame#papel QToolButton:hover { background: #fbe4dc; }
        QFrame#papel QToolButton:checked { background: #c2102b; color: #ffffff; border-color: #8c0b1f; }
        QFrame#papel QToolButton:checked:hover { background: #a80e25; }
        QFrame#papel QToolButton:focus { border: 2px solid #14305e; }
        QFrame#papel QToolButton:disabled { color: #a9938c; border-color: #e6d5cf; }
        QFrame#papel QToolButton:checked:disabled { background: #c98a92; color: #ffffff; }
        QFrame#papel QToolButton[serie="true"] { background: #f6e9df; border: 1px solid transparent; color: #7a1020; }
        QFrame#papel QToolButton[serie="true"]:hover { background: #efd3c6; }
        QFrame#papel QToolButton[serie="true"]:focus { border: 2px solid #14305e; }
    )");
}
