// Random systems on random bases, for the tests of the guarantees.
#pragma once

#include <algorithm>
#include <numeric>
#include <vector>

#include "Boleto.h"
#include "Guion.h"
#include "MedirGarantias.h"
#include "Rnd.h"

/// `n` different numbers of 1 to `maximo`, ascending.
inline std::vector<int> NumerosAlAzar(Azar& azar, int n, int maximo) {
    std::vector<int> todos(static_cast<size_t>(maximo));
    std::iota(todos.begin(), todos.end(), 1);
    for (int i = 0; i < n; ++i) std::swap(todos[i], todos[i + azar.Entero(maximo - i)]);
    todos.resize(static_cast<size_t>(n));
    std::sort(todos.begin(), todos.end());
    return todos;
}

/// Marks `n` numbers as the base.
inline void PonerBase(Guion& guion, Azar& azar, int n) {
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    trabajo.lblNumero.fill(false);
    for (const int numero : NumerosAlAzar(azar, n, 49)) trabajo.lblNumero[numero] = true;
    ActualizarContadores(trabajo);
    LeerBase(trabajo);
}

/// A final system of so many bets; one of `fuera` has its numbers from the whole ticket, the others from
/// the base. With many bets on a small base most of them are repeated.
inline void PonerSistema(Guion& guion, Azar& azar, int apuestas, int fuera) {
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    trabajo.ApuestasReducidas.Dimensionar(7, apuestas);
    trabajo.Contador.Reducidas = apuestas;
    for (int i = 1; i <= apuestas; ++i) {
        const bool deLaBase = azar.Entero(fuera) != 0;
        const auto numeros = NumerosAlAzar(azar, 6, deLaBase ? trabajo.NumerosBase : 49);
        for (int r = 1; r <= 6; ++r)
            trabajo.ApuestasReducidas(r, i) =
                deLaBase ? trabajo.BaseNumeros[numeros[r - 1]] : static_cast<uint8_t>(numeros[r - 1]);
    }
}

/// A conditioned system of so many bets of the base, drawn from few so that some come twice.
inline void PonerCondicionadas(Guion& guion, Azar& azar, int apuestas) {
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    trabajo.ApuestasCondicionadas.Dimensionar(6, apuestas);
    trabajo.Contador.Condicionadas = apuestas;
    for (int i = 1; i <= apuestas; ++i) {
        auto posiciones = NumerosAlAzar(azar, 6, trabajo.NumerosBase);
        if (azar.Entero(4) == 0) std::reverse(posiciones.begin(), posiciones.end());
        for (int r = 1; r <= 6; ++r) trabajo.ApuestasCondicionadas(r, i) = static_cast<uint8_t>(posiciones[r - 1]);
    }
}

inline std::vector<Mascara> MascarasDe(const EstadoTrabajo& trabajo) {
    return MascarasDelSistema(trabajo.ApuestasReducidas, trabajo.ApuestasReducidas.Apuestas(), 6, trabajo.BaseNumeros,
                              trabajo.NumerosBase);
}
