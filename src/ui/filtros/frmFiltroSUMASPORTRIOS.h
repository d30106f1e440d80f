#pragma once

#include <QDialog>

#include <array>

#include "FilaIntervalo.h"
#include "LogicaFiltroSUMASPORTRIOS.h"
#include "MarcoFiltro.h"

class frmFiltroSUMASPORTRIOS final : public QDialog {
  public:
    frmFiltroSUMASPORTRIOS(Sesion& sesion, Entorno& entorno, QWidget* padre);
    void reject() override;

  private:
    using Cambiar = void (LogicaFiltroSUMASPORTRIOS::*)(size_t, const std::string&);

    void Pintar();
    /// The five intervals of one trio; `trio` is "T1" or "T2".
    void CrearTrio(QBoxLayout& donde, std::string_view titulo, const QString& trio, std::array<FilaIntervalo, 5>& filas,
                   Cambiar cambiarMinima, Cambiar cambiarMaxima);

    LogicaFiltroSUMASPORTRIOS logica;
    MarcoFiltro marco;
    std::array<FilaIntervalo, 5> intervalosT1{}, intervalosT2{};
};
