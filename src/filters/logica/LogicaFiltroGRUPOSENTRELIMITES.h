// The dialog of GRUPOSENTRELIMITES: 210 groups of numbers, three on a page, and how many must hold.
#pragma once

#include <array>
#include <string>

#include "LogicaAciertos.h"
#include "MarcasDeRejilla.h"
#include "SelectorBloque.h"
#include "TablaFiltros.h"

struct LogicaFiltroGRUPOSENTRELIMITES {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kGRUPOSENTRELIMITES};

    static constexpr size_t Paneles = 3;
    SelectorBloque bloque{.Paginas = 70, .PorPagina = Paneles};
    std::array<std::string, Paneles> txtAciertos{}; ///< a display, never parsed
    int cboIntervalo1 = 0, cboIntervalo2 = 210;     ///< items 0 to 210, each its own value

    /// Limits that the boxes do not have, as a base file may bring them, show as the nearest item.
    void Abrir();
    void cmdMASBloque();
    void cmdMENOSBloque();
    /// Enter in `txtNumeroGrupo`: goes to the group's page, or tells that there is no such group.
    void IrAGrupo(const std::string& txtNumeroGrupo);
    void ElegirIntervalo1(int item);
    void ElegirIntervalo2(int item);

    // Of panel i, from 0. All of it is stored at once.
    std::string lblTitGrupo(size_t i) const { return "GRUPO " + std::to_string(bloque.Grupo(i) + 1); }
    MarcasDeRejilla lblNumero(size_t i) { return {marco, Grupo(i).numeros}; }
    LogicaAciertos AbrirModificar(size_t i) { return AbrirAciertos(Grupo(i).aciertos, 0); }
    void CerrarModificar(size_t i, const LogicaAciertos& aciertos);

    /// Puts in `condiciones` what the controls show, checked or not; what does not fit its field stays as it is.
    void Volcar(Condiciones& condiciones) const;
    /// Tells the first fault of the 210 groups; without one stores the limits and tells if they are
    /// the wrong way round. The page stays as it is.
    bool PuedeCerrar();

  private:
    GrupoLimites& Grupo(size_t i) { return sesion.condiciones.GRUPOSENTRELIMITES.grupo[bloque.Grupo(i)]; }
    void MostrarPagina();
};
