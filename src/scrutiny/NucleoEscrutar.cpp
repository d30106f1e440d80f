#include "NucleoEscrutar.h"

#include <algorithm>
#include <numeric>

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleoEscrutar.cpp"
#include <hwy/foreach_target.h>

#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

CuentaEscrutinio Escrutar(const TramoEscrutinio& tramo, const SorteoPorNumero& sorteo) {
    return NucleoEscrutarEscalar(tramo, sorteo);
}

#else

// Bets of what is counted, a byte for each lane: at most 255 additions between two emptyings. Entries 1 to
// 6 are those of as many hits; those without a hit are what is left over.
struct PorLinea {
    V aciertos[7], cincoC, digitos, seisConDigito;

    HWY_INLINE PorLinea() {
        for (V& v : aciertos) v = hn::Zero(d);
        cincoC = digitos = seisConDigito = hn::Zero(d);
    }

    HWY_INLINE void Anotar(V suma, V hits, hn::Mask<Bytes> conDigito) {
        for (uint8_t h = 1; h < 7; ++h) Sumar(aciertos[h], hn::Eq(hits, hn::Set(d, h)));
        Sumar(cincoC, hn::Eq(suma, hn::Set(d, 16 + 5)));
        Sumar(digitos, conDigito);
        Sumar(seisConDigito, hn::And(conDigito, hn::Eq(hits, hn::Set(d, 6))));
    }

    HWY_INLINE void Volcar(CuentaEscrutinio& cuenta) const {
        for (size_t h = 1; h < 7; ++h) cuenta.Aciertos.Aciertos[h] += Total(aciertos[h]);
        cuenta.Aciertos.CincoC += Total(cincoC);
        cuenta.Digitos += Total(digitos);
        cuenta.SeisConDigito += Total(seisConDigito);
    }

  private:
    static HWY_INLINE void Sumar(V& lineas, hn::Mask<Bytes> si) { lineas = hn::Sub(lineas, hn::VecFromMask(d, si)); }
    static HWY_INLINE int32_t Total(V lineas) {
        const hn::Repartition<uint64_t, Bytes> d64;
        return static_cast<int32_t>(hn::GetLane(hn::SumOfLanes(d64, hn::SumsOf8(lineas))));
    }
};

CuentaEscrutinio Escrutar(const TramoEscrutinio& tramo, const SorteoPorNumero& sorteo) {
    const Busqueda64 valor(sorteo.Valor);
    const V elegido = hn::Set(d, sorteo.Digito);
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    const int64_t enteras = tramo.n / ancho * ancho;
    CuentaEscrutinio cuenta;
    for (int64_t i = 0; i < enteras;) {
        PorLinea contadas;
        for (const int64_t hasta = std::min(enteras, i + 255 * ancho); i < hasta; i += ancho) {
            V suma = valor(hn::Load(d, tramo.fila[0] + i));
            for (int r = 1; r < 6; ++r) suma = hn::Add(suma, valor(hn::Load(d, tramo.fila[r] + i)));
            const V hits = hn::And(suma, hn::Set(d, 15));
            hn::Store(hits, d, tramo.aciertos + i);
            contadas.Anotar(suma, hits, hn::Eq(hn::Load(d, tramo.fila[6] + i), elegido));
        }
        contadas.Volcar(cuenta);
    }
    std::array<int32_t, 7>& porAciertos = cuenta.Aciertos.Aciertos;
    porAciertos[0] = static_cast<int32_t>(enteras) - std::accumulate(porAciertos.begin() + 1, porAciertos.end(), 0);
    TramoEscrutinio resto{{}, tramo.aciertos + enteras, tramo.n - enteras};
    for (int r = 0; r < 7; ++r) resto.fila[r] = tramo.fila[r] + enteras;
    return cuenta += NucleoEscrutarEscalar(resto, sorteo);
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Escrutar);
} // namespace

CuentaEscrutinio NucleoEscrutar(const TramoEscrutinio& tramo, const SorteoPorNumero& sorteo) {
    return HWY_DYNAMIC_DISPATCH(Escrutar)(tramo, sorteo);
}

CuentaEscrutinio NucleoEscrutarEscalar(const TramoEscrutinio& tramo, const SorteoPorNumero& sorteo) {
    CuentaEscrutinio cuenta;
    for (int64_t i = 0; i < tramo.n; ++i) {
        int suma = 0;
        for (int r = 0; r < 6; ++r) suma += sorteo.Valor[tramo.fila[r][i]];
        const int aciertos = suma & 15;
        tramo.aciertos[i] = static_cast<uint8_t>(aciertos);
        ++cuenta.Aciertos.Aciertos[static_cast<size_t>(aciertos)];
        cuenta.Aciertos.CincoC += suma == 16 + 5;
        const bool lleva = tramo.fila[6][i] == sorteo.Digito;
        cuenta.Digitos += lleva;
        cuenta.SeisConDigito += lleva && aciertos == 6;
    }
    return cuenta;
}

SorteoPorNumero::SorteoPorNumero(const Sorteado& sorteo, uint8_t digito) : Digito(digito) {
    for (size_t n = 0; n < Valor.size(); ++n) {
        if ((sorteo.Ganadores >> n & 1) != 0)
            Valor[n] = 1;
        else if ((sorteo.Complementario >> n & 1) != 0)
            Valor[n] = 16;
    }
}

CuentaEscrutinio EscrutarTabla(const Tabla& apuestas, int32_t cuantas, const SorteoPorNumero& sorteo, Tabla& aciertos,
                               Entorno& entorno) {
    aciertos.DimensionarSinLimpiar(1, cuantas);
    CuentaEscrutinio cuenta;
    int64_t desde = 0;
    for (int64_t turno = ApuestasPorTurnoEscrutinio; desde < cuantas; turno += ApuestasPorTurnoEscrutinio) {
        const int64_t hasta = turno >= cuantas ? cuantas : turno / 64 * 64; // stretches start on aligned bets
        TramoEscrutinio tramo{{}, aciertos.Fila(1) + desde, hasta - desde};
        for (int r = 0; r < 7; ++r) tramo.fila[r] = apuestas.Fila(r + 1) + desde;
        cuenta += NucleoEscrutar(tramo, sorteo);
        if (turno <= cuantas) entorno.CederTurno();
        desde = hasta;
    }
    return cuenta;
}
#endif
