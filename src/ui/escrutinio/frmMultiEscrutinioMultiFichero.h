// The window of many bet files against a list of draws.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QListWidget>
#include <QPointer>

#include "FilaFichero.h"
#include "LogicaMultiEscrutinioMultiFichero.h"
#include "PiezasEscrutinio.h"

class QGridLayout;

class frmMultiEscrutinioMultiFichero final : public QDialog {
  public:
    frmMultiEscrutinioMultiFichero(Sesion& sesion, Entorno& entorno, QWidget* padre);

    /// Esc, the frame's own button and "Volver": asks first, and is refused during a run.
    void reject() override;

    /// Shows every field of the logic.
    void Pintar();

  private:
    void CrearSorteos(QBoxLayout& donde);
    void CrearFicheros(QBoxLayout& donde);
    void CrearResultados(QBoxLayout& donde);
    void CrearPie(QBoxLayout& caja);
    /// The files as a table for a spreadsheet; empty before a run.
    std::string Tabla() const;
    void Hacer(const std::function<void()>& accion);
    void PintarFicheros();

    LogicaMultiEscrutinioMultiFichero logica;
    QWidget *cuerpo = nullptr, *ordenes = nullptr; ///< disabled during a run, with `imgVolver`
    QPointer<QWidget> focoAnterior;
    FilaFichero sorteos;
    QListWidget* lstFicheros = nullptr;
    QLabel *lblFicheros = nullptr, *lblEstado = nullptr, *lblImportando = nullptr;
    QCheckBox* chkTipoListadoPremios = nullptr;
    QPlainTextEdit* txtInforme = nullptr;
    QPushButton *imgCopiar = nullptr, *imgVolver = nullptr;
    PanelMarcha marcha;
};
