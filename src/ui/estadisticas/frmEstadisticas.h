// The statistics of the draw history: file, query, text and chart. It stays open beside the main window.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <array>
#include <functional>

#include "GraficoBarras.h"
#include "LogicaEstadisticas.h"
#include "PanelContadores.h"
#include "Pintores.h"
#include "RejillaConsulta.h"

class QBoxLayout;
class QGridLayout;
class QVBoxLayout;

class frmEstadisticas final : public QDialog {
  public:
    frmEstadisticas(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre);

    /// Refused while a job runs.
    void reject() override;

  protected:
    void resizeEvent(QResizeEvent* evento) override;

  private:
    void CrearFicheros(QVBoxLayout& caja);
    void CrearResumen(QGridLayout& rejilla);
    void CrearConsultas(QBoxLayout& columna);
    void CrearEstadisticas(QBoxLayout& columna);
    void CrearDatos(QBoxLayout& fila);
    void CrearPie(QVBoxLayout& caja);
    /// Runs an action of the logic and paints what it has changed, in the main window too.
    void Hacer(const std::function<void()>& accion);
    void SenalarLinea(size_t i);
    void Pintar();
    void PintarFicheros();
    void PintarDatos();

    LogicaEstadisticas logica;
    QGroupBox *fraFicheros = nullptr, *fraConsultas = nullptr, *fraEstadisticas = nullptr, *fraDatos = nullptr;
    QComboBox* cboTipoJuego = nullptr;
    QLineEdit* txtFicheroASCII = nullptr;
    QPushButton *cmdAbrirEstadisticas = nullptr, *cmdActualizar = nullptr, *imgINIFichero = nullptr;
    QPushButton *cmdConsultar = nullptr, *imgVolver = nullptr;
    QLabel *lblSorteosCargados = nullptr, *lblSorteosConsultados = nullptr, *lblDatos = nullptr;
    QLabel *lblTemporadaDESDE = nullptr, *lblSorteoDESDE = nullptr;
    QLabel *lblTemporadaHASTA = nullptr, *lblSorteoHASTA = nullptr;
    RejillaConsulta consulta;
    std::array<QRadioButton*, NEstadisticas> optFiltro{};
    QPlainTextEdit* txtDatos = nullptr;
    GraficoBarras* grafico = nullptr;
    PanelEspera espera;
    Pintor pintor{[this] { Pintar(); }};
};
