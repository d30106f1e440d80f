// Long routines that can be stopped half-way.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

/// Thrown where a routine was told to stop: what it was making is lost.
struct Interrumpida {};

/// Counts the work of long routines and asks every few milliseconds whether to go on.
class Vigia {
  public:
    Vigia() = default; ///< never stops
    explicit Vigia(std::function<bool()> seguir) : seguir_(std::move(seguir)) {}

    /// After so many visits. Throws Interrumpida when it is time to stop.
    void Contar(int64_t visitas) const {
        if ((hechas_ += visitas) >= Cada) Preguntar();
    }

    /// At once.
    void Preguntar() const {
        hechas_ = 0;
        if (seguir_ && !seguir_()) throw Interrumpida{};
    }

  private:
    static constexpr int64_t Cada = 1 << 22; // visits; some 10 ms
    std::function<bool()> seguir_;
    mutable int64_t hechas_ = 0;
};
