// The analysis of the final system: figures on the ticket, and the same as a heat map.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include "LogicaAnalisis.h"
#include "RejillaPorcentajes.h"

class MapaCalor;

class frmAnalisis final : public QDialog {
  public:
    /// Analyses the first `apuestas` bets of the final system.
    frmAnalisis(const Sesion& sesion, Entorno& entorno, int32_t apuestas, QWidget* padre);

  private:
    void CrearCentro(QVBoxLayout& caja);
    void CrearPie(QVBoxLayout& caja);
    void PonerConsejos();
    void Copiar() const;
    void Pintar();
    void PintarMapa();

    LogicaAnalisis logica;
    RejillaPorcentajes numeros, digitos;
    MapaCalor* mapa = nullptr;
    QPushButton* imgSwitch = nullptr;
};
