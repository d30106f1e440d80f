// The window of a reduction while it runs and when it has ended.
#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <functional>

#include "LogicaVentanaProceso.h"
#include "RejillaPorcentajes.h"

class GraficoHallazgos;
class QVBoxLayout;

class frmVentanaProceso final : public QDialog {
  public:
    /// The run begins by itself when the window has been seen. `logica` outlives the window.
    frmVentanaProceso(LogicaVentanaProceso& logica, QWidget* padre);

    /// Esc and the frame's own button: refused unless the logic has closed.
    void reject() override;

    /// Shows every field of the logic.
    void Pintar();

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    void CrearContadores(QVBoxLayout& caja);
    void CrearCentro(QVBoxLayout& caja);
    QGroupBox* CrearMarcha();
    void CrearPie(QVBoxLayout& caja);
    void Hacer(const std::function<void()>& accion);
    void AbrirGarantias();
    void PintarMarcha();
    void PintarBotones();

    LogicaVentanaProceso& logica;
    bool arrancada = false;
    bool corria = false; ///< as painted last
    QLabel *lblApuestasInicialesVP = nullptr, *lblApuestasCondicionadasVP = nullptr, *lblApuestasVP = nullptr;
    QLabel *lblDirecto = nullptr, *lblCiclos = nullptr, *lblTiempo = nullptr, *lblVelocidad = nullptr;
    QLabel *lblCota = nullptr, *lblHuecos = nullptr, *lblEstado = nullptr;
    QProgressBar* lblProgressBar = nullptr;
    QGroupBox* fraPorcentajes = nullptr;
    RejillaPorcentajes porcentajes;
    GraficoHallazgos* grafico = nullptr;
    QPushButton *imgCalcular = nullptr, *imgDetener = nullptr, *imgVerPorcentajes = nullptr, *imgGarantias = nullptr;
    QPushButton *imgMejorar = nullptr, *imgHuecos = nullptr;
    QPushButton *imgVolver = nullptr, *imgCalculoDefinitivo = nullptr;
};
