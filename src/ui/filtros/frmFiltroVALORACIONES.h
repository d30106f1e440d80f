#pragma once

#include <QComboBox>
#include <QDialog>

#include <array>

#include "BarraBloque.h"
#include "FilaIntervalo.h"
#include "LogicaFiltroVALORACIONES.h"
#include "MarcoFiltro.h"

class frmFiltroVALORACIONES final : public QDialog {
  public:
    frmFiltroVALORACIONES(Sesion& sesion, Entorno& entorno, QWidget* padre);
    /// Esc and the cross do nothing: only `imgVolver` closes.
    void reject() override {}
    /// A box that gets the focus turns the filter on.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Pintar();
    void CrearMarcas(QBoxLayout& donde);
    void CrearIntervalos(QBoxLayout& donde);
    void CrearOrdenes(QBoxLayout& donde);
    QComboBox* CrearLista(int numero, QAbstractItemModel* marcas, QAbstractItemModel* vacia);

    LogicaFiltroVALORACIONES logica;
    MarcoFiltro marco;
    BarraBloque barra;
    std::array<QComboBox*, 49> cboPorcentaje{}; ///< null for numbers that are not shown
    std::array<FilaIntervalo, 4> intervalos{};
    QLabel *lblSumaPorcentajes = nullptr, *lblTitNumeros = nullptr;
};
