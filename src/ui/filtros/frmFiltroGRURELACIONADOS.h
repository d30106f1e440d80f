#pragma once

#include <QDialog>
#include <QLineEdit>

#include <array>

#include "BarraBloque.h"
#include "LogicaFiltroGRURELACIONADOS.h"
#include "MarcoFiltro.h"
#include "PanelMarcas.h"

class frmFiltroGRURELACIONADOS final : public QDialog {
  public:
    frmFiltroGRURELACIONADOS(Sesion& sesion, Entorno& entorno, QWidget* padre);
    /// Esc and the cross do nothing: only `imgVolver` closes.
    void reject() override {}

  private:
    void Pintar();
    void CrearBarra();
    void CrearSubgrupos();
    void CrearCondiciones(QBoxLayout& donde);
    void Modificar(size_t i);

    LogicaFiltroGRURELACIONADOS logica;
    MarcoFiltro marco;
    BarraBloque barra;
    std::array<PanelMarcas, LogicaFiltroGRURELACIONADOS::Filas> subgrupos{};
    std::array<QLineEdit*, LogicaFiltroGRURELACIONADOS::Filas> txtAciertos{};
};
