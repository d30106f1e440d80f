// What the comparisons work on: the whole ticket, in order and shuffled, and its files.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ContraLiterales.h"
#include "Entorno.h"
#include "Lectura.h"
#include "Sesion.h"

inline constexpr int32_t N = ApuestasMaximas;

class Materia {
  public:
    explicit Materia(const std::string& carpeta);

    /// Reads the bytes of a table of the whole ticket once.
    void LeerTabla() { suma += SumarBytes(todo.Fila(1), 6 * int64_t{N}); }

    Sesion sesion; ///< the whole ticket in order
    Entorno entorno;
    Tabla uno, otro, todo; ///< shuffled: seven millions twice, some bets in both, and all
    Tabla resultado, valores, aciertos;
    const std::string texto, tom; ///< files of all, shuffled
    uint64_t suma = 0;            ///< takes what must not be optimised away
};

using M = std::shared_ptr<Materia>;

/// All bets of 1 to n, alive, under the conditions of the sweep.
void Expandir(Sesion& sesion, Entorno& entorno, int n);

Sorteos Historia(size_t cuantos);

/// The plain work on `n` bets in place of the whole ticket, `veces` times.
TiempoLiteral EnProporcion(int64_t n, const std::function<void()>& hacer, double veces = 1);

/// The parts of the list.
std::vector<Comparacion> ComparacionesDeCalculo(const M& m);
std::vector<Comparacion> ComparacionesDeHerramientas(const M& m);
