#pragma once

#include <QDialog>

#include <array>

#include "FilaIntervalo.h"
#include "LogicaFiltroSUMAS.h"
#include "MarcoFiltro.h"

class frmFiltroSUMAS final : public QDialog {
  public:
    frmFiltroSUMAS(Sesion& sesion, Entorno& entorno, QWidget* padre);
    void reject() override;

  private:
    void Pintar();

    LogicaFiltroSUMAS logica;
    MarcoFiltro marco;
    std::array<FilaIntervalo, 10> intervalos{};
};
