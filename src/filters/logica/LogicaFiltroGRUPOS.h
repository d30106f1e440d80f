// The dialog of GRUPOS: 210 groups of numbers, three on a page, each with the hits it allows and the
// positions that count.
#pragma once

#include <array>
#include <string>

#include "LogicaAciertos.h"
#include "MarcasDeRejilla.h"
#include "SelectorBloque.h"
#include "TablaFiltros.h"

struct LogicaFiltroGRUPOS {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kGRUPOS};

    static constexpr size_t Paneles = 3;
    SelectorBloque bloque{.Paginas = 70, .PorPagina = Paneles};
    std::array<std::string, Paneles> txtAciertos{}; ///< a display, never parsed

    void Abrir() { MostrarPagina(); }
    void cmdMASBloque();
    void cmdMENOSBloque();
    /// Enter in `txtNumeroGrupo`: goes to the group's page, or tells that there is no such group.
    void IrAGrupo(const std::string& txtNumeroGrupo);

    // Of panel i, from 0. All of it is stored at once.
    std::string lblTitGrupo(size_t i) const { return "GRUPO " + std::to_string(bloque.Grupo(i) + 1); }
    MarcasDeRejilla lblNumero(size_t i) { return {marco, Grupo(i).numeros}; }
    bool lblAciertosG(size_t i, size_t posicion) { return Grupo(i).posiciones[posicion] == 1; }
    void PulsarPosicion(size_t i, size_t posicion);
    LogicaAciertos AbrirModificar(size_t i) { return AbrirAciertos(Grupo(i).aciertos, 0); }
    void CerrarModificar(size_t i, const LogicaAciertos& aciertos);

    /// Tells the first fault of the 210 groups; the page stays as it is.
    bool PuedeCerrar();

  private:
    GrupoNumeros& Grupo(size_t i) { return sesion.condiciones.GRUPOS.grupo[bloque.Grupo(i)]; }
    void MostrarPagina();
};
