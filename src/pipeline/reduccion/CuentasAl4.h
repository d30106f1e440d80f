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
    explicit CuentasAl4(const Conjunto& conjunto);

    bool Contar(const std::function<bool(int32_t)>& turno);
    void Reponer();
    int Ganancia(int32_t i) const;
    void Cubrir(int32_t i);

  private:
    // Places of the 4-subsets, then of the 5-subsets; both fit 16 bits up to 22 numbers.
    using Lugares = std::array<uint16_t, 21>;

    struct Descubierta {
        uint32_t mascara;
        int32_t apuesta;
    };

    const Conjunto& conjunto_;
    Rangos r4_, r5_;
    std::vector<Lugares> lugares_;
    std::vector<uint8_t> cuenta4_, inicial4_, cuenta5_, inicial5_;
    std::vector<uint8_t> sinCubrir_;          // by bet
    std::vector<Descubierta> todas_, quedan_; // the second shrinks as the cycle goes
};
