// Sums of 16 bits, for the kernels that give each number a value. Included as Vectores-inl.h is.
#if defined(TOMBOLERA_SUMAPALABRAS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef TOMBOLERA_SUMAPALABRAS_INL_H
#undef TOMBOLERA_SUMAPALABRAS_INL_H
#else
#define TOMBOLERA_SUMAPALABRAS_INL_H
#endif

#include "NucleosValores.h"
#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET != HWY_SCALAR

using Palabras = hn::ScalableTag<uint16_t>;
using V16 = hn::Vec<Palabras>;
inline constexpr Palabras d16;

/// A value of 16 bits for each bet of a vector of bytes: lane j of `pares` belongs to bet 2j, that of
/// `impares` to bet 2j + 1.
struct ParPalabras {
    V16 pares, impares;
};

/// Adds up the six values of each bet, modulo 2^16.
class SumaPalabras {
  public:
    explicit SumaPalabras(const PalabrasPorPosicion& t) : baja_(t.Baja), alta_(t.Alta) {}

    HWY_INLINE ParPalabras operator()(const Tramo& tramo, int64_t i) const {
        ParPalabras suma{hn::Zero(d16), hn::Zero(d16)};
        V altas = hn::Zero(d);
        for (int r = 0; r < 6; ++r) {
            const V posicion = hn::Load(d, tramo.fila[r] + i);
            const V16 bajas = hn::BitCast(d16, baja_(posicion));
            suma.pares = hn::Add(suma.pares, hn::And(bajas, Byte()));
            suma.impares = hn::Add(suma.impares, hn::ShiftRight<8>(bajas));
            altas = hn::Add(altas, alta_(posicion));
        }
        const V16 a = hn::BitCast(d16, altas);
        suma.pares = hn::Add(suma.pares, hn::ShiftLeft<8>(a));
        suma.impares = hn::Add(suma.impares, hn::AndNot(Byte(), a));
        return suma;
    }

  private:
    static HWY_INLINE V16 Byte() { return hn::Set(d16, 0xFF); }

    Busqueda64 baja_, alta_;
};

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#endif
