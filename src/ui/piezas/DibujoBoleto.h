// A small picture of the ticket of 49 with some numbers picked out.
#pragma once

#include <QWidget>

#include "FiltrosSencillos.h"

class DibujoBoleto final : public QWidget {
  public:
    /// `tono` says how each number from 1 to 49 is drawn; `descripcion` says it in words.
    DibujoBoleto(TonoNumero (*tono)(int numero), const QString& descripcion);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    TonoNumero (*tono_)(int);
};
