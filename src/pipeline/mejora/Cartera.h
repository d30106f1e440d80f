// The search among symmetric systems: many symmetries, each with its own small covering problem.
#pragma once

#include <limits>
#include <memory>
#include <vector>

#include "BusquedaLocal.h"
#include "Simetria.h"

/// How many symmetries are kept, how many pairs of an orbit and one that covers it each may have, and
/// whether the search without a symmetry is one of them.
struct LimitesCartera {
    size_t Ramas = 12;
    int64_t Pares = 1 << 22;
    bool SinSimetria = false;
};

/// A system that a symmetry leaves as it is consists of whole orbits, and choosing among some hundreds of
/// orbits is quick even where choosing among the bets is not. Symmetries are drawn at random; those that
/// gave small systems get more work, and are relaxed. Memory: 4 bytes a pair for each that is kept,
/// and 4 bytes a bet.
class Cartera {
  public:
    /// Covers `exigido` of the rows by the columns with at least t in common. The families and
    /// the watcher outlive it.
    Cartera(const Familia& filas, const Familia& columnas, int t, int64_t exigido, uint64_t semilla, const Vigia& vigia,
            LimitesCartera limites = {});

    /// One exchange in one of the searches. True when it gave a smaller system than all before.
    bool Paso();

    /// Members of `columnas`, none before the first system.
    const std::vector<int32_t>& Mejor() const { return mejor_; }

    /// Whether no symmetry was found: steps do nothing.
    bool Agotada() const { return ramas_.empty() && fallidas_ >= MaximoFallidas; }

    int64_t Trabajo() const { return trabajo_; }

  private:
    static constexpr int32_t SinHerencia = std::numeric_limits<int32_t>::max();
    struct Rama {
        Simetria simetria;
        Orbitas filas, columnas;
        Recubrimiento problema;
        std::unique_ptr<BusquedaLocal> busqueda;
        int64_t trabajo = 0;
        int32_t heredado = SinHerencia; // bets of the system that it started from, in its first turn
    };
    static constexpr int MaximoFallidas = 400;

    void ElegirRama();
    void Explorar();
    std::unique_ptr<Rama> NuevaRama();
    bool Plantear(Rama& rama);
    bool EsNueva(const Rama& rama) const;
    void DespedirPeor();
    Rama* LaQueMerece() const;
    Simetria ProbarSimetria(const Rama*& origen);
    bool Anotar(const Rama& rama);

    const Familia &filas_, &columnas_;
    int t_;
    int64_t exigido_;
    const Vigia& vigia_;
    LimitesCartera limites_;
    Azar azar_;
    Clases clases_;
    std::vector<std::unique_ptr<Rama>> ramas_;
    Rama* actual_ = nullptr;
    int64_t finTurno_ = 0, explorado_ = 0, trabajo_ = 0;
    int fallidas_ = 0; // symmetries in a row that gave no problem
    int64_t probadas_ = 0;
    std::vector<int32_t> mejor_;
};
