// The algebra of combinations.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

#include "LogicaAlgebra.h"
#include "PanelContadores.h"
#include "Pintores.h"
#include "RejillaNumeros.h"

class frmAlgebra final : public QDialog {
  public:
    frmAlgebra(Sesion& sesion, Entorno& entorno, QWidget* padre);
    /// Closing waits for the end of what runs.
    void reject() override;

  private:
    struct PanelSistema {
        QLabel *txtFicheroASCII = nullptr, *txtApuCargadas = nullptr, *lblTipoCombinacion = nullptr;
        RejillaNumeros rejilla;
    };

    void Pintar();
    void PintarSistema(size_t i);
    QWidget* CrearSistema(size_t i);
    void CrearBotonesSistema(QBoxLayout& donde, size_t i);
    QWidget* CrearOperacion();
    void CrearTipos(QBoxLayout& donde);
    void CrearResultados(QBoxLayout& donde);
    /// Runs an effect of `boton`, which gets the focus back that the work took from it.
    void Hacer(QWidget* boton, const std::function<void()>& efecto);

    LogicaAlgebra logica;
    QWidget* controles = nullptr; ///< all that is disabled during work
    std::array<PanelSistema, 2> sistemas;
    std::array<QRadioButton*, 5> optTipo{};
    QComboBox* cboTipoOrdenacion = nullptr;
    QPlainTextEdit* txtVentanaResultados = nullptr;
    QPushButton *imgCalcular = nullptr, *imgDetener = nullptr, *imgGuardar = nullptr, *imgCopiar = nullptr,
                *imgVolver = nullptr;
    PanelEspera espera;
    Pintor pintor{[this] { Pintar(); }};
};
