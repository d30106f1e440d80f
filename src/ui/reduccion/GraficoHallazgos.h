// A line of the sizes that a run has found so far, against the cycles that found them.
#pragma once

#include <QWidget>

#include "LogicaVentanaProceso.h"

class GraficoHallazgos final : public QWidget {
  public:
    /// `logica` outlives the widget.
    explicit GraficoHallazgos(const LogicaVentanaProceso& logica);

    /// Draws again if the run has gone on.
    void Refrescar();

    QSize sizeHint() const override { return {380, 200}; }
    QSize minimumSizeHint() const override { return {300, 120}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;
    bool event(QEvent* evento) override;

  private:
    QRectF Zona() const;
    QPointF Punto(double ciclo, int32_t apuestas) const;
    double UltimoCiclo() const;
    void PintarEjes(QPainter& pintor) const;
    void PintarLinea(QPainter& pintor) const;
    QString TextoEn(const QPoint& lugar) const;

    const LogicaVentanaProceso& logica;
    size_t pintados = 0;
    double cicloPintado = 0;
};
