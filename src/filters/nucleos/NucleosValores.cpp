// Kernel of the sums of marks.
#include "NucleosValores.h"

#include <algorithm>

#include "Escalares.h"
#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosValores.cpp"
#include <hwy/foreach_target.h>

#include "SumaPalabras-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

int32_t Valoraciones(const Tramo& tramo, const TablasValoraciones& tablas) {
    return NucleoValoracionesEscalar(tramo, {&tablas, 1});
}

#else

// Counted from its minimum and taken without sign, a sum below the minimum is above any width.
struct PruebaValoraciones {
    SumaPalabras sumar;
    V16 minimo[4], ancho[4];
    size_t intervalos = 0;

    explicit PruebaValoraciones(const TablasValoraciones& t) : sumar(t.Marca) {
        for (const Intervalo& i : t.Intervalos) {
            if (i.Minimo > i.Maximo) continue;
            minimo[intervalos] = hn::Set(d16, static_cast<uint16_t>(i.Minimo));
            ancho[intervalos++] = hn::Set(d16, static_cast<uint16_t>(i.Maximo - i.Minimo));
        }
    }

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const ParPalabras suma = sumar(tramo, i);
        const V16 pares = hn::And(Dentro(suma.pares), hn::Set(d16, 0xFF));
        return hn::BitCast(d, hn::Or(pares, hn::ShiftLeft<8>(Dentro(suma.impares))));
    }
    HWY_INLINE V16 Dentro(V16 suma) const {
        V16 exceso = hn::Set(d16, 0xFFFF);
        for (size_t k = 0; k < intervalos; ++k)
            exceso = hn::Min(exceso, hn::SaturatedSub(hn::Sub(suma, minimo[k]), ancho[k]));
        return hn::VecFromMask(d16, hn::Eq(exceso, hn::Zero(d16)));
    }
};

int32_t Valoraciones(const Tramo& tramo, const TablasValoraciones& tablas) {
    return Recorrer(tramo, PruebaValoraciones(tablas));
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Valoraciones);
} // namespace

int32_t NucleoValoraciones(const Tramo& tramo, std::span<const TablasValoraciones> tablas) {
    int32_t marcadas = 0;
    for (const TablasValoraciones& grupo : tablas)
        marcadas += grupo.SumaEn16Bits ? HWY_DYNAMIC_DISPATCH(Valoraciones)(tramo, grupo)
                                       : NucleoValoracionesEscalar(tramo, {&grupo, 1});
    return marcadas;
}

int32_t NucleoValoracionesEscalar(const Tramo& tramo, std::span<const TablasValoraciones> tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) {
        return std::all_of(tablas.begin(), tablas.end(), [&](const TablasValoraciones& grupo) {
            const int suma = SumaDeMarcas(tramo, i, grupo.Marca);
            return std::any_of(grupo.Intervalos.begin(), grupo.Intervalos.end(),
                               [&](const Intervalo& intervalo) { return intervalo.Contiene(suma); });
        });
    });
}

int SumaDeMarcas(const Tramo& tramo, int64_t i, const PalabrasPorPosicion& valores) {
    int suma = 0;
    for (const uint8_t* fila : tramo.fila) suma += valores.Valor(fila[i] & 63u);
    return suma;
}
#endif
