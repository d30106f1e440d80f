// A grid of cells shaded by how much each one has, with its scale below.
#pragma once

#include <QWidget>

#include <optional>
#include <vector>

/// One cell: its place, its caption, its shade from 0 (lightest) to 1, nothing for an empty one, and
/// what it tells on hover.
struct CeldaCalor {
    int fila = 0, columna = 0;
    QString rotulo;
    std::optional<double> calor;
    QString consejo;
};

/// Paper and shades of one hue that only darken, so that they can be told apart in grey as well. The
/// picture is the same under a light and a dark desktop.
class MapaCalor final : public QWidget {
  public:
    explicit MapaCalor(const QString& descripcion);

    /// Shows these cells and the captions of the scale's two ends; without captions there is no scale.
    void Poner(std::vector<CeldaCalor> celdas, const QString& menor, const QString& mayor);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    QRect Boleto() const;
    QRect Lugar(const CeldaCalor& celda) const;
    void PintarCelda(QPainter& pintor, const CeldaCalor& celda) const;
    void PintarEscala(QPainter& pintor) const;

    std::vector<CeldaCalor> celdas_;
    QString menor_, mayor_;
    int filas_ = 0, columnas_ = 0;
};

/// The shade of a part from 0 to 1.
QColor TonoCalor(double parte);
