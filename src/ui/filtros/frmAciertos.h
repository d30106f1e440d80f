// The chooser of hit counts: one cell for each value allowed.
#pragma once

#include <QDialog>
#include <QPushButton>

#include <vector>

#include "LogicaAciertos.h"

class frmAciertos final : public QDialog {
  public:
    /// `titulo` names the hit table that is being changed.
    frmAciertos(LogicaAciertos& logica, const QString& titulo, QWidget* padre);

  protected:
    /// A digit works as a click on its cell.
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Pintar();

    LogicaAciertos& logica;
    std::vector<QPushButton*> celdas_; ///< from `MinimoAcierto`
};

/// Shows the chooser; it returns when it has closed, with the choice in `aciertos`.
void ElegirAciertos(LogicaAciertos& aciertos, const QString& titulo, QWidget* padre);
