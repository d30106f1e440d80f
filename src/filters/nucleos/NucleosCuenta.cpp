// Kernels that count members of classes.
#include "Nucleos.h"

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosCuenta.cpp"
#include <hwy/foreach_target.h>

#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

int32_t Cuenta(const Tramo& tramo, const TablasCuenta& tablas) {
    return NucleoCuentaEscalar(tramo, tablas);
}
int32_t Clases(const Tramo& tramo, const TablasClases& tablas) {
    return NucleoClasesEscalar(tramo, tablas);
}
void CuentaRespuestas(const Tramo& tramo, const TablasCuenta& tablas, uint8_t* respuestas) {
    RespuestasCuentaEscalar(tramo, tablas, respuestas);
}
void ClasesRespuestas(const Tramo& tramo, const TablasClases& tablas, uint8_t* respuestas) {
    RespuestasClasesEscalar(tramo, tablas, respuestas);
}
void ClasesFilas(const Tramo& tramo, const TablasClases& tablas, const FilasDeClases& filas) {
    FilasClasesEscalar(tramo, tablas, filas);
}

#else

struct PruebaCuenta {
    Busqueda64 valor;
    Busqueda16 pasa;
    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const { return pasa(Seis(tramo, i, valor).Suma(0, 6)); }
};

int32_t Cuenta(const Tramo& tramo, const TablasCuenta& tablas) {
    return Recorrer(tramo, PruebaCuenta{Busqueda64(tablas.Valor), Busqueda16(tablas.Pasa)});
}

void CuentaRespuestas(const Tramo& tramo, const TablasCuenta& tablas, uint8_t* respuestas) {
    Escribir(tramo, PruebaCuenta{Busqueda64(tablas.Valor), Busqueda16(tablas.Pasa)}, respuestas);
}

// The classes are counted by twos, one count in each half of a byte.
template <size_t Pares>
struct PruebaClases {
    Busqueda64 clase, sumaPasa;
    Busqueda16 pasa;
    const TablasClases& tablas;

    // What a member adds to the byte of pair p, by class: 1 for class 2p, 16 for class 2p + 1.
    alignas(16) static constexpr std::array<PorCuenta, 5> Peso = [] {
        std::array<PorCuenta, 5> peso{};
        for (size_t c = 0; c < 10; ++c) peso[c / 2][c] = c % 2 == 0 ? 1 : 16;
        return peso;
    }();

    explicit PruebaClases(const TablasClases& t) : clase(t.Clase), sumaPasa(t.SumaPasa), pasa(t.Pasa), tablas(t) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const Seis clases(tramo, i, clase);
        V cuentas[Pares];
        Contar(clases, cuentas);
        return hn::And(PorTamanos(cuentas), sumaPasa(clases.Suma(0, 6)));
    }

    // What FilasDeClases tells, in its order.
    HWY_INLINE void Dar(const Tramo& tramo, int64_t i, V (&v)[2 + Pares]) const {
        const Seis clases(tramo, i, clase);
        V cuentas[Pares];
        Contar(clases, cuentas);
        v[0] = PorTamanos(cuentas);
        v[1] = clases.Suma(0, 6);
        for (size_t p = 0; p < Pares; ++p) v[2 + p] = cuentas[p];
    }

    static HWY_INLINE void Contar(const Seis& clases, V (&cuentas)[Pares]) {
        for (size_t p = 0; p < Pares; ++p) {
            const Busqueda16 peso(Peso[p]);
            cuentas[p] = peso(clases.v[0]);
            for (int r = 1; r < 6; ++r) cuentas[p] = hn::Add(cuentas[p], peso(clases.v[r]));
        }
    }

    HWY_INLINE V PorTamanos(const V (&cuentas)[Pares]) const {
        V codigo = hn::Zero(d);
        for (size_t p = 0; p < Pares; ++p) {
            const Busqueda16 baja(tablas.Codigo[2 * p]), alta(tablas.Codigo[2 * p + 1]);
            const V bajo = baja(hn::And(cuentas[p], hn::Set(d, 15))), alto = alta(hn::ShiftRight<4>(cuentas[p]));
            codigo = hn::SaturatedAdd(codigo, hn::SaturatedAdd(bajo, alto));
        }
        return pasa(hn::And(codigo, hn::Set(d, TablasClases::Rechazo | 15)));
    }
};

int32_t Clases(const Tramo& tramo, const TablasClases& tablas) {
    return tablas.Clases <= 6 ? Recorrer(tramo, PruebaClases<3>(tablas)) : Recorrer(tramo, PruebaClases<5>(tablas));
}

void ClasesRespuestas(const Tramo& tramo, const TablasClases& tablas, uint8_t* respuestas) {
    if (tablas.Clases <= 6)
        Escribir(tramo, PruebaClases<3>(tablas), respuestas);
    else
        Escribir(tramo, PruebaClases<5>(tablas), respuestas);
}

void ClasesFilas(const Tramo& tramo, const TablasClases& tablas, const FilasDeClases& f) {
    if (tablas.Clases <= 6)
        EscribirFilas<5>(tramo, PruebaClases<3>(tablas), {f[0], f[1], f[2], f[3], f[4]});
    else
        EscribirFilas(tramo, PruebaClases<5>(tablas), f);
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Cuenta);
HWY_EXPORT(Clases);
HWY_EXPORT(CuentaRespuestas);
HWY_EXPORT(ClasesRespuestas);
HWY_EXPORT(ClasesFilas);
} // namespace

int32_t NucleoCuenta(const Tramo& tramo, const TablasCuenta& tablas) {
    return HWY_DYNAMIC_DISPATCH(Cuenta)(tramo, tablas);
}

int32_t NucleoClases(const Tramo& tramo, const TablasClases& tablas) {
    return HWY_DYNAMIC_DISPATCH(Clases)(tramo, tablas);
}

void RespuestasCuenta(const Tramo& tramo, const TablasCuenta& tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(CuentaRespuestas)(tramo, tablas, respuestas);
}

void RespuestasClases(const Tramo& tramo, const TablasClases& tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(ClasesRespuestas)(tramo, tablas, respuestas);
}

void FilasClases(const Tramo& tramo, const TablasClases& tablas, const FilasDeClases& filas) {
    HWY_DYNAMIC_DISPATCH(ClasesFilas)(tramo, tablas, filas);
}
#endif
