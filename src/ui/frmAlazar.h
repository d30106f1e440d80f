// The chooser of a random base.
#pragma once

#include <QComboBox>
#include <QDialog>

#include "LogicaAlazar.h"

class frmAlazar final : public QDialog {
  public:
    /// "Marcar" marks the numbers and closes; closing it otherwise leaves the ticket as it is.
    frmAlazar(EstadoTrabajo& trabajo, QWidget* padre);

  private:
    LogicaAlazar logica;
};
