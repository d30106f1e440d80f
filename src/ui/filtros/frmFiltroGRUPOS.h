#pragma once

#include <QDialog>
#include <QPushButton>

#include <array>

#include "LogicaFiltroGRUPOS.h"
#include "MarcoFiltro.h"
#include "PaginaGrupos.h"

class frmFiltroGRUPOS final : public QDialog {
  public:
    frmFiltroGRUPOS(Sesion& sesion, Entorno& entorno, QWidget* padre);
    void reject() override;

  private:
    void Pintar();
    void CrearPosiciones(size_t panel, QBoxLayout& donde);

    LogicaFiltroGRUPOS logica;
    MarcoFiltro marco;
    PaginaGrupos<LogicaFiltroGRUPOS> pagina{logica, [this] { Pintar(); }};
    std::array<std::array<QPushButton*, 6>, LogicaFiltroGRUPOS::Paneles> lblAciertosG{};
};
