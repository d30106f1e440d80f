// The window of guarantees and percentages of the final system.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTableWidget>

#include <array>
#include <functional>

#include "LogicaGarantias.h"

class QGridLayout;
class QVBoxLayout;

class frmGarantiasTOTAL final : public QDialog {
  public:
    frmGarantiasTOTAL(Sesion& sesion, Entorno& entorno, QWidget* padre);

    /// Refused during a run.
    void reject() override;

    /// Shows every field of the logic.
    void Pintar();

  private:
    void CrearOpciones(QVBoxLayout& caja);
    void CrearAciertos(QGridLayout& rejilla);
    void CrearOrdenes(QVBoxLayout& caja);
    void CrearAvance(QVBoxLayout& caja);
    QWidget* CrearResultados();
    QWidget* CrearExtendidas();
    void Hacer(const std::function<void()>& accion);
    void PintarOpciones();
    void PintarAvance();

    LogicaGarantias logica;
    bool corria = false; ///< as painted last
    QGroupBox* picOpciones = nullptr;
    std::array<QRadioButton*, 3> optTipoGarantias{};
    QComboBox* cboTipoGarantias = nullptr;
    QPushButton *imgCalcularGarantias = nullptr, *imgVerInformeTabulado = nullptr, *imgGarantiasExtendidas = nullptr;
    QPushButton *cmdCopiarTabla = nullptr, *cmdStop = nullptr, *imgVolver = nullptr;
    QLabel *lblTituloApuestas = nullptr, *lblEspera = nullptr;
    QProgressBar* lblProgressBar = nullptr;
    QStackedWidget* paneles = nullptr;
    QTableWidget* tabla = nullptr;
    QPlainTextEdit *txtResumen = nullptr, *txtMiniGarantias = nullptr;
    QPushButton* cmdCerrarpicMiniGarantias = nullptr;
};
