#pragma once

#include <QComboBox>
#include <QDialog>

#include "LogicaFiltroGRUPOSENTRELIMITES.h"
#include "MarcoFiltro.h"
#include "PaginaGrupos.h"

class frmFiltroGRUPOSENTRELIMITES final : public QDialog {
  public:
    frmFiltroGRUPOSENTRELIMITES(Sesion& sesion, Entorno& entorno, QWidget* padre);
    void reject() override;

  private:
    using Elegir = void (LogicaFiltroGRUPOSENTRELIMITES::*)(int);

    void Pintar();
    void CrearLimites();
    QComboBox* CrearLimite(std::string_view nombre, std::string_view ayuda, Elegir elegir);

    LogicaFiltroGRUPOSENTRELIMITES logica;
    MarcoFiltro marco;
    PaginaGrupos<LogicaFiltroGRUPOSENTRELIMITES> pagina{logica, [this] { Pintar(); }};
    QComboBox *cboIntervalo1 = nullptr, *cboIntervalo2 = nullptr;
};
