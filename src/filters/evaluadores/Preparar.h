// What the evaluators share to prepare the tables of their kernels.
#pragma once

#include "EstadoTrabajo.h"
#include "Nucleos.h"
#include "Registros.h"

/// `valor(n)` for the number n in each position of the base; 0 for positions that it lacks.
template <class Valor>
PorPosicion DeCadaPosicion(const EstadoTrabajo& trabajo, Valor valor) {
    PorPosicion tabla{};
    for (size_t p = 1; p <= static_cast<size_t>(trabajo.NumerosBase); ++p)
        tabla[p] = static_cast<uint8_t>(valor(static_cast<int>(trabajo.BaseNumeros[p])));
    return tabla;
}

/// The number in each position of the base.
inline PorPosicion NumeroDeCadaPosicion(const EstadoTrabajo& trabajo) {
    return DeCadaPosicion(trabajo, [](int n) { return n; });
}

/// 1 for the counts that a hit table allows; all that it knows when it is not in force.
inline PorCuenta AciertosQuePasan(const TablaAciertos& tabla) {
    PorCuenta pasa{};
    for (size_t c = 0; c < tabla.size(); ++c) pasa[c] = tabla[c] == 1 || !EnVigor(tabla);
    return pasa;
}

/// Eliminates the bets whose count of numbers of a class the hit table, which is in force, does not
/// allow. `esDeClase(n)` tells whether number n belongs to it.
template <class EsDeClase>
int32_t FiltrarCuenta(EstadoTrabajo& trabajo, Entorno& entorno, const PorCuenta& pasa, EsDeClase esDeClase) {
    const TablasCuenta tablas{DeCadaPosicion(trabajo, esDeClase), pasa};
    return Barrer(trabajo, entorno, [&](const Tramo& tramo) { return NucleoCuenta(tramo, tablas); });
}
