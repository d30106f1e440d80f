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

// Division by a constant as correctly rounded as a true one: `inversa` is the double nearest to
// 1 / divisor, so the first quotient is off by less than one unit and the fused remainder corrects it.
HWY_INLINE VD Dividir(VD x, double divisor, double inversa) {
    const VD y = hn::Set(dd, inversa);
    const VD cociente = hn::Mul(x, y);
    return hn::MulAdd(hn::NegMulAdd(cociente, hn::Set(dd, divisor), x), y, cociente);
}

// The percentages of a handful of bets, a row for each of the six numbers.
struct Porcentajes {
    HWY_ALIGN double fila[6][HWY_MAX_BYTES / sizeof(double)];

    HWY_INLINE VD Probabilidad() const {
        VD producto = hn::Set(dd, 1.0);
        for (const auto& p : fila) {
            const VD factor = hn::Load(dd, p);
            const VD siguiente = Dividir(hn::Mul(producto, factor), 100, 0.01);
            producto = hn::IfThenElse(hn::Gt(factor, hn::Zero(dd)), siguiente, producto);
        }
        return Dividir(hn::Round(hn::Mul(producto, hn::Set(dd, 1e14))), 1e14, 1e-14);
    }
};

// The bets that the logarithms left open.
class Dudosas {
  public:
    Dudosas(const Tramo& tramo, const TablasCoeficiente& tablas) : tramo_(tramo), tablas_(tablas) {}

    /// Room for one more block of bets, for which those listed may have to be resolved first.
    void HacerSitio() {
        if (cuantas_ >= Lote) Resolver();
    }
    void Anadir(int64_t i) {
        if (tramo_.eliminada[i] == 0) lista_[cuantas_++] = i;
    }

    /// Marks those listed that fail; returns how many were marked since the start.
    int32_t Resolver() {
        size_t j = 0;
#if HWY_NATIVE_FMA
        if (tablas_.Moderados)
            for (; j + hn::Lanes(dd) <= cuantas_; j += hn::Lanes(dd)) ResolverJuntas(lista_ + j);
#endif
        for (; j < cuantas_; ++j) Marcar(lista_[j], PasaExacta(tramo_, lista_[j], tablas_));
        cuantas_ = 0;
        return marcadas_;
    }

  private:
    void ResolverJuntas(const int64_t* apuestas) {
        Porcentajes apostados, reales;
        for (size_t r = 0; r < 6; ++r)
            for (size_t j = 0; j < hn::Lanes(dd); ++j) {
                const size_t posicion = tramo_.fila[r][apuestas[j]] & 63u;
                apostados.fila[r][j] = tablas_.Apostado[posicion];
                reales.fila[r][j] = tablas_.Real[posicion];
            }
        const VD cociente = hn::Div(reales.Probabilidad(), apostados.Probabilidad());
        const VD redondeado = Dividir(hn::Round(hn::Mul(cociente, hn::Set(dd, 10))), 10, 0.1);
        const VD decimas = hn::Mul(redondeado, hn::Set(dd, 10));
        const VD ultima = hn::Set(dd, 99);
        HWY_ALIGN double clases[HWY_MAX_BYTES / sizeof(double)];
        hn::Store(hn::IfThenElse(hn::Lt(decimas, ultima), hn::Round(decimas), ultima), dd, clases);
        for (size_t j = 0; j < hn::Lanes(dd); ++j)
            Marcar(apuestas[j], tablas_.ClasePasa[static_cast<size_t>(clases[j])] != 0);
    }

    void Marcar(int64_t i, bool pasa) {
        tramo_.eliminada[i] = !pasa;
        marcadas_ += !pasa;
    }

    const Tramo& tramo_;
    const TablasCoeficiente& tablas_;
    static constexpr size_t Lote = 64;
    int64_t lista_[Lote + HWY_MAX_BYTES];
    size_t cuantas_ = 0;
    int32_t marcadas_ = 0;
};

struct PruebaCoeficiente {
    SumaPalabras sumar;
    const uint8_t* porSuma;
    Dudosas& dudosas;

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        constexpr size_t palabras = hn::MaxLanes(d16);
        HWY_ALIGN uint16_t pares[palabras], impares[palabras];
        HWY_ALIGN uint8_t veredicto[2 * palabras];
        dudosas.HacerSitio();
        const ParPalabras suma = sumar(tramo, i);
        hn::Store(suma.pares, d16, pares);
        hn::Store(suma.impares, d16, impares);
        for (size_t j = 0; j < palabras; ++j) {
            veredicto[2 * j] = porSuma[pares[j]];
            veredicto[2 * j + 1] = porSuma[impares[j]];
        }
        const V v = hn::Load(d, veredicto);
        if (!hn::AllFalse(d, hn::Eq(v, hn::Set(d, TablasCoeficiente::Duda))))
            for (size_t j = 0; j < 2 * palabras; ++j)
                if (veredicto[j] == TablasCoeficiente::Duda) dudosas.Anadir(i + static_cast<int64_t>(j));
        return v;
    }
};

int32_t Coeficiente(const Tramo& tramo, const TablasCoeficiente& tablas) {
    Dudosas dudosas(tramo, tablas);
    const PruebaCoeficiente prueba{SumaPalabras(tablas.Logaritmo), tablas.PorSuma.data(), dudosas};
    const int32_t marcadas = Recorrer(tramo, prueba);
    return marcadas + dudosas.Resolver();
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
    return tablas.ClasePasa[static_cast<size_t>(clase)] != 0;
}

int32_t NucleoCoeficienteEscalar(const Tramo& tramo, const TablasCoeficiente& tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) { return PasaExacta(tramo, i, tablas); });
}
#endif
