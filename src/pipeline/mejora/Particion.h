// Systems of a whole base from smaller ones, by splitting it.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "Cartera.h"

/// The six numbers drawn fall on the parts of the base. When the parts are given m1, m2, ... with
/// (m1 - 1) + (m2 - 1) + ... = 5, some part i gets mi of them at least, so it is enough to cover in each
/// part every mi of its numbers; a number left without bets takes one off the 5. The pieces are searched
/// for among symmetric systems, the work going to those that the best sum is made of or could be. Serves
/// "al 3" and "al 2". Memory: up to 16 MB for each of some thirty pieces, and their own bets.
class Particion {
  public:
    /// All bets of n numbers with t in common. The watcher outlives it.
    Particion(int n, int t, uint64_t semilla, const Vigia& vigia);

    /// One exchange in one of the pieces. True when the whole has become smaller.
    bool Paso();

    /// Masks of the bets, none before there is a system.
    const std::vector<uint64_t>& Mejor() const { return mejor_; }

    int64_t Trabajo() const { return trabajo_; }

  private:
    static constexpr int Presupuesto = 5;

    // All m-subsets of v numbers by bets of six of them; up to six numbers take one bet.
    struct Pieza {
        int v, m;
        int64_t coste = 0, cota = 1;
        int64_t trabajo = 0;
        std::unique_ptr<Familia> filas{}, columnas{};
        std::unique_ptr<Cartera> cartera{};
    };

    void ElegirPieza();
    void Sumar();
    int64_t ConEsta(const Pieza& pieza) const;
    void Componer();
    void AgregarPieza(const Pieza& pieza, int desde);

    int n_, t_;
    uint64_t semilla_;
    const Vigia& vigia_;
    std::vector<Pieza> piezas_;
    // By numbers and by what is left of the budget: the fewest bets known, and the piece they begin with.
    std::vector<std::array<int64_t, Presupuesto + 1>> suma_;
    std::vector<std::array<int32_t, Presupuesto + 1>> primera_;
    Pieza* actual_ = nullptr;
    int64_t finTurno_ = 0, trabajo_ = 0;
    std::vector<uint64_t> mejor_;
};
