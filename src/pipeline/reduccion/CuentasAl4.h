// Gains of the reduction "al 4": counts of uncovered bets per 4-subset and per 5-subset of the base.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "Conjunto.h"
#include "Rangos.h"

/// Serves bases of up to 22 numbers. With c6, c5 and c4 the uncovered bets that have 6, 5 and 4 numbers
/// in common with a bet, its 15 4-subsets count 15 c6 + 5 c5 + c4 and its six 5-subsets 6 c6 + c5. So
/// its gain c6 + c5 + c4 is the first, less four times the second, plus 10 c6.
class CuentasAl4 {
  public:
    /// State of a bet of the base, by its place: twice what it adds to its own gain. An absent one has
    /// a gain far below 0.
    enum : int16_t { Ausente = -16384, Cubierta = 0, Descubierta = 20 };

    explicit CuentasAl4(const Conjunto& conjunto);

    /// Counts the bets. `turno(i)` is called every 500 bets; false stops it, and so the result.
    bool Contar(const std::function<bool(int32_t)>& turno);

    /// All bets uncovered again.
    void Reponer();

    /// Gain of bet i.
    int Ganancia(int32_t i) const;

    /// Takes out what bet i covers.
    void Cubrir(int32_t i);

    const Rangos& Rangos4() const { return r4_; }
    const Rangos& Rangos5() const { return r5_; }
    const Rangos& Rangos6() const { return r6_; }
    const int16_t* Cuenta4() const { return cuenta4_.data(); }
    const int16_t* Cuenta5() const { return cuenta5_.data(); }
    const int16_t* Estado() const { return estado_.data(); }

    static constexpr int Margen = 32; ///< readable entries behind the three tables

  private:
    // Places of the 4-subsets, then of the 5-subsets; both fit 16 bits up to 22 numbers.
    using Lugares = std::array<uint16_t, 21>;

    struct Pendiente {
        uint32_t mascara;
        int32_t apuesta;
    };

    const Conjunto& conjunto_;
    Rangos r4_, r5_, r6_;
    std::vector<Lugares> lugares_;
    std::vector<int32_t> lugar6_; // by bet
    std::vector<int16_t> cuenta4_, inicial4_, cuenta5_, inicial5_, estado_, estadoInicial_;
    std::vector<Pendiente> todas_, quedan_; // the second shrinks as the cycle goes
};
