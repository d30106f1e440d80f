// Lazy greedy choice: who has the highest gain, and among equals the lowest place.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

/// Gains only fall while a cycle runs, so a gain once known bounds all later ones. Places are visited
/// by falling bound and only those at the top are evaluated again. A place is a bet in visiting order,
/// or a run of consecutive bets with the highest gain among them. Gains are below 32768.
class Cotas {
  public:
    /// Starts a cycle with `n` places; `cota(i)` is an upper bound of place i.
    template <class Inicial>
    void Comenzar(int32_t n, Inicial&& cota) {
        const size_t bloques = (static_cast<size_t>(n) + Bloque - 1) / Bloque;
        cota_.assign(bloques * Bloque, 0);
        maximo_.assign((bloques + Paso - 1) / Paso * Paso, 0);
        for (int32_t i = 0; i < n; ++i) cota_[i] = static_cast<int16_t>(cota(i));
        for (size_t b = 0; b < bloques; ++b) maximo_[b] = MaximoDe(&cota_[b * Bloque], Bloque);
        Bajar();
    }

    /// The place with the highest gain, -1 when every gain is 0. `evaluar(i)` gives the gain of place i
    /// as it stands.
    template <class Evaluar>
    int32_t Siguiente(Evaluar&& evaluar) {
        for (; objetivo_ > 0; Bajar())
            for (; AlSiguienteBloque(); ++bloque_) {
                int16_t* cota = &cota_[bloque_ * Bloque];
                for (size_t i = 0; i < Bloque; ++i) {
                    if (cota[i] != objetivo_) continue;
                    cota[i] = static_cast<int16_t>(evaluar(static_cast<int32_t>(bloque_ * Bloque + i)));
                    if (cota[i] == objetivo_) return static_cast<int32_t>(bloque_ * Bloque + i);
                }
                maximo_[bloque_] = MaximoDe(cota, Bloque);
            }
        return -1;
    }

    /// Gain of the place that `Siguiente` gave.
    int Ganancia() const { return objetivo_; }

  private:
    static constexpr size_t Bloque = 16; // places under one maximum
    static constexpr size_t Paso = 32;   // maxima looked at together

    static int16_t MaximoDe(const int16_t* valores, size_t n) {
        int16_t maximo = 0;
        for (size_t i = 0; i < n; ++i) maximo = std::max(maximo, valores[i]);
        return maximo;
    }

    // Moves on to the next block with a place at the target; false behind the last one.
    bool AlSiguienteBloque() {
        const int16_t* maximo = maximo_.data();
        while (bloque_ < maximo_.size()) {
            if (maximo[bloque_] == objetivo_) return true;
            if (++bloque_ % Paso != 0) continue;
            for (; bloque_ < maximo_.size(); bloque_ += Paso) {
                int alguno = 0;
                for (size_t i = 0; i < Paso; ++i) alguno |= maximo[bloque_ + i] == objetivo_;
                if (alguno != 0) break;
            }
        }
        return false;
    }

    void Bajar() {
        objetivo_ = MaximoDe(maximo_.data(), maximo_.size());
        bloque_ = 0;
    }

    int16_t objetivo_ = 0;
    size_t bloque_ = 0;                  // those before it are below the target
    std::vector<int16_t> cota_, maximo_; // by place, by block
};
