#pragma once

#include <QDialog>

#include <array>

#include "FilaIntervalo.h"
#include "LogicaFiltroDISTANCIAS.h"
#include "MarcoFiltro.h"

class frmFiltroDISTANCIAS final : public QDialog {
  public:
    frmFiltroDISTANCIAS(Sesion& sesion, Entorno& entorno, QWidget* padre);
    void reject() override;

  private:
    void Pintar();

    LogicaFiltroDISTANCIAS logica;
    MarcoFiltro marco;
    std::array<FilaIntervalo, 6> distancias{};
};
