// For a prefix P of the candidate and a set T of later numbers, A(P, T)[h] is the number of bets that
// hold T and have h hits on P. One more number v of the candidate changes it to
//
//     A(P + v, T)[h] = A(P, T)[h] - A(P, T + v)[h] + A(P, T + v)[h - 1]
//
// and A(candidate, nothing)[h] is what is wanted. In lexicographic order the T of one size above v are the
// tail of those above an earlier number, and the T + v are a run of the next size, so that each step is a
// loop over contiguous counters. The last two numbers u < v of the candidate are added in one go.
#include "ExpansionAciertos.h"

#include <algorithm>
#include <cstring>

#include "DescensoPrefijos.h"
#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "ExpansionAciertos.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr size_t NNiveles = SubconjuntoMaximo + 1, NAciertos = SubconjuntoMaximo + 1;

// The runs of the last step are eight candidates long on average, so vectors wider than 256 bits
// would be mostly empty.
template <class C>
class Expansion {
  public:
    using D = hn::CappedTag<C, 32 / sizeof(C)>;
    using V = hn::Vec<D>;

    Expansion(const OrdenSubconjuntos& orden, PlanosSubconjunto<C>& bets, const PedidoExpansion& pedido)
        : orden_(orden), n_(orden.N()), k_(pedido.k), mapa_(pedido.Mapa), candidatas_(pedido.Candidatas),
          cadencia_(CandidatasPorTurno, pedido.turno) {
        const int64_t pares = orden.Cuantos(0, 2);
        memoria_[0].Dimensionar(1, pares * static_cast<int64_t>(sizeof(C)));
        auto* ceros = reinterpret_cast<C*>(memoria_[0].Fila(1));
        for (auto& nivel : planos_)
            for (auto& porAciertos : nivel) porAciertos.fill(ceros);
        for (int m = 0; m <= k_; ++m) planos_[0][static_cast<size_t>(m)][0] = bets.Plano(m);
        for (int r = 1; r <= k_ - 2; ++r) ReservarNivel(r);
        std::memset(maximo_, 0, sizeof(maximo_));
        std::memset(minimo_, 0xFF, sizeof(minimo_));
    }

    void Bajar(int r, int p, int v) {
        const auto nivel = static_cast<size_t>(r);
        for (int m = 0; m <= k_ - r - 1; ++m) {
            const auto& sin = planos_[nivel][static_cast<size_t>(m)];
            const auto& con = planos_[nivel][static_cast<size_t>(m) + 1];
            const auto& nuevo = planos_[nivel + 1][static_cast<size_t>(m)];
            const int64_t cuantos = orden_.Cuantos(v, m);
            const int64_t cola = orden_.Cuantos(p, m) - cuantos;
            const int64_t tramo = orden_.Cuantos(p, m + 1) - orden_.Cuantos(v - 1, m + 1);
            Restar(sin[0] + cola, con[0] + tramo, cuantos, nuevo[0]);
            for (size_t h = 1; h <= nivel; ++h)
                Trasladar(sin[h] + cola, con[h] + tramo, con[h - 1] + tramo, cuantos, nuevo[h]);
            std::memcpy(nuevo[nivel + 1], con[nivel] + tramo, static_cast<size_t>(cuantos) * sizeof(C));
        }
    }

    bool Cerrar(int p) {
        const auto& planos = planos_[static_cast<size_t>(k_ - 2)];
        Diferencias(planos[1], n_ - p);
        const int64_t pares = orden_.Cuantos(p, 2);
        for (int u = p + 1; u < n_; ++u) {
            for (size_t h = 0; h < NAciertos; ++h) fijo_[h] = static_cast<C>(planos[0][h][0] + uno_[h][u - p - 1]);
            const int64_t inicio = pares - orden_.Cuantos(u - 1, 2);
            for (int64_t i = 0; i < n_ - u; i += Ancho) Medir(planos[2], inicio + i, u - p + i, n_ - u - i);
        }
        hechas_ += pares;
        const double fraccion = static_cast<double>(hechas_) / static_cast<double>(orden_.Cuantos(0, k_));
        return cadencia_.Hasta(static_cast<int64_t>(fraccion * static_cast<double>(candidatas_)), fraccion);
    }

    void Recoger(TablaGarantias& tabla) const {
        for (size_t c = 0; c < NAciertos; ++c) {
            if (casos_[c] == 0) continue;
            tabla.CasosClase[c] += static_cast<int32_t>(casos_[c]);
            for (size_t h = 0; h <= c; ++h) {
                const C maximo = *std::max_element(maximo_[c][h], maximo_[c][h] + Ancho);
                const C minimo = *std::min_element(minimo_[c][h], minimo_[c][h] + Ancho);
                tabla.MaximoBets[c][h] = std::max(tabla.MaximoBets[c][h], static_cast<int32_t>(maximo));
                tabla.MinimoBets[c][h] = std::min(tabla.MinimoBets[c][h], static_cast<int32_t>(minimo));
            }
        }
    }

  private:
    static constexpr D d{};
    static constexpr int64_t Ancho = static_cast<int64_t>(hn::MaxLanes(D()));

    // Counters of a prefix of r numbers: its required sets of up to k - r numbers, with 0 to r hits.
    void ReservarNivel(int r) {
        const auto vector = static_cast<int64_t>(64 / sizeof(C));
        int64_t contadores = 0;
        for (int m = 0; m <= k_ - r; ++m) contadores += (orden_.Cuantos(r, m) + 2 * vector) * (r + 1);
        Tabla& memoria = memoria_[static_cast<size_t>(r)];
        memoria.Dimensionar(1, contadores * static_cast<int64_t>(sizeof(C)));
        auto* libre = reinterpret_cast<C*>(memoria.Fila(1));
        for (int m = 0; m <= k_ - r; ++m)
            for (int h = 0; h <= r; ++h) {
                planos_[static_cast<size_t>(r)][static_cast<size_t>(m)][static_cast<size_t>(h)] = libre;
                libre += (orden_.Cuantos(r, m) + 2 * vector - 1) / vector * vector;
            }
    }

    static void Restar(const C* a, const C* b, int64_t cuantos, C* destino) {
        for (int64_t i = 0; i < cuantos; i += Ancho)
            hn::StoreU(hn::Sub(hn::LoadU(d, a + i), hn::LoadU(d, b + i)), d, destino + i);
    }

    static void Trasladar(const C* a, const C* b, const C* masUno, int64_t cuantos, C* destino) {
        for (int64_t i = 0; i < cuantos; i += Ancho)
            hn::StoreU(hn::Add(hn::Sub(hn::LoadU(d, a + i), hn::LoadU(d, b + i)), hn::LoadU(d, masUno + i)), d,
                       destino + i);
    }

    // What each single number that is left changes: the bets that hold it go from h - 1 hits to h.
    void Diferencias(const std::array<C*, NAciertos>& plano, int64_t cuantos) {
        const C* anterior = planos_.back().back().back(); // zeros
        for (size_t h = 0; h < NAciertos; ++h) {
            Restar(anterior, plano[h], cuantos, uno_[h]);
            anterior = plano[h];
        }
    }

    // The candidates prefix + u + v of one vector of consecutive v, of which `quedan` exist. The pair
    // itself corrects what u and v have changed one by one.
    HWY_INLINE void Medir(const std::array<C*, NAciertos>& pares, int64_t par, int64_t v, int64_t quedan) {
        const V cero = hn::Zero(d);
        auto pendientes = hn::FirstN(d, static_cast<size_t>(std::min(quedan, Ancho)));
        if (mapa_ != nullptr) {
            const hn::Rebind<uint8_t, D> d8;
            const V cuentan = hn::PromoteTo(d, hn::LoadU(d8, mapa_ + hechas_ + par));
            pendientes = hn::And(pendientes, hn::Ne(cuentan, cero));
            if (hn::AllFalse(d, pendientes)) return;
        }
        HWY_ALIGN C aciertos[NAciertos][Ancho];
        V antes = cero, antesDeAntes = cero;
        for (size_t h = 0; h < NAciertos; ++h) {
            const V ahora = hn::LoadU(d, pares[h] + par);
            const V porSeparado = hn::Add(hn::Set(d, fijo_[h]), hn::LoadU(d, uno_[h] + v));
            const V porElPar = hn::Add(hn::Sub(hn::Sub(ahora, antes), antes), antesDeAntes);
            hn::Store(hn::Add(porSeparado, porElPar), d, aciertos[h]);
            antesDeAntes = antes;
            antes = ahora;
        }
        Anotar(aciertos, pendientes);
    }

    HWY_INLINE void Anotar(const C (&aciertos)[NAciertos][Ancho], hn::Mask<D> pendientes) {
        const V cero = hn::Zero(d), ninguno = hn::Set(d, static_cast<C>(~C{0}));
        for (size_t c = static_cast<size_t>(k_) + 1; c-- > 0;) {
            const auto deEsta = hn::And(pendientes, hn::Ne(hn::Load(d, aciertos[c]), cero));
            if (hn::AllFalse(d, deEsta)) continue;
            casos_[c] += static_cast<int64_t>(hn::CountTrue(d, deEsta));
            for (size_t h = 0; h <= c; ++h) {
                const V bets = hn::Load(d, aciertos[h]);
                C *maximo = maximo_[c][h], *minimo = minimo_[c][h];
                hn::Store(hn::Max(hn::Load(d, maximo), hn::IfThenElseZero(deEsta, bets)), d, maximo);
                hn::Store(hn::Min(hn::Load(d, minimo), hn::IfThenElse(deEsta, bets, ninguno)), d, minimo);
            }
            pendientes = hn::AndNot(deEsta, pendientes);
            if (hn::AllFalse(d, pendientes)) return;
        }
    }

    const OrdenSubconjuntos& orden_;
    const int n_, k_;
    const uint8_t* mapa_;
    const int64_t candidatas_;
    Cadencia cadencia_;
    int64_t hechas_ = 0;
    std::array<Tabla, NNiveles> memoria_; // of each level; the first holds the zeros
    std::array<std::array<std::array<C*, NAciertos>, NNiveles>, NNiveles> planos_; // by r, size of T, h
    HWY_ALIGN C uno_[NAciertos][NumeroMaximoBoleto + 64];
    std::array<C, NAciertos> fijo_{};
    std::array<int64_t, NAciertos> casos_{};
    HWY_ALIGN C maximo_[NAciertos][NAciertos][Ancho];
    HWY_ALIGN C minimo_[NAciertos][NAciertos][Ancho];
};

template <class C>
bool Expandir(const OrdenSubconjuntos& orden, PlanosSubconjunto<C>& bets, const PedidoExpansion& pedido,
              TablaGarantias& tabla) {
    Expansion<C> expansion(orden, bets, pedido);
    if (!Descender(expansion, orden.N(), pedido.k)) return false;
    expansion.Recoger(tabla);
    return true;
}

bool Expandir16(const OrdenSubconjuntos& orden, PlanosSubconjunto<uint16_t>& bets, const PedidoExpansion& pedido,
                TablaGarantias& tabla) {
    return Expandir(orden, bets, pedido, tabla);
}
bool Expandir32(const OrdenSubconjuntos& orden, PlanosSubconjunto<uint32_t>& bets, const PedidoExpansion& pedido,
                TablaGarantias& tabla) {
    return Expandir(orden, bets, pedido, tabla);
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Expandir16);
HWY_EXPORT(Expandir32);
} // namespace

bool ExpandirAciertos(const OrdenSubconjuntos& orden, PlanosSubconjunto<uint16_t>& bets, const PedidoExpansion& pedido,
                      TablaGarantias& tabla) {
    return HWY_DYNAMIC_DISPATCH(Expandir16)(orden, bets, pedido, tabla);
}
bool ExpandirAciertos(const OrdenSubconjuntos& orden, PlanosSubconjunto<uint32_t>& bets, const PedidoExpansion& pedido,
                      TablaGarantias& tabla) {
    return HWY_DYNAMIC_DISPATCH(Expandir32)(orden, bets, pedido, tabla);
}
#endif
