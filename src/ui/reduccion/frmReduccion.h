// The window of the reduction's settings.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QRadioButton>

#include <array>

#include "LogicaReduccion.h"
#include "MarcoFiltro.h"

class QLineEdit;

class frmReduccion final : public QDialog {
  public:
    frmReduccion(Sesion& sesion, Entorno& entorno, QWidget* padre);
    void reject() override;

  private:
    void Pintar();
    void CrearGarantia(QBoxLayout& donde);
    void CrearAlcance(QBoxLayout& donde);
    void CrearBusqueda(QBoxLayout& donde);

    LogicaReduccion logica;
    LogicaMarco logicaMarco;
    MarcoFiltro marco;
    QComboBox *cboTipoReduccion = nullptr, *cboPorcentaje = nullptr;
    std::array<QRadioButton*, 2> optTipo{};
    QLineEdit* txtNColumnas = nullptr;
    QCheckBox *chkApuestasExactas = nullptr, *chkActivarCiclos = nullptr, *chkAleatorio = nullptr;
};
