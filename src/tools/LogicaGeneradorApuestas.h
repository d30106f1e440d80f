// The generator of random bets from marked numbers, frmGeneradorApuestas.
#pragma once

#include <array>
#include <string>

#include "Entorno.h"
#include "EstadoTrabajo.h"

struct LogicaGeneradorApuestas {
    LogicaGeneradorApuestas(EstadoTrabajo& estado, Entorno& mundo) : trabajo(estado), entorno(mundo) {}

    std::array<bool, NumeroMaximoBoleto + 1> lblNumero{}; ///< marks, by number
    int cboNumeros = 6;                                   ///< how many "Azar" marks
    std::string txtApuestas = "1";                        ///< how many bets to generate
    Espera lblProgressBar;
    bool Generando = false; ///< the controls are disabled

    int NumerosMarcados() const;
    std::string lblApuestasIniciales() const; ///< C(n, 6) of the marks
    std::string lblTipoCombinacion() const;

    void PulsarNumero(int numero);
    void cmdAlazar();

    /// Writes as many bets as asked for, all different, in random order. False when a box or the
    /// chooser ended it. Holds four bytes for each bet of the marks and seven for each one asked for.
    bool cmdGenerar();

    EstadoTrabajo& trabajo;
    Entorno& entorno;
};

/// A count of bets as typed. True when it is 1 or more; otherwise its box was shown, except for a blank
/// text, which asks for nothing. What is beyond `maximo` is given as `maximo` + 1.
bool LeerApuestasPedidas(const std::string& texto, int32_t maximo, int32_t& pedidas, Entorno& entorno);
