#pragma once

#include <QDialog>

#include <array>

#include "CajasFigura.h"
#include "LogicaFiltroTERMINACIONES.h"
#include "MarcoFiltro.h"

class QLineEdit;

class frmFiltroTERMINACIONES final : public QDialog {
  public:
    frmFiltroTERMINACIONES(Sesion& sesion, Entorno& entorno, QWidget* padre);
    void reject() override;

  private:
    void Pintar();
    void CrearTerminados(QBoxLayout& donde);
    void CrearFiguras(QBoxLayout& donde);
    void CrearSuma(QBoxLayout& donde);

    LogicaFiltroTERMINACIONES logica;
    MarcoFiltro marco;
    std::array<QLineEdit*, 10> txtAciertos{};
    QLineEdit *txtSumaTerminacionesMinimo = nullptr, *txtSumaTerminacionesMaximo = nullptr;
    CajasFigura figuras;
};
