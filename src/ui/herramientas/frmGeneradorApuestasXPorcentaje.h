// Random bets in which each number has its share.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include <array>

#include "LogicaGeneradorApuestasXPorcentaje.h"

class frmGeneradorApuestasXPorcentaje final : public QDialog {
  public:
    frmGeneradorApuestasXPorcentaje(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre);

    void Pintar();
    /// Nothing while bets are being generated.
    void reject() override;

  private:
    void CrearListas(QVBoxLayout& caja);
    QComboBox* CrearLista(int n);
    void CrearPedido(QVBoxLayout& caja);
    void Cargar(const std::string& ruta);

    LogicaGeneradorApuestasXPorcentaje logica;
    QWidget* listas = nullptr;
    std::array<QComboBox*, NumeroMaximoBoleto + 1> cboPorcentaje{}; ///< from 1 to the game's highest
    QLabel *lblTitNumeros = nullptr, *lblSumaPorcentajes = nullptr;
    QLineEdit* txtApuestas = nullptr;
    QPushButton *cmdCargar = nullptr, *cmdGenerar = nullptr, *imgVolver = nullptr;
    QProgressBar* barra = nullptr;
};
