// A value for every small set of positions, such that the number of draws in which a bet has the hits
// asked for is the sum of the values of all subsets of the bet.
//
// Whether a draw counts is a function f of the numbers it shares with the bet. There is one g with
// f(X) = sum of g(Y) over the subsets Y of X, by inclusion and exclusion; each draw adds g(Y) to the
// value of each subset Y of its numbers. What a bet costs then no longer depends on the number of draws.
#pragma once

#include "NucleosSorteos.h"
#include "SorteosAnteriores.h"

/// The values g of one draw by set of its positions.
using ValoresPorMascara = std::array<int8_t, 64>;

/// Values are unsigned and wrap around: the final sums fit, the steps towards them need not.
template <class Suma>
class SumasPorSubconjunto {
  public:
    /// Of six positions few have a value: those of the draws themselves, kept apart.
    struct Sexteto {
        int32_t lugar; ///< of the bet among all, from 0
        std::array<uint8_t, 3> ultimas;
        Suma valor;
    };

    /// Over the positions 1 to `n`, 6 to 49. The values of a bet that passes add up to at most
    /// `Maximo` - `Minimo`.
    SumasPorSubconjunto(size_t n, const PreguntaSorteos& pregunta, Entorno& entorno);

    size_t N() const { return n_; }
    /// Behind the last of the values of the subsets of k positions, 0 to 5, in lexicographic order.
    const Suma* Fin(size_t k) const { return valores_[k].data() + Distancia(n_, k); }
    const std::vector<Sexteto>& Sextetos() const { return sextetos_; } ///< by place, each once

  private:
    void Anadir(const SorteoEnBase& sorteo, const TablaAciertos& acertar, const ValoresPorMascara& deUnoNormal);
    void ReunirSextetos();

    size_t n_;
    std::array<std::vector<Suma>, 6> valores_;
    std::vector<Sexteto> sextetos_;
};

/// Goes through all bets of six in lexicographic order, those with the same three first positions at a
/// time. The values are summed up as positions are fixed: those of a prefix P are the sums over the
/// subsets of P, so that with one more position p the value of X becomes the old one plus that of X
/// with p. In lexicographic order both stand one after the other.
template <class Suma>
class RecorridoDeApuestas {
  public:
    RecorridoDeApuestas(const SumasPorSubconjunto<Suma>& sumas, Suma ancho);

    /// Writes the answer for each of the next bets, and up to `HolguraSumas` more; at most C(46,3). As uint8_t
    /// it is 1 or 0, as `Suma` the bet's value. Returns how many bets they are, 0 behind the last.
    template <class Respuesta>
    size_t Siguiente(Respuesta* respuestas);

  private:
    struct Nivel {
        std::array<std::vector<Suma>, 5> valores;
        std::array<const Suma*, 6> fin{};
    };

    bool Avanzar();
    void Extender(size_t nivel);
    template <class Respuesta>
    void CorregirSextetos(const TablasTernas<Suma>& tablas, size_t cuantas, Respuesta* respuestas);
    Suma ValorDe(const typename SumasPorSubconjunto<Suma>::Sexteto& sexteto, const TablasTernas<Suma>& tablas) const;

    const SumasPorSubconjunto<Suma>& sumas_;
    Suma ancho_;
    std::array<size_t, 3> prefijo_{};
    std::array<Nivel, 4> nivel_; // by the length of the prefix
    int32_t hechas_ = 0;
    size_t sexteto_ = 0;
};
