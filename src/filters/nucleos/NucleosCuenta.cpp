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

#else

struct PruebaCuenta {
    Busqueda64 valor;
    Busqueda16 pasa;
    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const { return pasa(Seis(tramo, i, valor).Suma(0, 6)); }
};

int32_t Cuenta(const Tramo& tramo, const TablasCuenta& tablas) {
    return Recorrer(tramo, PruebaCuenta{Busqueda64(tablas.Valor), Busqueda16(tablas.Pasa)});
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
        V codigo = hn::Zero(d);
        for (size_t p = 0; p < Pares; ++p) codigo = hn::SaturatedAdd(codigo, CodigoDePar(clases, p));
        const V bits = hn::And(codigo, hn::Set(d, TablasClases::Rechazo | 15));
        return hn::And(pasa(bits), sumaPasa(clases.Suma(0, 6)));
    }

    HWY_INLINE V CodigoDePar(const Seis& clases, size_t p) const {
        const Busqueda16 peso(Peso[p]);
        V cuentas = peso(clases.v[0]);
        for (int r = 1; r < 6; ++r) cuentas = hn::Add(cuentas, peso(clases.v[r]));
        const Busqueda16 baja(tablas.Codigo[2 * p]), alta(tablas.Codigo[2 * p + 1]);
        return hn::SaturatedAdd(baja(hn::And(cuentas, hn::Set(d, 15))), alta(hn::ShiftRight<4>(cuentas)));
    }
};

int32_t Clases(const Tramo& tramo, const TablasClases& tablas) {
    return tablas.Clases <= 6 ? Recorrer(tramo, PruebaClases<3>(tablas)) : Recorrer(tramo, PruebaClases<5>(tablas));
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Cuenta);
HWY_EXPORT(Clases);
} // namespace

int32_t NucleoCuenta(const Tramo& tramo, const TablasCuenta& tablas) {
    return HWY_DYNAMIC_DISPATCH(Cuenta)(tramo, tablas);
}

int32_t NucleoClases(const Tramo& tramo, const TablasClases& tablas) {
    return HWY_DYNAMIC_DISPATCH(Clases)(tramo, tablas);
}
#endif
