// Kernels that work on the numbers themselves: sums, differences, runs, neighbours.
#include "Nucleos.h"

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosNumeros.cpp"
#include <hwy/foreach_target.h>

#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

int32_t Sumas(const Tramo& tramo, const TablasSumas& tablas) {
    return NucleoSumasEscalar(tramo, tablas);
}
int32_t Trios(const Tramo& tramo, const TablasTrios& tablas) {
    return NucleoTriosEscalar(tramo, tablas);
}
int32_t Distancias(const Tramo& tramo, const TablasDistancias& t) {
    return NucleoDistanciasEscalar(tramo, t);
}
int32_t Seguidos(const Tramo& tramo, const TablasSeguidos& tablas) {
    return NucleoSeguidosEscalar(tramo, tablas);
}
int32_t Colindantes(const Tramo& tramo, const TablasColindantes& t) {
    return NucleoColindantesEscalar(tramo, t);
}

#else

alignas(16) constexpr PorCuenta Bits{1, 2, 4, 8, 16, 32, 64, 128, 1, 2, 4, 8, 16, 32, 64, 128};

// Six numbers add up to more than a byte holds, two trios do not: half the sum and its lowest bit
// come from the sums of the trios.
struct PruebaSumas {
    Busqueda64 numero, mapa;
    Busqueda16 bit{Bits};
    explicit PruebaSumas(const TablasSumas& t) : numero(t.Numero), mapa(t.Mapa) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const Seis n(tramo, i, numero);
        const V a = n.Suma(0, 3), b = n.Suma(3, 6);
        const V impar = hn::And(hn::Xor(a, b), hn::Set(d, 1));
        const V mitad = hn::Sub(hn::AverageRound(a, b), impar);
        const V resto = hn::And(hn::Add(hn::Add(mitad, mitad), impar), hn::Set(d, 7));
        return hn::And(mapa(hn::ShiftRight<2>(mitad)), bit(resto));
    }
};

int32_t Sumas(const Tramo& tramo, const TablasSumas& tablas) {
    return Recorrer(tramo, PruebaSumas(tablas));
}

struct PruebaTrios {
    Busqueda64 numero, primeros, ultimos;
    Busqueda16 bit{Bits};
    explicit PruebaTrios(const TablasTrios& t) : numero(t.Numero), primeros(t.Primeros), ultimos(t.Ultimos) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const Seis n(tramo, i, numero);
        const V a = En(primeros, n.Suma(0, 3)), b = En(ultimos, n.Suma(3, 6));
        return hn::And(hn::Min(a, hn::Set(d, 1)), hn::Min(b, hn::Set(d, 1)));
    }
    HWY_INLINE V En(const Busqueda64& mapa, V suma) const {
        return hn::And(mapa(hn::ShiftRight<3>(suma)), bit(hn::And(suma, hn::Set(d, 7))));
    }
};

int32_t Trios(const Tramo& tramo, const TablasTrios& tablas) {
    return Recorrer(tramo, PruebaTrios(tablas));
}

// Counted from its minimum and taken without sign, a distance below the minimum is above any width.
struct PruebaDistancias {
    Busqueda64 numero;
    V minimo[6], ancho[6];
    explicit PruebaDistancias(const TablasDistancias& t) : numero(t.Numero) {
        for (size_t k = 0; k < 6; ++k) {
            minimo[k] = hn::Set(d, static_cast<uint8_t>(t.Minimo[k]));
            ancho[k] = hn::Set(d, t.Ancho[k]);
        }
    }

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const Seis n(tramo, i, numero);
        V exceso = Exceso(n, 5, 0, 5);
        for (int k = 0; k < 5; ++k) exceso = hn::Or(exceso, Exceso(n, k, k, k + 1));
        return hn::VecFromMask(d, hn::Eq(exceso, hn::Zero(d)));
    }
    HWY_INLINE V Exceso(const Seis& n, int k, int desde, int hasta) const {
        return hn::SaturatedSub(hn::Sub(hn::Sub(n.v[hasta], n.v[desde]), minimo[k]), ancho[k]);
    }
};

int32_t Distancias(const Tramo& tramo, const TablasDistancias& t) {
    return Recorrer(tramo, PruebaDistancias(t));
}

struct PruebaSeguidos {
    Busqueda64 numero, pasa;
    explicit PruebaSeguidos(const TablasSeguidos& t) : numero(t.Numero), pasa(t.Pasa) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const Seis n(tramo, i, numero);
        V patron = hn::Zero(d);
        for (int k = 0; k < 5; ++k) {
            const auto sigue = hn::Eq(hn::Sub(n.v[k + 1], n.v[k]), hn::Set(d, 1));
            patron = hn::Or(patron, hn::IfThenElseZero(sigue, hn::Set(d, static_cast<uint8_t>(1 << k))));
        }
        return pasa(patron);
    }
};

int32_t Seguidos(const Tramo& tramo, const TablasSeguidos& tablas) {
    return Recorrer(tramo, PruebaSeguidos(tablas));
}

struct PruebaColindantes {
    Busqueda64 celda;
    Busqueda16 toca, pasa;
    explicit PruebaColindantes(const TablasColindantes& t) : celda(t.Celda), toca(t.Toca), pasa(t.Pasa) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const Seis c(tramo, i, celda);
        V tocado[6];
        for (V& t : tocado) t = hn::Zero(d);
        for (int a = 0; a < 5; ++a)
            for (int b = a + 1; b < 6; ++b) {
                const V se = SeTocan(c.v[a], c.v[b]);
                tocado[a] = hn::Or(tocado[a], se);
                tocado[b] = hn::Or(tocado[b], se);
            }
        V cuenta = tocado[0];
        for (int r = 1; r < 6; ++r) cuenta = hn::Add(cuenta, tocado[r]);
        return pasa(cuenta);
    }
    // Differences of 16 and more become 128 and more, for which the lookup gives 0.
    HWY_INLINE V SeTocan(V a, V b) const {
        const V diferencia = hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
        return toca(hn::SaturatedAdd(diferencia, hn::Set(d, 0x70)));
    }
};

int32_t Colindantes(const Tramo& tramo, const TablasColindantes& t) {
    return Recorrer(tramo, PruebaColindantes(t));
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Sumas);
HWY_EXPORT(Trios);
HWY_EXPORT(Distancias);
HWY_EXPORT(Seguidos);
HWY_EXPORT(Colindantes);
} // namespace

int32_t NucleoSumas(const Tramo& tramo, const TablasSumas& tablas) {
    return HWY_DYNAMIC_DISPATCH(Sumas)(tramo, tablas);
}

int32_t NucleoTrios(const Tramo& tramo, const TablasTrios& tablas) {
    return HWY_DYNAMIC_DISPATCH(Trios)(tramo, tablas);
}

int32_t NucleoDistancias(const Tramo& tramo, const TablasDistancias& tablas) {
    return HWY_DYNAMIC_DISPATCH(Distancias)(tramo, tablas);
}

int32_t NucleoSeguidos(const Tramo& tramo, const TablasSeguidos& tablas) {
    return HWY_DYNAMIC_DISPATCH(Seguidos)(tramo, tablas);
}

int32_t NucleoColindantes(const Tramo& tramo, const TablasColindantes& tablas) {
    return HWY_DYNAMIC_DISPATCH(Colindantes)(tramo, tablas);
}
#endif
