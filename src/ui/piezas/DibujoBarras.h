// How a chart of vertical bars is laid out and drawn, on the screen as in a picture of its own.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <vector>

struct Barra {
    QString etiqueta;
    int64_t valor = 0;  ///< 0 to 10^15
    bool fuerte = true; ///< a faint one stands back, as what is not chosen
    int64_t parte = 0;  ///< of a faint one, this much of its value is drawn strong
    QString lectura{};  ///< told of it instead of its value, if not empty

    bool operator==(const Barra&) const = default;
};

struct Barras {
    QString titulo;
    QString una, varias; ///< what a value counts: "aparición", "apariciones"
    std::vector<Barra> barras;

    bool operator==(const Barras&) const = default;
};

/// Strong and faint bars differ in lightness, and so in grey too.
struct ColoresBarras {
    QColor fondo, texto, raya, fuerte, tenue;
};

ColoresBarras ColoresDePantalla(const QPalette& paleta);
/// Dark on white, whatever the desktop's colours are.
ColoresBarras ColoresDePapel();

/// A chart in a rectangle. Bars begin at zero; the axis ends at a round number. A low chart tells the value of
/// the highlighted bar alone.
class DibujoBarras {
  public:
    /// `datos` outlives the drawing. `miles` groups the values.
    DibujoBarras(const Barras& datos, const QRectF& marco, const QFont& letra, char miles);

    static constexpr size_t Ninguna = static_cast<size_t>(-1);

    QRectF Rectangulo(size_t i) const;
    /// The bar whose column holds the point, `Ninguna` outside the chart.
    size_t BarraEn(const QPointF& punto) const;
    /// Where the labels go under their bars; where they are crowded only every second, third ... has
    /// one, and the others' rectangles are empty.
    std::vector<QRectF> Etiquetas() const;
    /// The marks of the axis, from zero upwards.
    std::vector<int64_t> Marcas() const;
    /// What is told of a bar: "23: 412 apariciones".
    QString Lectura(size_t i) const;

    /// `destacada` stands out and is told at the top.
    void Pintar(QPainter& pintor, const ColoresBarras& colores, size_t destacada = Ninguna) const;

  private:
    QRectF Columna(size_t i) const;
    double Altura(int64_t valor) const;
    QString Numero(int64_t valor) const;
    double AnchoMayor() const;
    bool Baja() const;
    void PintarCabecera(QPainter& pintor, size_t destacada) const;
    void PintarEje(QPainter& pintor, const ColoresBarras& colores) const;
    void PintarBarras(QPainter& pintor, const ColoresBarras& colores, size_t destacada) const;
    void PintarParte(QPainter& pintor, size_t i, const QColor& color) const;
    void PintarTextos(QPainter& pintor, const ColoresBarras& colores, size_t destacada) const;

    const Barras& datos_;
    QRectF marco_, zona_; ///< of the whole, and of the bars
    QFont letra_;
    QFontMetricsF medidas_;
    char miles_;
    int64_t paso_ = 1, tope_ = 1; ///< of the axis
};
