// The program's one main window: ticket, conditions, counters and commands.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QMainWindow>

#include "BarraOrdenes.h"
#include "ContadorAlVuelo.h"
#include "LogicaPrincipal.h"
#include "PanelContadores.h"
#include "Pintores.h"
#include "RejillaDigitos.h"
#include "RejillaNumeros.h"

class QTreeWidget;

class frmPrincipal final : public QMainWindow {
  public:
    frmPrincipal(Sesion& sesion, Entorno& entorno);

    /// Shows every field of the state.
    void Pintar();

  protected:
    void closeEvent(QCloseEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

  private:
    QWidget* CrearJuego();
    QWidget* CrearBoleto();
    QWidget* CrearDigitos();
    void CrearPortapapeles(QWidget* boleto);
    void CrearHistoria(QWidget* boleto);
    void PintarJuego();
    void PintarBoleto();
    void PintarAlVuelo();
    void PintarHistoria(bool bloqueada);
    void Hacer(Orden orden);
    void AbrirFila(int k);
    void CambiarTipoCombinacion(int indice);

    LogicaPrincipal logica;
    BarraOrdenes barra;
    QFrame* picBanner2 = nullptr; ///< the game box
    QFrame* franja = nullptr;     ///< its strip in the game's colour
    QComboBox *cboTipoJuego = nullptr, *cboTipoCombinacion = nullptr, *cboTipoReintegro = nullptr;
    QLabel *txtFicheroASCII = nullptr, *cmdCuadroApuDirecto = nullptr, *lblTituloReintegros = nullptr;
    QCheckBox* chkReintegros = nullptr;
    QToolButton* lblMarcarDesmarcarTODOS = nullptr;
    RejillaNumeros picNumeros;
    RejillaDigitos digitos;
    QWidget* picCuadroReintegros = nullptr;
    QTreeWidget* lstFiltros = nullptr;
    PanelContadores contadores;
    ContadorAlVuelo alVuelo;
    QAction *accionDeshacer = nullptr, *accionRehacer = nullptr;
    PanelEspera espera;
    QPointer<QWidget> focoAnterior; ///< what had the focus when the window was locked
    Pintor pintor;
};
