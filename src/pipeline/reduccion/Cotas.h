// Lazy greedy choice: who has the highest gain, and among equals the lowest place.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

/// Gains only fall while a cycle runs, so a gain once known bounds all later ones. Places are visited
/// by falling bound and only those at the top are evaluated again. A place is a bet in visiting order,
/// or a run of consecutive bets with the highest gain among them.
class Cotas {
  public:
    static constexpr uint16_t Tope = UINT16_MAX;

    /// Starts a cycle with `n` places; `cota(i)` is an upper bound of place i.
    template <class Inicial>
    void Comenzar(int32_t n, Inicial&& cota) {
        n_ = n;
        cota_.assign((n + Bloque - 1) / Bloque * Bloque, 0);
        maximo_.resize(cota_.size() / Bloque);
        for (int32_t i = 0; i < n; ++i) cota_[i] = cota(i);
        for (size_t b = 0; b < maximo_.size(); ++b) maximo_[b] = MaximoDe(b);
        Bajar();
    }

    /// The place with the highest gain, -1 when every gain is 0. `evaluar(i)` gives the gain of place i
    /// as it stands.
    template <class Evaluar>
    int32_t Siguiente(Evaluar&& evaluar) {
        for (; objetivo_ > 0; Bajar()) {
            for (; desde_ < maximo_.size(); ++desde_) {
                if (maximo_[desde_] != objetivo_) continue;
                uint16_t* cota = &cota_[desde_ * Bloque];
                uint16_t maximo = 0;
                for (size_t i = 0; i < Bloque; ++i) {
                    if (cota[i] == objetivo_) {
                        cota[i] = evaluar(static_cast<int32_t>(desde_ * Bloque + i));
                        if (cota[i] == objetivo_) return static_cast<int32_t>(desde_ * Bloque + i);
                    }
                    maximo = std::max(maximo, cota[i]);
                }
                maximo_[desde_] = maximo;
            }
        }
        return -1;
    }

    /// Gain of the place that `Siguiente` gave.
    uint16_t Ganancia() const { return objetivo_; }

  private:
    static constexpr size_t Bloque = 64;

    uint16_t MaximoDe(size_t b) const { return *std::max_element(&cota_[b * Bloque], &cota_[b * Bloque] + Bloque); }
    void Bajar() {
        objetivo_ = maximo_.empty() ? uint16_t{0} : *std::max_element(maximo_.begin(), maximo_.end());
        desde_ = 0;
    }

    int32_t n_ = 0;
    uint16_t objetivo_ = 0;
    size_t desde_ = 0; // block; those before it are below the target
    std::vector<uint16_t> cota_, maximo_;
};
