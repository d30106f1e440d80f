// The window of ALTOSBAJOS, DECENAS, PARESIMPARES, EXTERIORES, SUPERIORES, SEGUIDOS, HOMOLOGOS and
// COLINDANTES, built from their table.
#pragma once

#include <QDialog>
#include <QLineEdit>

#include <vector>

#include "CajasFigura.h"
#include "LogicaFiltroSencillo.h"
#include "MarcoFiltro.h"

class frmFiltroSencillo final : public QDialog {
  public:
    frmFiltroSencillo(Sesion& sesion, Entorno& entorno, const FiltroSencillo& filtro, QWidget* padre);
    void reject() override;

  private:
    void Pintar();
    void CrearTablas(QBoxLayout& donde);
    void CrearCasillas(QBoxLayout& donde);
    void CrearEjemplos(QBoxLayout& donde);
    void CrearDibujo(QBoxLayout& donde);

    LogicaFiltroSencillo logica;
    MarcoFiltro marco;
    std::vector<QLineEdit*> txtAciertos;
    CajasFigura casillas;
};
