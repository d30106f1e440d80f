// The generator of random bets by percentages, frmGeneradorApuestasXPorcentaje.
#pragma once

#include <array>
#include <string>

#include "Entorno.h"
#include "EstadoTrabajo.h"

struct LogicaGeneradorApuestasXPorcentaje {
    LogicaGeneradorApuestasXPorcentaje(EstadoTrabajo& estado, Entorno& mundo) : trabajo(estado), entorno(mundo) {}

    /// Percent of the bets that are to hold each number, 1 to 100; 0 where the list shows "------".
    std::array<int, NumeroMaximoBoleto + 1> cboPorcentaje{};
    std::string txtApuestas = "1";
    Espera lblProgressBar;
    bool Generando = false; ///< the controls are disabled

    int NumerosElegidos() const;
    int SumaPorcentajes() const;
    std::string lblSumaPorcentajes() const { return std::to_string(SumaPorcentajes()); }
    std::string lblTitNumeros() const;

    /// Takes the percents of a percentage file. Values are whole and at most 100; a file with any other
    /// shows a box, gives false and changes nothing.
    bool CargarPorcentajes(const std::string& ruta);

    /// Writes the bets; the same one may come twice. Each number with a percent is in exactly its share
    /// of them, rounded down. False when a box or the chooser ended it.
    bool cmdGenerar();

    EstadoTrabajo& trabajo;
    Entorno& entorno;
};
