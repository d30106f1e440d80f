// Gains of the reduction "al 5": counts of uncovered bets per 5-subset of the base.
#pragma once

#include <functional>
#include <vector>

#include "Conjunto.h"
#include "Rangos.h"

/// Two bets with five numbers in common share exactly one 5-subset, so a bet's gain is the sum of the
/// counts of its six 5-subsets, less the five times too many that an uncovered bet counts itself.
class CuentasAl5 {
  public:
    /// State of a bet of the base, by its place: uncovered holds the 5 to be taken off.
    enum : uint8_t { Ausente = 0, Descubierta = 5, Cubierta = 0x80 };

    explicit CuentasAl5(const Conjunto& conjunto);

    /// Counts the bets. `turno(i)` is called every 500 bets; false stops it, and so the result.
    bool Contar(const std::function<bool(int32_t)>& turno);

    /// All bets uncovered again.
    void Reponer();

    /// Gain of bet i.
    int Ganancia(int32_t i) const;

    /// Takes out what bet i, or the bet of these positions, covers.
    void Cubrir(int32_t i) { Cubrir(conjunto_.Apuesta(i)); }
    void Cubrir(const Seis& p);

    const Rangos& Rangos5() const { return r5_; }
    const Rangos& Rangos6() const { return r6_; }
    const uint8_t* Estado() const { return estado_.data(); }
    const uint8_t* Cuenta() const { return cuenta_.data(); }

    static constexpr int Margen = 64; ///< readable bytes behind both tables

  private:
    void CubrirUna(Seis q, int32_t lugar);

    const Conjunto& conjunto_;
    Rangos r5_, r6_;
    std::vector<uint8_t> cuenta_, inicial_, estado_;
};
