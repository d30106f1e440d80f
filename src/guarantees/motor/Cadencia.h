// When a long count gives the event loop a turn.
#pragma once

#include <cstdint>
#include <functional>

/// Shows the fraction done, 0 to 1, and yields. False when the work is to stop.
using Turno = std::function<bool(double fraccion)>;

/// Yields once for every stretch that holds a multiple of `paso`, however long the stretch.
class Cadencia {
  public:
    Cadencia(int64_t paso, const Turno& turno) : paso_(paso), siguiente_(paso), turno_(turno) {}

    /// So many things are done, the whole work by `fraccion`. False when it is to stop.
    bool Hasta(int64_t hechas, double fraccion) {
        if (hechas < siguiente_) return true;
        siguiente_ = (hechas / paso_ + 1) * paso_;
        return turno_(fraccion);
    }

  private:
    int64_t paso_, siguiente_;
    const Turno& turno_;
};

/// How many candidates, and how many bets of the system, are measured between two turns.
inline constexpr int64_t CandidatasPorTurno = 300, ApuestasPorTurno = 1300;
