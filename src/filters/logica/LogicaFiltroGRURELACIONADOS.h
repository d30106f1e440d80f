// The dialog of GRUPOSRELACIONADOS: 60 groups, each of six subgroups of numbers and six conditions.
#pragma once

#include <array>
#include <string>

#include "LogicaAciertos.h"
#include "MarcasDeRejilla.h"
#include "SelectorBloque.h"
#include "TablaFiltros.h"

/// Only `imgVolver` closes this dialog.
struct LogicaFiltroGRURELACIONADOS {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kGRUPOSRELACIONADOS};

    static constexpr size_t Filas = RegistroGRUPOSRELACIONADOS::PorGrupo;
    SelectorBloque bloque{.Paginas = RegistroGRUPOSRELACIONADOS::Grupos};
    std::array<std::string, Filas> txtAciertos{}; ///< a display, never parsed

    void Abrir() { MostrarGrupo(); }
    void cmdMASBloque();
    void cmdMENOSBloque();
    /// Enter in `txtNumeroGrupo`: goes to the group, or tells that there is no such group.
    void IrAGrupo(const std::string& txtNumeroGrupo);

    std::string lblNumeroGrupo() const { return "GRUPO " + std::to_string(bloque.Actual); }
    // Of row i, from 0. Subgroups and conditions are stored at once.
    std::string lblTitGrupo(size_t i) const { return "SUBGRUPO " + std::to_string(Ranura(i) + 1); }
    MarcasDeRejilla lblNumero(size_t i) { return {marco, sesion.condiciones.GRUPOSRELACIONADOS.subgrupos[Ranura(i)]}; }
    LogicaAciertos AbrirModificar(size_t i);
    void CerrarModificar(size_t i, const LogicaAciertos& aciertos);

    /// Puts in `condiciones` what the controls show, checked or not.
    void Volcar(Condiciones& condiciones) const;
    /// Tells the first fault of the 60 groups. Without one the subgroups in use move up to the first
    /// rows of their group, as the evaluator needs them; the conditions stay in their rows.
    bool PuedeCerrar();

  private:
    size_t Ranura(size_t i) const { return bloque.Grupo(0) * Filas + i; }
    void MostrarGrupo();
};
