// Starting points for a conditioned system that is most of its base.
#pragma once

#include "Cartera.h"

/// The whole base has symmetries that its conditioned part lacks. What stands of a small system of the
/// whole base among the conditioned bets, with its numbers exchanged at random, is completed and improved by
/// exchanges for a while. Memory: 12 bytes for each bet of the base, and that of a `Cartera`.
class Restriccion {
  public:
    /// `problema` is that of the conditioned bets, all of which are to be covered. All outlive it.
    Restriccion(const Familia& condicionadas, const Recubrimiento& problema, int t, uint64_t semilla,
                const Vigia& vigia);

    /// One exchange, of the whole base or of the conditioned bets. True when it gave a smaller system of
    /// these than all before.
    bool Paso();

    /// Members of the conditioned family, none before the first system.
    const std::vector<int32_t>& Mejor() const { return mejor_; }

    int64_t Trabajo() const { return cartera_.Trabajo() + busqueda_.Trabajo(); }

  private:
    void Trasladar();

    const Familia& condicionadas_;
    Familia todas_;
    Cartera cartera_;
    BusquedaLocal busqueda_;
    Azar azar_;
    int quedan_ = 0; // exchanges from this start
    std::vector<int32_t> mejor_;
};
