// A ticket drawn as one fills it in, on the screen and on paper.
#pragma once

#include <QPainter>
#include <QWidget>

#include <vector>

#include "Juegos.h"
#include "LogicaVisualizar.h"

/// Draws the ticket as large as fits in `donde`, with a block of numbers for each bet it has room for;
/// the numbers of the bets are filled.
void DibujarBoleto(QPainter& pintor, const QRectF& donde, const std::vector<ApuestaDeBoleto>& apuestas,
                   const Juego& juego);

/// The ticket in a window.
class VistaBoleto final : public QWidget {
  public:
    explicit VistaBoleto(const Juego& juego);

    void Mostrar(std::vector<ApuestaDeBoleto> apuestas);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    const Juego& juego_;
    std::vector<ApuestaDeBoleto> apuestas_;
};
