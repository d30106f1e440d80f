// Saving a system that a tool made as a bet file: the question for its path, the lock, the bar.
//
//     const std::string ruta = PedirRutaSistema("7_Apuestas.TOM", entorno);
//     if (!ruta.empty()) GuardarSistema(ruta, cabecera, sistema, trabajo, barra, entorno);
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Entorno.h"
#include "EstadoTrabajo.h"

/// Shows a bar of what is being written while it lives.
class BarraVisible {
  public:
    explicit BarraVisible(Espera& espera) : espera_(espera) { espera_ = {true, 0}; }
    ~BarraVisible() { espera_ = {}; }
    BarraVisible(const BarraVisible&) = delete;
    BarraVisible& operator=(const BarraVisible&) = delete;

  private:
    Espera& espera_;
};

/// The name proposed for a system of the current work: that of its file, as a bet file.
std::string NombreSistemaActual(const EstadoTrabajo& trabajo);

/// Asks for the bet file to write, proposing `nombre`; the answer ends in ".TOM". Empty when cancelled.
std::string PedirRutaSistema(const std::string& nombre, Entorno& entorno);

/// Writes all bets of the table, seven rows, as a bet file: the main window is locked and `barra` shows
/// what is written. A failure shows its box, keeps a file that was there and gives false.
bool GuardarSistema(const std::string& ruta, std::string_view cabecera, const Tabla& sistema, EstadoTrabajo& trabajo,
                    Espera& barra, Entorno& entorno);

/// The marked numbers, indexed by number, with two digits each and nothing between: the header of a
/// bet file.
std::string CabeceraDeMarcas(const std::array<bool, NumeroMaximoBoleto + 1>& marcas, int maximo);
