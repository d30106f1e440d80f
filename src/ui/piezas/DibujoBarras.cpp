#include "DibujoBarras.h"

#include <algorithm>
#include <cmath>

#include "TextoQt.h"
#include "modGeneral.h"
#include "tema.h"

namespace {

constexpr double Margen = 8, Hueco = 6; // px around the chart, and between texts
constexpr double ParteBarra = 0.74;     // of its column
constexpr double AltoConValores = 10;   // lines of text

// The smallest of 1, 2, 5, 10, 20, ... of which at most `cuantos` reach `mayor`.
int64_t PasoRedondo(int64_t mayor, int64_t cuantos) {
    int64_t paso = 1;
    for (int i = 0; paso * cuantos < mayor; ++i) paso = i % 3 == 1 ? paso / 2 * 5 : paso * 2;
    return paso;
}

// Of the desktop's highlight, as far as it stands out from the background.
QColor ColorBarra(QColor color, const QColor& texto, const QColor& fondo) {
    constexpr double suficiente = 3;
    for (int i = 0; i < 20 && Contraste(color, fondo) < suficiente; ++i) color = Mezclar(color, texto, 0.9);
    return color;
}

ColoresBarras Colores(const QColor& fondo, const QColor& texto, const QColor& barra) {
    return {fondo, texto, Mezclar(texto, fondo, 0.2), barra, Mezclar(barra, fondo, 0.3)};
}

} // namespace

ColoresBarras ColoresDePantalla(const QPalette& paleta) {
    const QColor fondo = paleta.color(QPalette::Base), texto = paleta.color(QPalette::Text);
    return Colores(fondo, texto, ColorBarra(paleta.color(QPalette::Highlight), texto, fondo));
}

ColoresBarras ColoresDePapel() {
    return Colores(Qt::white, QColor(0x20, 0x20, 0x20), QColor(0x1F, 0x5F, 0xA8));
}

DibujoBarras::DibujoBarras(const Barras& datos, const QRectF& marco, const QFont& letra, char miles)
    : datos_(datos), marco_(marco), letra_(letra), medidas_(letra), miles_(miles) {
    const double alto = medidas_.height();
    // Title, values over the bars, bars, labels.
    const double cabecera = Baja() ? 1.5 * alto + Hueco : 2 * alto + 2 * Hueco;
    zona_ = marco.adjusted(Margen, Margen + cabecera, -Margen, -Margen - alto - Hueco / 2);
    int64_t mayor = 1;
    for (const auto& barra : datos.barras) mayor = std::max(mayor, barra.valor);
    paso_ = PasoRedondo(mayor, std::clamp(static_cast<int64_t>(zona_.height() / (3 * alto)), int64_t{1}, int64_t{8}));
    tope_ = (mayor + paso_ - 1) / paso_ * paso_;
    zona_.setLeft(zona_.left() + medidas_.horizontalAdvance(Numero(tope_)) + Hueco);
}

bool DibujoBarras::Baja() const {
    return marco_.height() < AltoConValores * medidas_.height();
}

QString DibujoBarras::Numero(int64_t valor) const {
    return Q(FormatoMiles(valor, miles_));
}

QString DibujoBarras::Lectura(size_t i) const {
    const Barra& barra = datos_.barras[i];
    if (!barra.lectura.isEmpty()) return barra.lectura;
    return barra.etiqueta + Q(": ") + Numero(barra.valor) + Q(" ") + (barra.valor == 1 ? datos_.una : datos_.varias);
}

double DibujoBarras::Altura(int64_t valor) const {
    return zona_.height() * static_cast<double>(valor) / static_cast<double>(tope_);
}

QRectF DibujoBarras::Columna(size_t i) const {
    const double ancho = zona_.width() / static_cast<double>(datos_.barras.size());
    return {zona_.left() + static_cast<double>(i) * ancho, zona_.top(), ancho, zona_.height()};
}

QRectF DibujoBarras::Rectangulo(size_t i) const {
    const QRectF columna = Columna(i);
    const double ancho = std::max(1.0, columna.width() * ParteBarra), alto = Altura(datos_.barras[i].valor);
    return {columna.center().x() - ancho / 2, zona_.bottom() - alto, ancho, alto};
}

size_t DibujoBarras::BarraEn(const QPointF& punto) const {
    if (datos_.barras.empty() || !QRectF(zona_.topLeft(), marco_.bottomRight()).contains(punto)) return Ninguna;
    const double columna = (punto.x() - zona_.left()) / zona_.width() * static_cast<double>(datos_.barras.size());
    return columna < static_cast<double>(datos_.barras.size()) ? static_cast<size_t>(columna) : Ninguna;
}

double DibujoBarras::AnchoMayor() const {
    double ancho = 0;
    for (const auto& barra : datos_.barras) ancho = std::max(ancho, medidas_.horizontalAdvance(barra.etiqueta));
    return ancho;
}

std::vector<QRectF> DibujoBarras::Etiquetas() const {
    std::vector<QRectF> etiquetas(datos_.barras.size());
    if (etiquetas.empty()) return etiquetas;
    const double cuantas = static_cast<double>(etiquetas.size());
    const size_t cada =
        static_cast<size_t>(std::clamp(std::ceil((AnchoMayor() + Hueco) * cuantas / zona_.width()), 1.0, cuantas));
    double libre = marco_.left();
    for (size_t i = 0; i < etiquetas.size(); i += cada) {
        const double ancho = medidas_.horizontalAdvance(datos_.barras[i].etiqueta) + 1;
        // Those at the edges are pushed in.
        const double x = std::max(marco_.left(), std::min(Columna(i).center().x() - ancho / 2, marco_.right() - ancho));
        if (x < libre) continue;
        etiquetas[i] = {x, zona_.bottom() + Hueco / 2, ancho, medidas_.height()};
        libre = x + ancho + Hueco / 2;
    }
    return etiquetas;
}

std::vector<int64_t> DibujoBarras::Marcas() const {
    std::vector<int64_t> marcas;
    for (int64_t marca = 0; marca <= tope_; marca += paso_) marcas.push_back(marca);
    return marcas;
}

void DibujoBarras::Pintar(QPainter& pintor, const ColoresBarras& colores, size_t destacada) const {
    pintor.fillRect(marco_, colores.fondo);
    pintor.setPen(colores.texto);
    pintor.setFont(letra_);
    PintarCabecera(pintor, destacada);
    if (datos_.barras.empty()) return;
    PintarEje(pintor, colores);
    PintarBarras(pintor, colores, destacada);
    PintarTextos(pintor, colores, destacada);
}

void DibujoBarras::PintarCabecera(QPainter& pintor, size_t destacada) const {
    const QRectF linea(marco_.left() + Margen, marco_.top() + Margen, marco_.width() - 2 * Margen, medidas_.height());
    const QString lectura = destacada < datos_.barras.size() ? Lectura(destacada) : QString();
    const double libre = linea.width() - (lectura.isEmpty() ? 0 : medidas_.horizontalAdvance(lectura) + 2 * Hueco);
    QFont negrita = letra_;
    negrita.setBold(true);
    pintor.setFont(negrita);
    pintor.drawText(linea, Qt::AlignLeft | Qt::AlignVCenter,
                    QFontMetricsF(negrita).elidedText(datos_.titulo, Qt::ElideRight, libre));
    pintor.setFont(letra_);
    pintor.drawText(linea, Qt::AlignRight | Qt::AlignVCenter, lectura);
}

void DibujoBarras::PintarEje(QPainter& pintor, const ColoresBarras& colores) const {
    const double alto = medidas_.height();
    for (const int64_t marca : Marcas()) {
        const double y = std::round(zona_.bottom() - Altura(marca));
        pintor.setPen(marca == 0 ? colores.texto : colores.raya);
        pintor.drawLine(QPointF(zona_.left(), y), QPointF(zona_.right(), y));
        pintor.setPen(colores.texto);
        pintor.drawText(QRectF(marco_.left(), y - alto / 2, zona_.left() - Hueco - marco_.left(), alto),
                        Qt::AlignRight | Qt::AlignVCenter, Numero(marca));
    }
}

void DibujoBarras::PintarBarras(QPainter& pintor, const ColoresBarras& colores, size_t destacada) const {
    for (size_t i = 0; i < datos_.barras.size(); ++i) {
        const bool elegida = i == destacada;
        if (elegida) pintor.fillRect(Columna(i), Mezclar(colores.texto, colores.fondo, 0.12));
        const QColor relleno = datos_.barras[i].fuerte ? colores.fuerte : colores.tenue;
        const QRectF barra = Rectangulo(i);
        pintor.fillRect(barra, elegida ? Mezclar(relleno, colores.texto, 0.7) : relleno);
        if (datos_.barras[i].parte > 0) PintarParte(pintor, i, colores.fuerte);
        if (datos_.barras[i].fuerte || barra.width() < 4 || barra.height() < 1) continue;
        pintor.setPen(colores.fuerte);
        pintor.drawRect(barra.adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void DibujoBarras::PintarParte(QPainter& pintor, size_t i, const QColor& color) const {
    QRectF parte = Rectangulo(i);
    parte.setTop(parte.bottom() - Altura(std::min(datos_.barras[i].parte, datos_.barras[i].valor)));
    pintor.fillRect(parte, color);
}

// Labels, and the values where each bar has room for its own.
void DibujoBarras::PintarTextos(QPainter& pintor, const ColoresBarras& colores, size_t destacada) const {
    pintor.setPen(colores.texto);
    const std::vector<QRectF> etiquetas = Etiquetas();
    for (size_t i = 0; i < etiquetas.size(); ++i)
        if (!etiquetas[i].isEmpty()) pintor.drawText(etiquetas[i], Qt::AlignCenter, datos_.barras[i].etiqueta);
    if (Baja()) return;
    double mayor = 0;
    for (const auto& barra : datos_.barras) mayor = std::max(mayor, medidas_.horizontalAdvance(Numero(barra.valor)));
    const bool todos = mayor + Hueco <= Columna(0).width();
    for (size_t i = 0; i < datos_.barras.size(); ++i) {
        if (!todos && i != destacada) continue;
        const double y = Rectangulo(i).top() - medidas_.height() - 2;
        pintor.drawText(QRectF(Columna(i).center().x() - mayor, y, 2 * mayor, medidas_.height()), Qt::AlignCenter,
                        Numero(datos_.barras[i].valor));
    }
}
