// The window of a bet file against a slice of the history.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>

#include "FilaFichero.h"
#include "LogicaMultiEscrutinioEstadistico.h"
#include "PiezasEscrutinio.h"

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
    QLineEdit* CrearCampo(std::string_view nombre, std::string_view ayuda, int cifras, std::string& campo);
    void CrearResultados(QBoxLayout& donde);
    void CrearPie(QBoxLayout& caja);
    void Hacer(const std::function<void()>& accion);

    LogicaMultiEscrutinioEstadistico logica;
    QWidget* cuerpo = nullptr; ///< all but the stop: disabled during a run
    QPointer<QWidget> focoAnterior;
    QComboBox *cboTipoJuego = nullptr, *cboDia = nullptr;
    QLabel *lblSorteosCargados = nullptr, *lblTemporadaDESDE = nullptr, *lblSorteoDESDE = nullptr;
    QLabel *lblTemporadaHASTA = nullptr, *lblSorteoHASTA = nullptr;
    FilaFichero fichero;
    QLineEdit *txtTemporadaDESDE = nullptr, *txtTemporadaHASTA = nullptr;
    QLineEdit *txtSorteoDESDE = nullptr, *txtSorteoHASTA = nullptr;
    QPlainTextEdit* txtDatos = nullptr;
    QPushButton* imgCopiar = nullptr;
    PanelMarcha marcha;
};
