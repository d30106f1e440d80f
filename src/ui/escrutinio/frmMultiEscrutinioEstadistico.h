// The window of a bet file against a slice of the history.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QPointer>

#include "FilaFichero.h"
#include "LogicaMultiEscrutinioEstadistico.h"
#include "PiezasEscrutinio.h"
#include "RejillaConsulta.h"

class frmMultiEscrutinioEstadistico final : public QDialog {
  public:
    frmMultiEscrutinioEstadistico(Sesion& sesion, Entorno& entorno, QWidget* padre);

    /// Esc, the frame's own button and "Cerrar": refused during a run.
    void reject() override;

    /// Shows every field of the logic.
    void Pintar();

  private:
    void CrearSorteos(QBoxLayout& columna);
    void CrearApuestas(QBoxLayout& columna);
    void CrearConsulta(QBoxLayout& columna);
    void CrearResultados(QBoxLayout& donde);
    void CrearPie(QBoxLayout& caja);
    /// The draws as a table for a spreadsheet; empty before a run.
    std::string Tabla() const;
    void Hacer(const std::function<void()>& accion);

    LogicaMultiEscrutinioEstadistico logica;
    QWidget *cuerpo = nullptr, *ordenes = nullptr; ///< disabled during a run, with `imgVolver`
    QPointer<QWidget> focoAnterior;
    QComboBox* cboTipoJuego = nullptr;
    QLabel *lblSorteosCargados = nullptr, *lblTemporadaDESDE = nullptr, *lblSorteoDESDE = nullptr;
    QLabel *lblTemporadaHASTA = nullptr, *lblSorteoHASTA = nullptr;
    FilaFichero fichero;
    RejillaConsulta consulta;
    QPlainTextEdit* txtDatos = nullptr;
    QPushButton *imgCopiar = nullptr, *imgVolver = nullptr;
    PanelMarcha marcha;
};
