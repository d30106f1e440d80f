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

// The products of the factors of consecutive bets in units of the 14th decimal. In doubles their
// relative error stays below 1e-14; from 1e10 units on a unit more or less is of no account either.
HWY_INLINE Redondeo Probabilidad(const hn::VFromD<decltype(di)> (&posiciones)[6], const PorPosicionDoble& factores) {
    VD producto = hn::Set(dd, 1e14);
    for (const auto& posicion : posiciones)
        producto = hn::Mul(producto, hn::GatherIndex(dd, factores.data(), posicion));
    Redondeo unidades(producto);
    unidades.duda = hn::IfThenZeroElse(hn::Ge(producto, hn::Set(dd, 1e10)), unidades.duda);
    return unidades;
}

// Decides as many bets as a vector of doubles holds, from `i` on. The few that stay in doubt are left
// so.
HWY_INLINE void DecidirConDobles(const Tramo& tramo, int64_t i, const TablasCoeficiente& tablas, uint8_t* veredicto) {
    const hn::Rebind<uint8_t, Dobles> d8;
    const hn::Rebind<int32_t, Dobles> d32;
    hn::VFromD<decltype(di)> posiciones[6];
    for (int r = 0; r < 6; ++r) {
        const auto bytes = hn::And(hn::LoadU(d8, tramo.fila[r] + i), hn::Set(d8, 63));
        posiciones[r] = hn::PromoteTo(di, hn::PromoteTo(d32, bytes));
    }
    const Redondeo apostada = Probabilidad(posiciones, tablas.FactorApostado);
    const Redondeo real = Probabilidad(posiciones, tablas.FactorReal);
    const Redondeo decimas(hn::Mul(hn::Div(real.entero, apostada.entero), hn::Set(dd, 10)));
    const VD ultima = hn::Set(dd, 99), dudosa = hn::Set(dd, 100);
    // A product of 0 gives no number, or an infinite one; both belong to the last class.
    const auto menor = hn::Lt(decimas.entero, ultima);
    const VD duda = hn::Or(hn::Or(apostada.duda, real.duda), hn::IfThenElseZero(menor, decimas.duda));
    HWY_ALIGN double clases[AnchoDobles];
    hn::Store(hn::IfThenElse(hn::MaskFromVec(duda), dudosa, hn::IfThenElse(menor, decimas.entero, ultima)), dd, clases);
    for (size_t j = 0; j < AnchoDobles; ++j) veredicto[j] = tablas.PorClase[static_cast<size_t>(clases[j])];
}

struct PruebaCoeficiente {
    SumaPalabras sumar;
    const TablasCoeficiente& tablas;
    explicit PruebaCoeficiente(const TablasCoeficiente& t) : sumar(t.Logaritmo), tablas(t) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        constexpr size_t palabras = hn::MaxLanes(d16);
        HWY_ALIGN uint16_t pares[palabras], impares[palabras];
        HWY_ALIGN uint8_t veredicto[2 * palabras];
        const ParPalabras suma = sumar(tramo, i);
        hn::Store(suma.pares, d16, pares);
        hn::Store(suma.impares, d16, impares);
        const uint8_t* porSuma = tablas.PorSuma.data();
        for (size_t j = 0; j < palabras; ++j) {
            veredicto[2 * j] = porSuma[pares[j]];
            veredicto[2 * j + 1] = porSuma[impares[j]];
        }
        const V v = hn::Load(d, veredicto);
        if (hn::AllFalse(d, hn::Eq(v, hn::Set(d, TablasCoeficiente::Duda)))) return v;
        for (size_t j = 0; j < 2 * palabras; j += AnchoDobles)
            if (HayDudas(veredicto + j)) Decidir(tramo, i + static_cast<int64_t>(j), veredicto + j);
        return hn::Load(d, veredicto);
    }

    static HWY_INLINE bool HayDudas(const uint8_t* veredicto) {
        bool hay = false;
        for (size_t j = 0; j < AnchoDobles; ++j) hay |= veredicto[j] == TablasCoeficiente::Duda;
        return hay;
    }

    HWY_INLINE void Decidir(const Tramo& tramo, int64_t i, uint8_t* veredicto) const {
        if (tablas.Moderados) DecidirConDobles(tramo, i, tablas, veredicto);
        for (size_t j = 0; j < AnchoDobles; ++j)
            if (veredicto[j] == TablasCoeficiente::Duda)
                veredicto[j] = PasaExacta(tramo, i + static_cast<int64_t>(j), tablas);
    }
};

int32_t Coeficiente(const Tramo& tramo, const TablasCoeficiente& tablas) {
    return Recorrer(tramo, PruebaCoeficiente(tablas));
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Coeficiente);
} // namespace

int32_t NucleoCoeficiente(const Tramo& tramo, const TablasCoeficiente& tablas) {
    return HWY_DYNAMIC_DISPATCH(Coeficiente)(tramo, tablas);
}

bool PasaExacta(const Tramo& tramo, int64_t i, const TablasCoeficiente& tablas) {
    SeisPorcentajes apostado, real;
    for (size_t r = 0; r < 6; ++r) {
        const size_t posicion = tramo.fila[r][i] & 63u;
        apostado[r] = tablas.Apostado[posicion];
        real[r] = tablas.Real[posicion];
    }
    const int clase = ClaseCR(ProbabilidadCR(apostado), ProbabilidadCR(real));
    return tablas.PorClase[static_cast<size_t>(clase)] == TablasCoeficiente::Pasa;
}

int32_t NucleoCoeficienteEscalar(const Tramo& tramo, const TablasCoeficiente& tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) { return PasaExacta(tramo, i, tablas); });
}
#endif
