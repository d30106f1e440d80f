#include "tema.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

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

} // namespace

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
