#pragma once

#include <QDialog>
#include <QListWidget>

#include "LogicaFiltroCR.h"
#include "MarcoFiltro.h"
#include "Pintores.h"
#include "TablaPorcentajesCR.h"

class frmFiltroCR final : public QDialog {
  public:
    frmFiltroCR(Sesion& sesion, Entorno& entorno, QWidget* padre);
    /// Esc and the cross do nothing: only `imgVolver` closes.
    void reject() override {}

  private:
    void Pintar();
    void CrearCoeficientes(QBoxLayout& donde);
    void Calcular();

    LogicaFiltroCR logica;
    MarcoFiltro marco;
    QWidget* controles = nullptr; ///< all but the frame
    CamposPorcentajes txtPorcentajesApostados{}, txtPorcentajesReales{};
    QListWidget* lstCR = nullptr;
    QPushButton* imgCalcular = nullptr;
    Pintor pintor{[this] { Pintar(); }};
};
