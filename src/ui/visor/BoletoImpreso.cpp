#include "BoletoImpreso.h"

#include <algorithm>

#include "TextoQt.h"

namespace {

// Paper and print of the ticket, the same under a light and a dark desktop.
constexpr QColor Papel(0xFF, 0xFD, 0xF5), Tinta(0xB8, 0x10, 0x2A), Linea(0xE3, 0xB9, 0xB4), Blanco(0xFF, 0xFF, 0xFF);

// Measures of a block in cells of its numbers: a heading, the grid, a line for the digit.
struct Molde {
    int columnasBloques, filasBloques; ///< of the ticket
    int columnas = 5, filas;           ///< of a block's numbers
    static constexpr double Cabecera = 1.2, Pie = 1.4, Hueco = 0.8;

    double Ancho() const { return columnasBloques * (columnas + Hueco) + Hueco; }
    double Alto() const { return filasBloques * (Cabecera + filas + Pie + Hueco) + Hueco; }
};

Molde MoldeDe(const Juego& juego) {
    const bool columnasDeDiez = juego.NumeroMaximo == NumeroMaximoBoleto;
    return {.columnasBloques = juego.ApuestasPorBoleto / 2, .filasBloques = 2, .filas = columnasDeDiez ? 10 : 8};
}

// Where number n stands in its block, in cells.
QPoint Lugar(int n, const Juego& juego) {
    return juego.NumeroMaximo == NumeroMaximoBoleto ? QPoint(n / 10, n % 10) : QPoint((n - 1) % 5, (n - 1) / 5);
}

void PonerLetra(QPainter& pintor, double alto, bool negrita) {
    QFont letra = pintor.font();
    letra.setPixelSize(std::max(1, static_cast<int>(alto)));
    letra.setBold(negrita);
    pintor.setFont(letra);
}

void DibujarNumero(QPainter& pintor, const QRectF& celda, int n, bool lleno) {
    const QRectF cuadro =
        celda.adjusted(celda.width() * 0.07, celda.height() * 0.07, -celda.width() * 0.07, -celda.height() * 0.07);
    pintor.setPen(lleno ? Tinta : Linea);
    pintor.setBrush(lleno ? QBrush(Tinta) : QBrush(Qt::NoBrush));
    pintor.drawRect(cuadro);
    pintor.setPen(lleno ? Blanco : Tinta);
    PonerLetra(pintor, celda.height() * 0.55, lleno);
    pintor.drawText(cuadro, Qt::AlignCenter, QString::number(n));
}

void DibujarBloque(QPainter& pintor, QPointF origen, double lado, const Molde& molde, size_t indice,
                   const ApuestaDeBoleto* apuesta, const Juego& juego) {
    const double ancho = molde.columnas * lado;
    pintor.setPen(Tinta);
    PonerLetra(pintor, lado * 0.75, true);
    pintor.drawText(QRectF(origen, QSizeF(ancho, Molde::Cabecera * lado)), Qt::AlignLeft | Qt::AlignVCenter,
                    QString::number(indice + 1));
    const QPointF rejilla = origen + QPointF(0, Molde::Cabecera * lado);
    for (int n = 1; n <= juego.NumeroMaximo; ++n) {
        const QPoint lugar = Lugar(n, juego);
        const QRectF celda(rejilla + QPointF(lugar) * lado, QSizeF(lado, lado));
        const bool lleno = apuesta != nullptr &&
                           std::find(apuesta->numeros.begin(), apuesta->numeros.end(), n) != apuesta->numeros.end();
        DibujarNumero(pintor, celda, n, lleno);
    }
    if (apuesta == nullptr || apuesta->digito < 0 || !juego.TieneDigito()) return;
    pintor.setPen(Tinta);
    PonerLetra(pintor, lado * 0.7, true);
    pintor.drawText(QRectF(rejilla + QPointF(0, molde.filas * lado), QSizeF(ancho, Molde::Pie * lado)),
                    Qt::AlignRight | Qt::AlignVCenter,
                    QString::fromStdString(std::string(juego.Palabra)) + QLatin1Char(' ') +
                        QString::number(apuesta->digito));
}

} // namespace

void DibujarBoleto(QPainter& pintor, const QRectF& donde, const std::vector<ApuestaDeBoleto>& apuestas,
                   const Juego& juego) {
    const Molde molde = MoldeDe(juego);
    const double lado = std::min(donde.width() / molde.Ancho(), donde.height() / molde.Alto());
    const QRectF papel(donde.topLeft(), QSizeF(molde.Ancho() * lado, molde.Alto() * lado));
    pintor.fillRect(papel, Papel);
    pintor.setPen(Linea);
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRect(papel.adjusted(0, 0, -1, -1));
    for (size_t i = 0; i < static_cast<size_t>(juego.ApuestasPorBoleto); ++i) {
        const auto columna = static_cast<double>(i % static_cast<size_t>(molde.columnasBloques));
        const auto fila = static_cast<double>(i / static_cast<size_t>(molde.columnasBloques));
        const QPointF origen(papel.left() + (Molde::Hueco + columna * (molde.columnas + Molde::Hueco)) * lado,
                             papel.top() + fila * (Molde::Cabecera + molde.filas + Molde::Pie + Molde::Hueco) * lado);
        DibujarBloque(pintor, origen, lado, molde, i, i < apuestas.size() ? &apuestas[i] : nullptr, juego);
    }
}

VistaBoleto::VistaBoleto(const Juego& juego) : juego_(juego) {
    setObjectName(Q("boleto"));
    setAccessibleName(Q("Boleto relleno"));
    setMinimumSize(sizeHint());
}

void VistaBoleto::Mostrar(std::vector<ApuestaDeBoleto> apuestas) {
    apuestas_ = std::move(apuestas);
    update();
}

QSize VistaBoleto::sizeHint() const {
    constexpr int lado = 18;
    const Molde molde = MoldeDe(juego_);
    return {static_cast<int>(molde.Ancho() * lado), static_cast<int>(molde.Alto() * lado)};
}

void VistaBoleto::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing, false);
    DibujarBoleto(pintor, QRectF(rect()), apuestas_, juego_);
}
