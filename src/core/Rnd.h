// The program's one source of chance.
#pragma once

#include <cstdint>

/// A small generator with independent-looking output even when seeded with 1, 2, 3, ...: the state
/// is a counter and each output a thorough mix of it, so seeding costs nothing.
class Azar {
  public:
    /// Resets the generator and seeds it: the same number gives the same sequence.
    void Sembrar(uint64_t semilla) { estado_ = Mezclar(semilla + 0x9E3779B97F4A7C15u); }

    /// Seeds from the machine's clock.
    void SembrarReloj();

    /// Uniform in [0, 1).
    double Rnd() { return static_cast<double>(Siguiente() >> 11) * 0x1.0p-53; }

    /// Int(n x Rnd), an integer from 0 to n - 1.
    int32_t Entero(int32_t n) { return static_cast<int32_t>(n * Rnd()); }

  private:
    static uint64_t Mezclar(uint64_t z) {
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    uint64_t Siguiente() { return Mezclar(estado_ += 0x9E3779B97F4A7C15u); }

    uint64_t estado_ = 0;
};
