#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>

#include <array>

#include "LogicaFiltroCR.h"
#include "MarcoFiltro.h"
#include "Pintores.h"

class frmFiltroCR final : public QDialog {
  public:
    frmFiltroCR(Sesion& sesion, Entorno& entorno, QWidget* padre);
    /// Esc and the cross do nothing: only `imgVolver` closes.
    void reject() override {}

  private:
    using Campos = std::array<QLineEdit*, 49>;

    void Pintar();
    /// `sufijo` ends the names of the table's controls.
    void CrearTabla(QBoxLayout& donde, TablaCR tabla, const std::string& titulo, const std::string& sufijo,
                    Campos& campos);
    void CrearOrdenes(QBoxLayout& donde, TablaCR tabla, const std::string& sufijo);
    void CrearCoeficientes(QBoxLayout& donde);
    void Calcular();

    LogicaFiltroCR logica;
    MarcoFiltro marco;
    QWidget* controles = nullptr; ///< all but the frame
    Campos txtPorcentajesApostados{}, txtPorcentajesReales{};
    QListWidget* lstCR = nullptr;
    QPushButton* imgCalcular = nullptr;
    Pintor pintor{[this] { Pintar(); }};
};
