// Kernels of the filter of earlier draws.
#include "NucleosSorteos.h"

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosSorteos.cpp"
#include <hwy/foreach_target.h>

#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

template <class Suma, class Respuesta>
void Ternas(const TablasTernas<Suma>& tablas, Respuesta* respuestas) {
    NucleoTernasEscalar(tablas, respuestas);
}
template <class Suma>
void Sumar(const Suma* a, const Suma* b, size_t n, Suma* suma) {
    NucleoSumarEscalar(a, b, n, suma);
}
int32_t Veredictos(const Tramo& tramo, const uint8_t* pasa) {
    return NucleoVeredictosEscalar(tramo, pasa);
}

#else

template <class Suma>
void Sumar(const Suma* a, const Suma* b, size_t n, Suma* suma) {
    const hn::ScalableTag<Suma> ds;
    for (size_t i = 0; i < n; i += hn::Lanes(ds))
        hn::StoreU(hn::Add(hn::LoadU(ds, a + i), hn::LoadU(ds, b + i)), ds, suma + i);
}

// The bets that share their four first positions too, row after row of those that share five. A row
// is short, so vectors are no longer than sixteen; what they write behind a row's end is written over
// by the next one.
template <class Suma>
class Pares {
    using DS = hn::CappedTag<Suma, 16>;
    using VS = hn::Vec<DS>;

  public:
    HWY_INLINE Pares(const TablasTernas<Suma>& t, size_t detras)
        : detras_(detras), ancho_(hn::Set(ds, t.Ancho)), pares_(t.Fin[2] - detras * (detras - 1) / 2),
          ternas_(t.Fin[3] - (detras + 1) * detras * (detras - 1) / 6) {
        const Suma* ultimos = t.Fin[1] - detras;
        Sumar(ultimos, t.Fin[2] - (detras + 1) * detras / 2, detras, uno_);
        comun_ = static_cast<Suma>(t.Fin[0][-1] + ultimos[-1]);
    }

    /// `Respuesta` is uint8_t for 1 or 0, and `Suma` for the values themselves.
    template <class Respuesta>
    HWY_INLINE Respuesta* Escribir(Respuesta* respuestas) const {
        const Suma *p = pares_, *t = ternas_;
        for (size_t i = 1; i < detras_; ++i) {
            const VS fijo = hn::Set(ds, static_cast<Suma>(comun_ + uno_[i - 1]));
            const size_t fila = detras_ - i;
            for (size_t j = 0; j < fila; j += hn::Lanes(ds)) {
                const VS dos = hn::Add(hn::LoadU(ds, p + j), hn::LoadU(ds, t + j));
                const VS suma = hn::Add(dos, hn::Add(hn::LoadU(ds, uno_ + i + j), fijo));
                EscribirEn(suma, respuestas + j);
            }
            p += fila;
            t += fila;
            respuestas += fila;
        }
        return respuestas;
    }

  private:
    HWY_INLINE void EscribirEn(VS suma, uint8_t* pasa) const {
        const auto cabe = hn::Eq(hn::Min(suma, ancho_), suma);
        // Not TruncateTo, whose lanes Highway 1.0.3 mixes up.
        const auto bits = hn::BitCast(di, hn::IfThenElseZero(cabe, hn::Set(ds, 1)));
        hn::StoreU(hn::DemoteTo(d8, bits), d8, pasa);
    }
    HWY_INLINE void EscribirEn(VS suma, Suma* valores) const { hn::StoreU(suma, ds, valores); }

    static constexpr DS ds{};
    static constexpr hn::RebindToSigned<DS> di{};
    static constexpr hn::Rebind<uint8_t, DS> d8{};

    size_t detras_; // positions behind the fourth
    VS ancho_;
    const Suma *pares_, *ternas_;
    Suma comun_;
    Suma uno_[64 + HolguraSumas];
};

template <class Suma, class Respuesta>
void Ternas(const TablasTernas<Suma>& tablas, Respuesta* respuestas) {
    for (size_t detras = tablas.Resto - 1; detras >= 2; --detras)
        respuestas = Pares<Suma>(tablas, detras).Escribir(respuestas);
}

struct PruebaVeredictos {
    const uint8_t* pasa;
    HWY_INLINE V operator()(const Tramo&, int64_t i) const { return hn::LoadU(d, pasa + i); }
};

int32_t Veredictos(const Tramo& tramo, const uint8_t* pasa) {
    return Recorrer(tramo, PruebaVeredictos{pasa});
}

#endif

void Ternas16(const TablasTernas<uint16_t>& tablas, uint8_t* pasa) {
    Ternas(tablas, pasa);
}
void Ternas32(const TablasTernas<uint32_t>& tablas, uint8_t* pasa) {
    Ternas(tablas, pasa);
}
void Ternas16Valores(const TablasTernas<uint16_t>& tablas, uint16_t* valores) {
    Ternas(tablas, valores);
}
void Ternas32Valores(const TablasTernas<uint32_t>& tablas, uint32_t* valores) {
    Ternas(tablas, valores);
}
void Sumar16(const uint16_t* a, const uint16_t* b, size_t n, uint16_t* suma) {
    Sumar(a, b, n, suma);
}
void Sumar32(const uint32_t* a, const uint32_t* b, size_t n, uint32_t* suma) {
    Sumar(a, b, n, suma);
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Ternas16);
HWY_EXPORT(Ternas32);
HWY_EXPORT(Ternas16Valores);
HWY_EXPORT(Ternas32Valores);
HWY_EXPORT(Sumar16);
HWY_EXPORT(Sumar32);
HWY_EXPORT(Veredictos);
} // namespace

template <>
void NucleoTernas(const TablasTernas<uint16_t>& tablas, uint8_t* pasa) {
    HWY_DYNAMIC_DISPATCH(Ternas16)(tablas, pasa);
}
template <>
void NucleoTernas(const TablasTernas<uint32_t>& tablas, uint8_t* pasa) {
    HWY_DYNAMIC_DISPATCH(Ternas32)(tablas, pasa);
}
template <>
void NucleoTernas(const TablasTernas<uint16_t>& tablas, uint16_t* valores) {
    HWY_DYNAMIC_DISPATCH(Ternas16Valores)(tablas, valores);
}
template <>
void NucleoTernas(const TablasTernas<uint32_t>& tablas, uint32_t* valores) {
    HWY_DYNAMIC_DISPATCH(Ternas32Valores)(tablas, valores);
}
template <>
void NucleoSumar(const uint16_t* a, const uint16_t* b, size_t n, uint16_t* suma) {
    HWY_DYNAMIC_DISPATCH(Sumar16)(a, b, n, suma);
}
template <>
void NucleoSumar(const uint32_t* a, const uint32_t* b, size_t n, uint32_t* suma) {
    HWY_DYNAMIC_DISPATCH(Sumar32)(a, b, n, suma);
}

int32_t NucleoVeredictos(const Tramo& tramo, const uint8_t* pasa) {
    return HWY_DYNAMIC_DISPATCH(Veredictos)(tramo, pasa);
}
#endif
