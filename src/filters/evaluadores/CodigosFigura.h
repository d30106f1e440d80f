// Figures as small codes: the sizes of a bet's classes are added up through a table that gives every
// figure a sum of its own.
#pragma once

#include <algorithm>
#include <array>

#include "Figuras.h"
#include "Nucleos.h"
#include "Registros.h"

/// What a class of each size adds to the code of its figure.
inline constexpr std::array<uint8_t, 7> CodigoDeTamano{0, 2, 0, 3, 3, 0, 1};

/// Sizes of the classes of each figure, in the order of `NombresFiguras`.
inline constexpr std::array<std::array<uint8_t, 6>, NombresFiguras.size()> TamanosFigura{{{6},
                                                                                          {5, 1},
                                                                                          {4, 2},
                                                                                          {4, 1, 1},
                                                                                          {3, 3},
                                                                                          {3, 2, 1},
                                                                                          {3, 1, 1, 1},
                                                                                          {2, 2, 2},
                                                                                          {2, 2, 1, 1},
                                                                                          {2, 1, 1, 1, 1},
                                                                                          {1, 1, 1, 1, 1, 1}}};

/// The code of the figure with these sizes, below 16.
constexpr size_t CodigoFigura(const std::array<uint8_t, 6>& tamanos) {
    size_t codigo = 0;
    for (const uint8_t t : tamanos) codigo += CodigoDeTamano[t];
    return codigo;
}

static_assert(
    [] {
        std::array<int, 16> usos{};
        for (const auto& tamanos : TamanosFigura) ++usos[CodigoFigura(tamanos)];
        return std::all_of(usos.begin(), usos.end(), [](int n) { return n <= 1; });
    }(),
    "two figures share a code");

/// 1 for the codes of the figures that may pass. `figuras` are flags in the order of `NombresFiguras`
/// from `primera` on; a figure without a flag passes, and so do all when none is chosen.
template <class Figuras>
PorCuenta FigurasQuePasan(const Figuras& figuras, size_t primera) {
    PorCuenta pasa;
    pasa.fill(1);
    if (!EnVigor(figuras)) return pasa;
    for (size_t f = 0; f < figuras.size(); ++f) pasa[CodigoFigura(TamanosFigura[primera + f])] = figuras[f] == 1;
    return pasa;
}

/// Codes by count of one class whose counts `tabla` must allow when it is in force.
inline PorCuenta CodigosDeClase(const TablaAciertos& tabla) {
    PorCuenta codigos{};
    for (size_t c = 0; c < tabla.size(); ++c) {
        const bool pasa = tabla[c] == 1 || !EnVigor(tabla);
        codigos[c] = pasa ? CodigoDeTamano[c] : TablasClases::Rechazo;
    }
    return codigos;
}
