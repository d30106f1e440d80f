// The system under reduction, as both routes see it.
#pragma once

#include <cstdint>
#include <vector>

#include "EstadoTrabajo.h"
#include "Rangos.h"

/// A view of `ApuestasCondicionadas`. Bets are counted from 0 here.
class Conjunto {
  public:
    /// Throws std::runtime_error when a bet is not six different positions of the base.
    explicit Conjunto(const EstadoTrabajo& trabajo);

    int n() const { return n_; }                   ///< numbers of the base
    int32_t Apuestas() const { return apuestas_; } ///< N
    bool Completo() const { return completo_; }    ///< every bet of the base, in lexicographic order
    bool Ordenado() const { return ordenado_; }    ///< lexicographic order without repeats

    /// Positions of bet i, ascending.
    Seis Apuesta(int32_t i) const { return compacta_.empty() ? Leer(i) : compacta_[i]; }

    /// Gathers the bets in memory order of the bet, for a route that visits them at random.
    void Compactar();

  private:
    Seis Leer(int32_t i) const;
    void Comprobar();

    const uint8_t* fila_[6];
    int n_;
    int32_t apuestas_;
    bool completo_, ordenado_;
    std::vector<Seis> compacta_;
};
