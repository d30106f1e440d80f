// The pager of the dialogs with numbered blocks.
#pragma once

#include <string>

#include "Entorno.h"

struct SelectorBloque {
    int Paginas;       ///< pages run from 1 to this
    int PorPagina = 1; ///< groups shown on each
    int Actual = 1;

    bool cmdMASBloque() const { return Actual < Paginas; } ///< enabled
    bool cmdMENOSBloque() const { return Actual > 1; }

    /// Each moves one page; without effect where its button is disabled.
    void Mas() { Actual += cmdMASBloque(); }
    void Menos() { Actual -= cmdMENOSBloque(); }

    /// Enter in `txtNumeroGrupo`: the page of that group. A number that is none of the groups is told,
    /// and the page stays. The message names the number of pages, not that of groups.
    bool Ir(Entorno& entorno, const std::string& txtNumeroGrupo);

    /// The caption behind the field: " (Máx. 210)".
    std::string TextoMaximo() const;

    /// The group of panel `i`, both from 0.
    size_t Grupo(size_t i) const { return static_cast<size_t>((Actual - 1) * PorPagina) + i; }
};
