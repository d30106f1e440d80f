// The dialog of COEFICIENTERENTABILIDAD: two tables of percentages and the coefficients allowed.
#pragma once

#include <array>
#include <string>

#include "Entorno.h"
#include "LogicaMarco.h"
#include "PorcentajesCR.h"
#include "TablaFiltros.h"

/// Only `imgVolver` closes this dialog.
struct LogicaFiltroCR {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kCOEFICIENTERENTABILIDAD};

    TextosPorcentajes txtPorcentajesApostados{}, txtPorcentajesReales{};
    std::array<bool, 100> lstCR{};    ///< the items chosen
    bool ControlesHabilitados = true; ///< off for a moment while `imgCalcular` works

    void Abrir();
    /// The item's text in the format "0.0".
    std::string TextoItem(size_t i) const;

    void CambiarPorcentaje(TablaCR tabla, size_t i, const std::string& texto);
    void ElegirCR(size_t i, bool elegido);
    void imgINIPorcentajes(TablaCR tabla);
    void imgAbrirPorcentajes(TablaCR tabla);
    void imgGuardarPorcentajes(TablaCR tabla);

    /// Tells the first blank field, or computes nothing: coefficients of a whole system are worked out
    /// by a tool of their own.
    void imgCalcular();

    /// Puts in `condiciones` what the controls show, checked or not; what does not fit its field stays as it is.
    void Volcar(Condiciones& condiciones) const;
    /// Stores the fields, leaving the old value for a blank one, and the items chosen. A field that is
    /// no number is told, and then nothing is stored.
    bool PuedeCerrar();

  private:
    TextosPorcentajes& Textos(TablaCR tabla) {
        return tabla == TablaCR::Apostados ? txtPorcentajesApostados : txtPorcentajesReales;
    }
};
