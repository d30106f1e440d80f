// The dialog of VALORACIONES: ten groups, each with a mark for every number of the base and four
// intervals of the sum of a bet's marks.
#pragma once

#include <array>
#include <string>

#include "Entorno.h"
#include "LogicaMarco.h"
#include "SelectorBloque.h"
#include "TablaFiltros.h"

/// Only `imgVolver` closes this dialog. A group is stored when it passes its checks, on closing and
/// before another one is shown.
struct LogicaFiltroVALORACIONES {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kVALORACIONES};

    static constexpr int MarcaMaxima = 100;
    SelectorBloque bloque{.Paginas = RegistroVALORACIONES::Grupos};
    std::array<int, 49> cboPorcentaje{}; ///< by number - 1: the item, 0 "------", otherwise its mark
    std::array<std::string, 4> txtValoracionMinima{}, txtValoracionMaxima{};

    /// Marks that a box cannot show, of numbers outside the base or beyond 100, show as none.
    void Abrir() { MostrarGrupo(); }
    /// Each stores the group and moves one on or back; with a fault it tells it and stays.
    void cmdMASBloque();
    void cmdMENOSBloque();

    /// Whether the box of a number has the items 1 to 100: those of the base alone do.
    bool Habilitada(int numero) const;
    bool Visible(int numero) const { return numero <= sesion.trabajo.NumeroMaximo(); }
    void ElegirPorcentaje(int numero, int item);
    /// A box got the input focus.
    void EnfocarPorcentaje() { marco.ActivarFiltro(); }
    void CambiarMinima(size_t i, const std::string& texto);
    void CambiarMaxima(size_t i, const std::string& texto);
    void imgININumeros();
    void cmdAbrirPorcentajes();
    void cmdGuardarPorcentajes();

    std::string lblNumeroGrupo() const { return "GRUPO " + std::to_string(bloque.Actual); }
    /// Sum of the marks shown, behind "Suma de Valoraciones :".
    std::string lblSumaPorcentajes() const;
    /// "3 Valoraciones Seleccionadas".
    std::string lblTitNumeros() const;

    /// Puts the group in `condiciones` what the controls show, checked or not; what does not fit its field stays as it
    /// is.
    void Volcar(Condiciones& condiciones) const;
    bool PuedeCerrar() { return GuardarGrupo(); }

  private:
    GrupoValoraciones& Grupo() { return sesion.condiciones.VALORACIONES.grupo[bloque.Grupo(0)]; }
    void MostrarGrupo();
    bool GuardarGrupo();
    bool ValidarIntervalo(size_t i);
    bool FalloGrupo(const std::string& texto);
};
