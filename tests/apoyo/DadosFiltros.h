// Random bases, bets and records, and the comparison of a fast evaluator with its literal version.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <iosfwd>

#include "Rnd.h"
#include "TablaFiltros.h"

/// Random records: each part may be empty, and a flag may hold what a base file can put there.
struct Dados {
    Azar azar;

    bool UnaDe(int32_t n) { return azar.Entero(n) == 0; }
    int16_t Entre(int32_t minimo, int32_t maximo) {
        return static_cast<int16_t>(minimo + azar.Entero(maximo - minimo + 1));
    }
    template <class Marcas>
    void Llenar(Marcas& marcas) {
        const bool vacia = UnaDe(3);
        const int32_t densidad = Entre(1, 3);
        for (auto& marca : marcas)
            marca = vacia ? 0 : static_cast<uint8_t>(UnaDe(12) ? Entre(2, 255) : UnaDe(densidad));
    }
    template <class Intervalos>
    void LlenarIntervalos(Intervalos& intervalos, int minimo, int maximo) {
        for (Intervalo& i : intervalos) {
            i = {};
            if (UnaDe(2)) continue;
            i = {Entre(minimo, maximo), Entre(minimo, maximo)};
            if (i.Minimo > i.Maximo && !UnaDe(10)) std::swap(i.Minimo, i.Maximo);
            if (UnaDe(10)) i.Minimo = Entre(-32768, 32767);
            if (UnaDe(10)) i.Maximo = Entre(-32768, 32767);
        }
    }
};

struct CasoEvaluador {
    const char* nombre;
    Evaluador rapido;
    int32_t (*literal)(Sesion&);
    void (*sortear)(Dados&, Condiciones&);
};

/// A random base and bets of it, a fifth of them dead; some bets come in any order, as an imported file
/// may bring them.
void SortearSistema(Dados& s, EstadoTrabajo& trabajo);

/// All bets of the numbers 1 to `n`, in order and alive.
void Expandir(EstadoTrabajo& trabajo, int16_t n);

/// Runs `probar` with the vector code of each processor that it is compiled for and this machine has,
/// the scalar twins among them.
void EnCadaProcesador(const std::function<void()>& probar);

void PrintTo(const CasoEvaluador& caso, std::ostream* salida);

/// Expects both to eliminate the same bets of random systems, some imported with bets in any order,
/// for every processor that the vector code is compiled for and this machine has.
void CompararConLiteral(const CasoEvaluador& caso);
