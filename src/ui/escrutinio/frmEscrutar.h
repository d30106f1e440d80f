// The window of the check against one draw.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QTimer>
#include <QTreeWidget>

#include <functional>

#include "FilaFichero.h"
#include "LogicaEscrutar.h"
#include "RejillaNumeros.h"

class QVBoxLayout;

class frmEscrutar final : public QDialog {
  public:
    frmEscrutar(Sesion& sesion, Entorno& entorno, QWidget* padre);

    /// Esc, the frame's own button and "Cerrar": refused while bets are read or checked.
    void reject() override;

    /// Shows every field of the logic.
    void Pintar();

  private:
    void CrearSorteo(QBoxLayout& donde);
    void CrearElegidos(QGridLayout& rejilla);
    void CrearApuestas(QBoxLayout& donde);
    void CrearResultados(QBoxLayout& donde);
    void CrearPie(QVBoxLayout& caja);
    void Hacer(const std::function<void()>& accion);
    void AbrirCalculadora();
    void PintarSorteo();
    void PintarApuestas();
    void PintarResultados();

    LogicaEscrutar logica;
    QWidget* cuerpo = nullptr; ///< all the controls, disabled during a run
    QPointer<QWidget> focoAnterior;
    RejillaNumeros picNumeros;
    QLabel *lblTipoCombinacion = nullptr, *lblComplementario = nullptr, *lblReintegro = nullptr;
    QComboBox *cboComplementario = nullptr, *cboReintegro = nullptr;
    std::array<QRadioButton*, 2> optModo{};
    QLabel* lblApuestasActuales = nullptr;
    FilaFichero fichero;
    QCheckBox* chkReintegros = nullptr;
    QTreeWidget* lstPremios = nullptr;
    QLabel *lblApuestas = nullptr, *lblBoletos = nullptr, *lblEscrutando = nullptr;
    QTimer* Timer1 = nullptr; ///< recolours `lblEscrutando` during a run
};
