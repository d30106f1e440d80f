// Random bets from marked numbers.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>

#include "LogicaGeneradorApuestas.h"
#include "RejillaNumeros.h"

class frmGeneradorApuestas final : public QDialog {
  public:
    frmGeneradorApuestas(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre);

    void Pintar();
    /// Nothing while bets are being generated.
    void reject() override;

  private:
    QWidget* CrearOpciones();

    LogicaGeneradorApuestas logica;
    RejillaNumeros boleto;
    QWidget* opciones = nullptr;
    QLabel *lblTipoCombinacion = nullptr, *lblApuestasIniciales = nullptr;
    QLineEdit* txtApuestas = nullptr;
    QPushButton *cmdGenerar = nullptr, *imgVolver = nullptr;
    QProgressBar* barra = nullptr;
};
