// The choice "al 4" for a system that fills its base: all gains anew for each choice.
#pragma once

#include <vector>

#include "Conjunto.h"
#include "CuentasAl4.h"

/// With w the five 4-subset counts of a 5-subset less eight times its own count, twice a bet's gain is
/// the sum of its six w, plus 20 if it is uncovered. Bets that share their first positions have their
/// terms in consecutive entries, so that the gains of the whole base cost a few additions of vectors
/// for each run: less than to find out which of them have fallen.
class EleccionPorExpansion {
  public:
    EleccionPorExpansion(const Conjunto& conjunto, CuentasAl4& cuentas);

    void Comenzar(const int32_t* orden);
    int32_t Elegir();
    int32_t Ganancia() const { return ganancia_; }

  private:
    // A run of K-subsets that differ in the last position: where it begins, and for each element of the
    // shared prefix where the run without that element begins.
    template <int K>
    struct Racha {
        int32_t inicio, prefijo, n;
        int32_t sin[K - 1];
    };

    template <int K>
    static std::vector<Racha<K>> Rachas(const Rangos& r, const Rangos& menor, int n);
    void Recalcular();
    int32_t PrimeraDe(int16_t doble) const;

    const Conjunto& conjunto_;
    CuentasAl4& cuentas_;
    std::vector<Racha<5>> rachas5_;
    std::vector<Racha<6>> rachas6_;
    std::vector<int16_t> w_, doble_; // by 5-subset; twice the gain, by bet of the base
    std::vector<int32_t> apuesta_;   // bet of the system, by bet of the base
    std::vector<int32_t> visita_;    // place in the visiting order, by bet of the system
    bool ordenPropio_ = true;        // the order visited is that of the base
    int32_t ganancia_ = 0;
};
