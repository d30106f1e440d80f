// Kernel of the coefficient of profitability.
#include "NucleosCoeficiente.h"

#include <algorithm>

#include "CoeficienteRentabilidad.h"
#include "Escalares.h"
#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosCoeficiente.cpp"
#include <hwy/foreach_target.h>

#include "SumaPalabras-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

int32_t Coeficiente(const Tramo& tramo, const TablasCoeficiente& t) {
    return NucleoCoeficienteEscalar(tramo, t);
}

void Respuestas(const Tramo& tramo, const TablasCoeficiente& t, uint8_t* respuestas) {
    NucleoRespuestasEscalar(tramo, t, respuestas);
}

#else

using Dobles = hn::ScalableTag<double>;
using VD = hn::Vec<Dobles>;
inline constexpr Dobles dd;
inline constexpr hn::RebindToSigned<Dobles> di;
constexpr size_t AnchoDobles = hn::MaxLanes(dd);

// The whole numbers nearest to some values, and whether the values are so far from the middle of two
// that the small error they carry cannot have decided.
struct Redondeo {
    VD entero, duda;
    HWY_INLINE explicit Redondeo(VD x) : entero(hn::Round(x)) {
        duda = hn::VecFromMask(dd, hn::Gt(hn::Abs(hn::Sub(x, entero)), hn::Set(dd, 0.4999)));
    }
};

// The positions of consecutive bets in one row. In a table in order those of the first rows agree.
struct Posiciones {
    hn::VFromD<decltype(di)> todas;
    size_t primera;
    bool iguales;

    HWY_INLINE explicit Posiciones(const uint8_t* fila) : primera(fila[0] & 63u) {
        const hn::Rebind<uint8_t, Dobles> d8;
        const hn::Rebind<int32_t, Dobles> d32;
        const auto bytes = hn::And(hn::LoadU(d8, fila), hn::Set(d8, 63));
        todas = hn::PromoteTo(di, hn::PromoteTo(d32, bytes));
        iguales = hn::AllTrue(d8, hn::Eq(bytes, hn::Set(d8, static_cast<uint8_t>(primera))));
    }
    HWY_INLINE VD En(const PorPosicionDoble& tabla) const {
        return iguales ? hn::Set(dd, tabla[primera]) : hn::GatherIndex(dd, tabla.data(), todas);
    }
};

// Products of the factors of consecutive bets in units of the 14th decimal. In doubles their relative
// error stays below 1e-14; from 1e10 units on a unit more or less is of no account either.
HWY_INLINE Redondeo EnUnidades(VD producto) {
    Redondeo unidades(producto);
    unidades.duda = hn::IfThenZeroElse(hn::Ge(producto, hn::Set(dd, 1e10)), unidades.duda);
    return unidades;
}

// Decides as many bets as a vector of doubles holds, from `i` on. The few that stay in doubt are left
// so.
HWY_INLINE void DecidirConDobles(const Tramo& tramo, int64_t i, const TablasCoeficiente& tablas, uint8_t* respuesta) {
    VD productoApostado = hn::Set(dd, 1e14), productoReal = productoApostado;
    for (const uint8_t* fila : tramo.fila) {
        const Posiciones posiciones(fila + i);
        productoApostado = hn::Mul(productoApostado, posiciones.En(tablas.FactorApostado));
        productoReal = hn::Mul(productoReal, posiciones.En(tablas.FactorReal));
    }
    const Redondeo apostada = EnUnidades(productoApostado), real = EnUnidades(productoReal);
    const Redondeo decimas(hn::Mul(hn::Div(real.entero, apostada.entero), hn::Set(dd, 10)));
    const VD ultima = hn::Set(dd, 99), dudosa = hn::Set(dd, 100);
    // A product of 0 gives no number, or an infinite one; both belong to the last class without a doubt.
    const auto tieneBorde = hn::Le(decimas.entero, ultima);
    const VD duda = hn::Or(hn::Or(apostada.duda, real.duda), hn::IfThenElseZero(tieneBorde, decimas.duda));
    const VD segura = hn::IfThenElse(tieneBorde, decimas.entero, ultima);
    const VD clase = hn::IfThenElse(hn::MaskFromVec(duda), dudosa, segura);
    const hn::Rebind<int32_t, Dobles> d32;
    const hn::Rebind<uint8_t, Dobles> d8;
    const auto porClase = hn::GatherIndex(d32, tablas.PorClase.data(), hn::DemoteTo(d32, clase));
    hn::StoreU(hn::DemoteTo(d8, porClase), d8, respuesta);
}

struct RespuestaCoeficiente {
    SumaPalabras sumar;
    const TablasCoeficiente& tablas;
    explicit RespuestaCoeficiente(const TablasCoeficiente& t) : sumar(t.Logaritmo), tablas(t) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        constexpr size_t palabras = hn::MaxLanes(d16);
        HWY_ALIGN uint16_t pares[palabras], impares[palabras];
        HWY_ALIGN uint8_t respuesta[2 * palabras];
        const ParPalabras suma = sumar(tramo, i);
        hn::Store(suma.pares, d16, pares);
        hn::Store(suma.impares, d16, impares);
        const uint8_t* porSuma = tablas.PorSuma.data();
        for (size_t j = 0; j < palabras; ++j) {
            respuesta[2 * j] = porSuma[pares[j]];
            respuesta[2 * j + 1] = porSuma[impares[j]];
        }
        const V v = hn::Load(d, respuesta);
        const auto dudas = hn::Eq(v, hn::Set(d, TablasCoeficiente::Duda));
        if (hn::AllFalse(d, dudas)) return v;
        uint8_t bits[HWY_MAX_BYTES / 8];
        hn::StoreMaskBits(d, dudas, bits);
        for (size_t j = 0; j < 2 * palabras; j += AnchoDobles)
            if ((bits[j / 8] >> j % 8 & ((1 << AnchoDobles) - 1)) != 0)
                Decidir(tramo, i + static_cast<int64_t>(j), respuesta + j);
        return hn::Load(d, respuesta);
    }

    HWY_INLINE void Decidir(const Tramo& tramo, int64_t i, uint8_t* respuesta) const {
        if (tablas.Moderados) DecidirConDobles(tramo, i, tablas, respuesta);
        for (size_t j = 0; j < AnchoDobles; ++j)
            if (respuesta[j] == TablasCoeficiente::Duda)
                respuesta[j] = RespuestaExacta(tramo, i + static_cast<int64_t>(j), tablas);
    }
};

int32_t Coeficiente(const Tramo& tramo, const TablasCoeficiente& tablas) {
    return Recorrer(tramo, RespuestaCoeficiente(tablas));
}

void Respuestas(const Tramo& tramo, const TablasCoeficiente& tablas, uint8_t* respuestas) {
    Escribir(tramo, RespuestaCoeficiente(tablas), respuestas);
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Coeficiente);
HWY_EXPORT(Respuestas);
} // namespace

int32_t NucleoCoeficiente(const Tramo& tramo, const TablasCoeficiente& tablas) {
    return HWY_DYNAMIC_DISPATCH(Coeficiente)(tramo, tablas);
}

void NucleoRespuestas(const Tramo& tramo, const TablasCoeficiente& tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(Respuestas)(tramo, tablas, respuestas);
}

uint8_t RespuestaExacta(const Tramo& tramo, int64_t i, const TablasCoeficiente& tablas) {
    SeisPorcentajes apostado, real;
    for (size_t r = 0; r < 6; ++r) {
        const size_t posicion = tramo.fila[r][i] & 63u;
        apostado[r] = tablas.Apostado[posicion];
        real[r] = tablas.Real[posicion];
    }
    const int clase = ClaseCR(ProbabilidadCR(apostado), ProbabilidadCR(real));
    return static_cast<uint8_t>(tablas.PorClase[static_cast<size_t>(clase)]);
}

int32_t NucleoCoeficienteEscalar(const Tramo& tramo, const TablasCoeficiente& tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) { return RespuestaExacta(tramo, i, tablas) != 0; });
}

void NucleoRespuestasEscalar(const Tramo& tramo, const TablasCoeficiente& tablas, uint8_t* respuestas) {
    EscribirUnaAUna(
        tramo, [&](int64_t i) { return RespuestaExacta(tramo, i, tablas); }, respuestas);
}
#endif
