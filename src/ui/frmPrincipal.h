// The program's one main window.
#pragma once

#include <QMainWindow>

#include "LogicaPrincipal.h"

class frmPrincipal final : public QMainWindow {
  public:
    frmPrincipal(Sesion& sesion, Entorno& entorno);

    /// Shows every field of the state.
    void Pintar();

  private:
    LogicaPrincipal logica;
};
