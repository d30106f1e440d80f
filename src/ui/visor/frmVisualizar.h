// The viewer of bet files, a ticket at a time.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <functional>

#include "BoletoImpreso.h"
#include "FilaFichero.h"
#include "LogicaVisualizar.h"

class frmVisualizar final : public QDialog {
  public:
    frmVisualizar(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre);

    void Pintar();
    /// Nothing while a file is read or tickets are drawn.
    void reject() override;

  private:
    QWidget* CrearTabla();
    QHBoxLayout* CrearNavegacion();
    QHBoxLayout* CrearImpresion();
    void Trabajar(const std::function<void()>& accion);
    void Imprimir();
    void Exportar();

    LogicaVisualizar logica;
    bool ocupada = false;
    FilaFichero fichero;
    QCheckBox* chkReintegros = nullptr;
    std::array<QLabel*, size_t{6} * LogicaVisualizar::FilasMaximas> lblColumna{};
    std::array<QLabel*, LogicaVisualizar::FilasMaximas> lblReintegro{};
    VistaBoleto* boleto = nullptr;
    QPushButton *imgPrimero = nullptr, *imgRetroceder = nullptr, *imgAvanzar = nullptr, *imgUltimo = nullptr;
    QLabel* lblNumeroBoleto = nullptr;
    QLineEdit *txtIrboleto = nullptr, *txtBoletoDESDE = nullptr, *txtBoletoHASTA = nullptr;
    QPushButton *cmdImprimir = nullptr, *cmdPdf = nullptr, *imgVolver = nullptr;
};
