// The spread of a table of bets over what a filter tests: what each choice would let through, seen
// before it is made.
//
//     const Reparto reparto = RepartirFiltro(kPARESIMPARES, sesion, entorno);
//     reparto.Apartados[0].Barras[2].Apuestas     // live bets with two even numbers
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Entorno.h"
#include "Sesion.h"

/// One value of what a filter tests.
struct BarraReparto {
    int32_t Valor = 0;
    std::string Etiqueta; ///< as a person reads it: "3", "2-2-1-1", "1,4"
    int32_t Apuestas = 0; ///< live bets with that value
    int32_t Pasan = 0;    ///< those of them that the whole filter lets through as it is set
};

/// One thing that a filter tests, by ascending value; every live bet is in exactly one bar. Small domains
/// have all their values, wide ones end with the last that occurs.
struct ApartadoReparto {
    std::string Nombre;
    std::vector<BarraReparto> Barras;
};

struct Reparto {
    std::vector<ApartadoReparto> Apartados;
    int32_t Total = 0; ///< live bets
    int32_t Pasan = 0;
};

/// The spread of the live bets of `TablaApuestas` over what filter `k` tests, whether its row is active or
/// not. `ApuestaEliminada` holds 0 and 1, and is left as it was. Yields as an evaluator does; a turn that
/// throws abandons the work and leaves nothing changed.
Reparto RepartirFiltro(int k, Sesion& sesion, Entorno& entorno);
