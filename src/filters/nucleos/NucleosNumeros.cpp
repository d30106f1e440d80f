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
void SumaFilas(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    FilasSumaEscalar(tramo, numero, filas);
}
void TriosFilas(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    FilasTriosEscalar(tramo, numero, filas);
}
void DistanciasFilas(const Tramo& tramo, const PorPosicion& numero, int8_t minimo, const Filas<6>& filas) {
    FilasDistanciasEscalar(tramo, numero, minimo, filas);
}
void SeguidosRespuestas(const Tramo& tramo, const TablasSeguidos& t, uint8_t* respuestas) {
    RespuestasSeguidosEscalar(tramo, t, respuestas);
}
void ColindantesRespuestas(const Tramo& tramo, const TablasColindantes& t, uint8_t* respuestas) {
    RespuestasColindantesEscalar(tramo, t, respuestas);
}

#else

alignas(16) constexpr PorCuenta Bits{1, 2, 4, 8, 16, 32, 64, 128, 1, 2, 4, 8, 16, 32, 64, 128};

// Six numbers add up to more than a byte holds, two trios do not: half the sum and its lowest bit
// come from the sums of the trios.
struct SumaEnMitades {
    Busqueda64 numero;

    HWY_INLINE void Dar(const Tramo& tramo, int64_t i, V (&v)[2]) const {
        const Seis n(tramo, i, numero);
        const V a = n.Suma(0, 3), b = n.Suma(3, 6);
        v[1] = hn::And(hn::Xor(a, b), hn::Set(d, 1));
        v[0] = hn::Sub(hn::AverageRound(a, b), v[1]);
    }
};

void SumaFilas(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    EscribirFilas(tramo, SumaEnMitades{Busqueda64(numero)}, filas);
}

struct PruebaSumas {
    SumaEnMitades sumar;
    Busqueda64 mapa;
    Busqueda16 bit{Bits};
    explicit PruebaSumas(const TablasSumas& t) : sumar{Busqueda64(t.Numero)}, mapa(t.Mapa) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        V suma[2];
        sumar.Dar(tramo, i, suma);
        const V resto = hn::And(hn::Add(hn::Add(suma[0], suma[0]), suma[1]), hn::Set(d, 7));
        return hn::And(mapa(hn::ShiftRight<2>(suma[0])), bit(resto));
    }
};

int32_t Sumas(const Tramo& tramo, const TablasSumas& tablas) {
    return Recorrer(tramo, PruebaSumas(tablas));
}

struct SumasDeTrios {
    Busqueda64 numero;
    HWY_INLINE void Dar(const Tramo& tramo, int64_t i, V (&v)[2]) const {
        const Seis n(tramo, i, numero);
        v[0] = n.Suma(0, 3);
        v[1] = n.Suma(3, 6);
    }
};

void TriosFilas(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    EscribirFilas(tramo, SumasDeTrios{Busqueda64(numero)}, filas);
}

struct PruebaTrios {
    SumasDeTrios sumar;
    Busqueda64 primeros, ultimos;
    Busqueda16 bit{Bits};
    explicit PruebaTrios(const TablasTrios& t)
        : sumar{Busqueda64(t.Numero)}, primeros(t.Primeros), ultimos(t.Ultimos) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        V suma[2];
        sumar.Dar(tramo, i, suma);
        const V a = En(primeros, suma[0]), b = En(ultimos, suma[1]);
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

struct DistanciasDesde {
    Busqueda64 numero;
    V minimo;

    HWY_INLINE void Dar(const Tramo& tramo, int64_t i, V (&v)[6]) const {
        const Seis n(tramo, i, numero);
        for (int k = 0; k < 5; ++k) v[k] = hn::Sub(hn::Sub(n.v[k + 1], n.v[k]), minimo);
        v[5] = hn::Sub(hn::Sub(n.v[4], n.v[0]), minimo);
    }
};

void DistanciasFilas(const Tramo& tramo, const PorPosicion& numero, int8_t minimo, const Filas<6>& filas) {
    EscribirFilas(tramo, DistanciasDesde{Busqueda64(numero), hn::Set(d, static_cast<uint8_t>(minimo))}, filas);
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

void SeguidosRespuestas(const Tramo& tramo, const TablasSeguidos& tablas, uint8_t* respuestas) {
    Escribir(tramo, PruebaSeguidos(tablas), respuestas);
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

void ColindantesRespuestas(const Tramo& tramo, const TablasColindantes& t, uint8_t* respuestas) {
    Escribir(tramo, PruebaColindantes(t), respuestas);
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
HWY_EXPORT(SumaFilas);
HWY_EXPORT(TriosFilas);
HWY_EXPORT(DistanciasFilas);
HWY_EXPORT(SeguidosRespuestas);
HWY_EXPORT(ColindantesRespuestas);
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

void FilasSuma(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    HWY_DYNAMIC_DISPATCH(SumaFilas)(tramo, numero, filas);
}

void FilasTrios(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    HWY_DYNAMIC_DISPATCH(TriosFilas)(tramo, numero, filas);
}

void FilasDistancias(const Tramo& tramo, const PorPosicion& numero, int8_t minimo, const Filas<6>& filas) {
    HWY_DYNAMIC_DISPATCH(DistanciasFilas)(tramo, numero, minimo, filas);
}

void RespuestasSeguidos(const Tramo& tramo, const TablasSeguidos& tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(SeguidosRespuestas)(tramo, tablas, respuestas);
}

void RespuestasColindantes(const Tramo& tramo, const TablasColindantes& tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(ColindantesRespuestas)(tramo, tablas, respuestas);
}
#endif
