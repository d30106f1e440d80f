// The utility of the coefficient of profitability.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "LogicaCoeficienteRentabilidad.h"
#include "PanelContadores.h"
#include "Pintores.h"
#include "TablaPorcentajesCR.h"

class frmCoeficienteRentabilidad final : public QDialog {
  public:
    frmCoeficienteRentabilidad(Sesion& sesion, Entorno& entorno, QWidget* padre);
    /// Closing waits for the end of what runs.
    void reject() override;

  private:
    void Pintar();
    void PintarLista();
    void CrearFichero(QBoxLayout& donde);
    void CrearCoeficientes(QBoxLayout& donde);
    void CrearPie(QBoxLayout& donde);
    /// Runs an effect of `boton`, which gets the focus back that the work took from it.
    void Hacer(QWidget* boton, const std::function<void()>& efecto);

    LogicaCoeficienteRentabilidad logica;
    QWidget* controles = nullptr; ///< all that is disabled during work
    QLabel *txtFicheroASCII = nullptr, *lblApuCargadas = nullptr, *lblApuestasSeleccionadasCR = nullptr;
    CamposPorcentajes txtPorcentajesApostados{}, txtPorcentajesReales{};
    QListWidget* lstCR = nullptr;
    QPushButton *cmdDesdeFichero = nullptr, *imgCalcular = nullptr, *imgDetener = nullptr,
                *imgGrabarApuestasCR = nullptr, *imgCopiar = nullptr, *imgVolver = nullptr;
    PanelEspera espera;
    Pintor pintor{[this] { Pintar(); }};
};
