#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include "BarraBloque.h"
#include "LogicaFiltroSORTEOSANTERIORES.h"
#include "MarcoFiltro.h"

class frmFiltroSORTEOSANTERIORES final : public QDialog {
  public:
    frmFiltroSORTEOSANTERIORES(Sesion& sesion, Entorno& entorno, QWidget* padre);
    /// Esc and the cross do nothing: only `imgVolver` closes.
    void reject() override {}

  private:
    using Logica = LogicaFiltroSORTEOSANTERIORES;

    void Pintar();
    void CrearSorteos();
    void CrearOrdenes();
    void CrearTramo();
    void CrearCuentas();
    void Cargar();
    void Modificar();
    QComboBox* CrearLista(const char* nombre, const char* ayuda, int Logica::*campo, int primero,
                          const QStringList& items);

    Logica logica;
    MarcoFiltro marco;
    BarraBloque barra;
    QLabel *lblTitTipo = nullptr, *lblSorteosCargados = nullptr, *lblSorteosConsultados = nullptr;
    QLabel *lblSorteoDESDE = nullptr, *lblTemporadaDESDE = nullptr;
    QLabel *lblSorteoHASTA = nullptr, *lblTemporadaHASTA = nullptr;
    QPushButton* cmdCargar = nullptr;
    QComboBox *cboSorteoINI = nullptr, *cboAnioINI = nullptr, *cboSorteoFIN = nullptr, *cboAnioFIN = nullptr;
    QComboBox* cboDia = nullptr;
    QLineEdit *txtSorteoMINIMO = nullptr, *txtSorteoMAXIMO = nullptr, *txtAciertos = nullptr;
};
