// For a prefix P of the subset and a set T of later numbers, M(P, T) is the most hits on P among the bets
// that hold T, negative where there is none. One more number v:
//
//     M(P + v, T) = max(M(P, T), M(P, T + v) + 1)
//
// over contiguous bytes, in the same order as the exact counts.
#include "ExpansionMaximos.h"

#include <algorithm>
#include <cstring>

#include "DescensoPrefijos.h"
#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "ExpansionMaximos.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

#ifndef TOMBOLERA_MAXIMO_DE_NADIE
#define TOMBOLERA_MAXIMO_DE_NADIE
namespace {

constexpr int8_t Nadie = -16; // six more hits leave it negative

} // namespace
#endif

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

class Maximos {
  public:
    using D = hn::CappedTag<int8_t, 32>;
    using V = hn::Vec<D>;

    Maximos(const OrdenSubconjuntos& orden, PlanosSubconjunto<int8_t>& alcance, int y, const Turno& turno)
        : orden_(orden), n_(orden.N()), y_(y), cadencia_(SubconjuntosPorTurno, turno) {
        for (int m = 0; m <= y; ++m) planos_[0][static_cast<size_t>(m)] = alcance.Plano(m);
        for (int r = 1; r <= y - 2; ++r)
            for (int m = 0; m <= y - r; ++m) {
                Tabla& memoria = memoria_[static_cast<size_t>(r)][static_cast<size_t>(m)];
                memoria.Dimensionar(1, orden.Cuantos(r, m));
                planos_[static_cast<size_t>(r)][static_cast<size_t>(m)] = reinterpret_cast<int8_t*>(memoria.Fila(1));
            }
    }

    void Bajar(int r, int p, int v) {
        const V uno = hn::Set(d, 1);
        const auto nivel = static_cast<size_t>(r);
        for (int m = 0; m <= y_ - r - 1; ++m) {
            const int64_t cuantos = orden_.Cuantos(v, m);
            const int8_t* sin = planos_[nivel][static_cast<size_t>(m)] + orden_.Cuantos(p, m) - cuantos;
            const int8_t* con =
                planos_[nivel][static_cast<size_t>(m) + 1] + orden_.Cuantos(p, m + 1) - orden_.Cuantos(v - 1, m + 1);
            int8_t* nuevo = planos_[nivel + 1][static_cast<size_t>(m)];
            for (int64_t i = 0; i < cuantos; i += Ancho)
                hn::StoreU(hn::Max(hn::LoadU(d, sin + i), hn::Add(hn::LoadU(d, con + i), uno)), d, nuevo + i);
        }
    }

    bool Cerrar(int p) {
        const auto& planos = planos_[static_cast<size_t>(y_ - 2)];
        const int64_t pares = orden_.Cuantos(p, 2);
        for (int u = p + 1; u < n_; ++u) {
            const int8_t* solo = planos[1] + (u - p - 1);
            const V sinPar = hn::Set(d, std::max(planos[0][0], static_cast<int8_t>(solo[0] + 1)));
            const int8_t* par = planos[2] + pares - orden_.Cuantos(u - 1, 2);
            for (int64_t i = 0; i < n_ - u; i += Ancho) {
                const V conUno = hn::Add(hn::LoadU(d, solo + 1 + i), hn::Set(d, 1));
                const V conDos = hn::Add(hn::LoadU(d, par + i), hn::Set(d, 2));
                Contar(hn::Max(hn::Max(sinPar, conUno), conDos), n_ - u - i);
            }
        }
        hechos_ += pares;
        return cadencia_.Hasta(hechos_, static_cast<double>(hechos_) / static_cast<double>(orden_.Cuantos(0, y_)));
    }

    ContadorMini contador{};

  private:
    static constexpr D d{};
    static constexpr int64_t Ancho = static_cast<int64_t>(hn::MaxLanes(D()));

    HWY_INLINE void Contar(V aciertos, int64_t quedan) {
        const auto hay = hn::FirstN(d, static_cast<size_t>(std::min(quedan, Ancho)));
        for (int x = 2; x <= y_; ++x) {
            const auto llegan = hn::And(hay, hn::Gt(aciertos, hn::Set(d, static_cast<int8_t>(x - 1))));
            if (hn::AllFalse(d, llegan)) return;
            contador[static_cast<size_t>(x)] += static_cast<int32_t>(hn::CountTrue(d, llegan));
        }
    }

    const OrdenSubconjuntos& orden_;
    const int n_, y_;
    Cadencia cadencia_;
    int64_t hechos_ = 0;
    std::array<std::array<Tabla, SubconjuntoMaximo + 1>, SubconjuntoMaximo + 1> memoria_;
    std::array<std::array<int8_t*, SubconjuntoMaximo + 1>, SubconjuntoMaximo + 1> planos_{}; // by r, size of T
};

bool Expandir(const OrdenSubconjuntos& orden, PlanosSubconjunto<int8_t>& alcance, int y, ContadorMini& contador,
              const Turno& turno) {
    Maximos maximos(orden, alcance, y, turno);
    if (!Descender(maximos, orden.N(), y)) return false;
    contador = maximos.contador;
    return true;
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Expandir);
} // namespace

bool ExpandirMaximos(const OrdenSubconjuntos& orden, const std::vector<Mascara>& sistema, int y, ContadorMini& contador,
                     const Turno& turno) {
    PlanosSubconjunto<int8_t> alcance(orden, y);
    for (int m = 0; m <= y; ++m) std::memset(alcance.Plano(m), Nadie, static_cast<size_t>(alcance.Bytes(m)));
    Cadencia cadencia(SubconjuntosPorTurno, turno);
    int64_t hechas = 0;
    for (const Mascara apuesta : sistema) {
        orden.CadaSubconjunto(apuesta, y, [&](int m, int32_t rango) { alcance.Plano(m)[rango] = 0; });
        if (!cadencia.Hasta(++hechas, 0)) return false;
    }
    return HWY_DYNAMIC_DISPATCH(Expandir)(orden, alcance, y, contador, turno);
}
#endif
