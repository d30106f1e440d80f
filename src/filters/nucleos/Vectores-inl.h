// What vector code shares. Included once for each processor by Highway's foreach_target.h, so the
// guard is the one that Highway prescribes.
#if defined(TOMBOLERA_VECTORES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TOMBOLERA_VECTORES_INL_H
#undef TOMBOLERA_VECTORES_INL_H
#else
#define TOMBOLERA_VECTORES_INL_H
#endif

#include <hwy/highway.h>

#include "Nucleos.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET != HWY_SCALAR

namespace hn = hwy::HWY_NAMESPACE;

using Bytes = hn::ScalableTag<uint8_t>;
using V = hn::Vec<Bytes>;
inline constexpr Bytes d;

/// Lookup in a table of 16 bytes; an index of 128 or more gives 0, any other must be below 16.
class Busqueda16 {
  public:
    explicit Busqueda16(const PorCuenta& tabla) : t_(hn::LoadDup128(d, tabla.data())) {}
    HWY_INLINE V operator()(V indice) const { return hn::TableLookupBytesOr0(t_, indice); }

  private:
    V t_;
};

/// Lookup in a table of 64 bytes by an index below 64; any other index gives some byte.
class Busqueda64 {
  public:
#if HWY_TARGET == HWY_AVX3_DL
    explicit Busqueda64(const PorPosicion& tabla) : t_(hn::LoadU(d, tabla.data())) {}
    HWY_INLINE V operator()(V indice) const {
        return V{_mm512_permutexvar_epi8(indice.raw, t_.raw)};
    }

  private:
    V t_;
#else
    // A shuffle answers 0 for a negative index and looks at the low four bits of any other. So the
    // quarters in front of the index's own answer too; each table is stored xored with the one
    // before, and what they answer cancels out.
    explicit Busqueda64(const PorPosicion& tabla) {
        for (size_t q = 0; q < 4; ++q) t_[q] = hn::LoadDup128(d, tabla.data() + 16 * q);
        for (size_t q = 3; q > 0; --q) t_[q] = hn::Xor(t_[q], t_[q - 1]);
    }
    HWY_INLINE V operator()(V indice) const {
        const V paso = hn::Set(d, 16);
        V r = hn::TableLookupBytesOr0(t_[0], indice);
        for (size_t q = 1; q < 4; ++q) {
            indice = hn::Sub(indice, paso);
            r = hn::Xor(r, hn::TableLookupBytesOr0(t_[q], indice));
        }
        return r;
    }

  private:
    V t_[4];
#endif
};

/// What the table holds for each of the six positions of the bets from `i` on.
struct Seis {
    V v[6];
    HWY_INLINE Seis(const Tramo& tramo, int64_t i, const Busqueda64& tabla) {
        for (int r = 0; r < 6; ++r) v[r] = tabla(hn::Load(d, tramo.fila[r] + i));
    }
    HWY_INLINE V Suma(int desde, int hasta) const {
        V s = v[desde];
        for (int r = desde + 1; r < hasta; ++r) s = hn::Add(s, v[r]);
        return s;
    }
};

/// Visits the bets of the stretch; `pasa(tramo, i)` gives 0 for each of the bets from `i` on that is to
/// be rejected. Blocks without a live bet are passed over, and blocks without a change not written.
template <class Prueba>
HWY_INLINE int32_t Recorrer(const Tramo& tramo, const Prueba& pasa) {
    const V cero = hn::Zero(d), uno = hn::Set(d, 1);
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    size_t marcadas = 0;
    for (int64_t i = 0; i < tramo.n; i += ancho) {
        const V antes = hn::Load(d, tramo.eliminada + i);
        const auto viva = hn::Eq(antes, cero);
        if (hn::AllFalse(d, viva)) continue;
        const auto rechazada = hn::And(viva, hn::Eq(pasa(tramo, i), cero));
        const size_t nuevas = hn::CountTrue(d, rechazada);
        if (nuevas == 0) continue;
        hn::Store(hn::IfThenElse(rechazada, uno, antes), d, tramo.eliminada + i);
        marcadas += nuevas;
    }
    return static_cast<int32_t>(marcadas);
}

/// Writes what `prueba(tramo, i)` gives for each bet of the stretch, live or not, up to the next multiple
/// of 64.
template <class Prueba>
HWY_INLINE void Escribir(const Tramo& tramo, const Prueba& prueba, uint8_t* respuestas) {
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t i = 0; i < tramo.n; i += ancho) hn::Store(prueba(tramo, i), d, respuestas + i);
}

/// The same with rows: `prueba.Dar(tramo, i, v)` gives a vector for each.
template <size_t N, class Prueba>
HWY_INLINE void EscribirFilas(const Tramo& tramo, const Prueba& prueba, const Filas<N>& filas) {
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t i = 0; i < tramo.n; i += ancho) {
        V v[N];
        prueba.Dar(tramo, i, v);
        for (size_t k = 0; k < N; ++k) hn::Store(v[k], d, filas[k] + i);
    }
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#endif
