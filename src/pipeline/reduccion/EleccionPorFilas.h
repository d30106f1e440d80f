// The choice "al 5" for a system in lexicographic order: one bound for each run of bets.
#pragma once

#include <cstdint>
#include <vector>

#include "Conjunto.h"
#include "Cotas.h"
#include "CuentasAl5.h"

/// A row is the bets that share their first five positions; their last positions count up, so their
/// states and the counts of their 5-subsets are consecutive bytes and are worked on 16 at a time.
class EleccionPorFilas {
  public:
    EleccionPorFilas(const Conjunto& conjunto, CuentasAl5& cuentas);

    void Comenzar();
    int32_t Elegir();
    int32_t Ganancia() const { return cotas_.Ganancia(); }

  private:
    using Prefijo = std::array<uint8_t, 5>;

    int EvaluarFila(int32_t fila);
    int32_t IndiceDe(int32_t lugar) const;

    const Conjunto& conjunto_;
    CuentasAl5& cuentas_;
    std::vector<Prefijo> prefijo_; // by the row, which is the place of its prefix among the 5-subsets
    std::vector<int32_t> indice_;  // bets of the system before each block of places
    Cotas cotas_;
    int ultima_ = 0; // last position of the best bet of the row evaluated last
};
