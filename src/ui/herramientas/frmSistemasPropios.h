// A system carried over to other numbers.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>

#include <array>

#include "FilaFichero.h"
#include "LogicaSistemasPropios.h"
#include "RejillaNumeros.h"

class frmSistemasPropios final : public QDialog {
  public:
    frmSistemasPropios(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre);

    void Pintar();
    /// Nothing while a file is read or written.
    void reject() override;

  private:
    void CrearOrigen(QHBoxLayout& fila);
    void CrearDestino(QHBoxLayout& fila);
    void CrearOrden(QHBoxLayout& fila);
    void Trabajar(const std::function<void()>& accion);
    void RellenarListas();

    LogicaSistemasPropios logica;
    bool ocupada = false;
    FilaFichero fichero;
    RejillaNumeros origen, destino;
    QLabel *lblTitNumerosORIGEN = nullptr, *lblTitNumerosDESTINO = nullptr, *lblSinDestinos = nullptr;
    QPlainTextEdit* txtPorcentajesNumeros = nullptr;
    QCheckBox* chkElegirOrden = nullptr;
    QScrollArea* lista = nullptr;
    std::array<QLabel*, NumeroMaximoBoleto + 1> lblDestino{};
    std::array<QComboBox*, NumeroMaximoBoleto + 1> cboOrden{};
    QWidget* cuerpo = nullptr;
    QPushButton *imgCalculoDefinitivo = nullptr, *imgVolver = nullptr;
    QProgressBar* barra = nullptr;
};
