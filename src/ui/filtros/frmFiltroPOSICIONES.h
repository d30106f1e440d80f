#pragma once

#include <QDialog>

#include <array>

#include "LogicaFiltroPOSICIONES.h"
#include "MarcoFiltro.h"
#include "PanelMarcas.h"

class frmFiltroPOSICIONES final : public QDialog {
  public:
    frmFiltroPOSICIONES(Sesion& sesion, Entorno& entorno, QWidget* padre);

  private:
    void Pintar();

    LogicaFiltroPOSICIONES logica;
    MarcoFiltro marco;
    std::array<PanelMarcas, LogicaFiltroPOSICIONES::Bolas> bolas{};
};
