// Kernels that count hits in groups of numbers, eight groups at once.
#include "NucleosGrupos.h"

#include <algorithm>
#include <bit>

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosGrupos.cpp"
#include <hwy/foreach_target.h>

#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

int32_t Posiciones(const Tramo& tramo, const TablasPosiciones& t) {
    return NucleoPosicionesEscalar(tramo, t);
}
int32_t Grupos(const Tramo& tramo, std::span<const OchoGruposPorFila> t) {
    return NucleoGruposEscalar(tramo, t);
}
int32_t Limites(const Tramo& tramo, const TablasLimites& t) {
    return NucleoLimitesEscalar(tramo, t);
}
int32_t Relacionados(const Tramo& tramo, std::span<const TablasRelacionados> t) {
    return NucleoRelacionadosEscalar(tramo, t);
}
void GruposRespuestas(const Tramo& tramo, std::span<const OchoGruposPorFila> t, uint8_t* respuestas) {
    RespuestasGruposEscalar(tramo, t, respuestas);
}
void LimitesRespuestas(const Tramo& tramo, const TablasLimites& t, uint8_t* respuestas) {
    RespuestasLimitesEscalar(tramo, t, respuestas);
}
void RelacionadosRespuestas(const Tramo& tramo, std::span<const TablasRelacionados> t, uint8_t* respuestas) {
    RespuestasRelacionadosEscalar(tramo, t, respuestas);
}

#else

// Adds what `prueba(tramo, i)` gives to the bytes of the bets.
template <class Prueba>
HWY_INLINE void Anadir(const Tramo& tramo, const Prueba& prueba, uint8_t* respuestas) {
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t i = 0; i < tramo.n; i += ancho)
        hn::Store(hn::Add(hn::Load(d, respuestas + i), prueba(tramo, i)), d, respuestas + i);
}

void PonerCeros(const Tramo& tramo, uint8_t* respuestas) {
    std::fill(respuestas, respuestas + (tramo.n + 63) / 64 * 64, uint8_t{0});
}

// A table for each row.
struct SeisBusquedas {
    Busqueda64 fila[6];
    explicit SeisBusquedas(const std::array<PorPosicion, 6>& t)
        : fila{Busqueda64(t[0]), Busqueda64(t[1]), Busqueda64(t[2]),
               Busqueda64(t[3]), Busqueda64(t[4]), Busqueda64(t[5])} {}
    HWY_INLINE V operator()(const Tramo& tramo, int64_t i, int r) const {
        return fila[r](hn::Load(d, tramo.fila[r] + i));
    }
};

struct PruebaPosiciones {
    SeisBusquedas pasa;
    explicit PruebaPosiciones(const TablasPosiciones& t) : pasa(t.Pasa) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        V todas = pasa(tramo, i, 0);
        for (int r = 1; r < 6; ++r) todas = hn::And(todas, pasa(tramo, i, r));
        return todas;
    }
};

int32_t Posiciones(const Tramo& tramo, const TablasPosiciones& t) {
    return Recorrer(tramo, PruebaPosiciones(t));
}

// The verdicts of eight groups, ready for the vectors.
struct Permisos {
    V con[7];
    explicit Permisos(const AciertosDeOcho& permite) {
        for (size_t h = 0; h < permite.size(); ++h) con[h] = hn::Set(d, permite[h]);
    }
};

// Eight counts in each byte: bit g of the three planes together is the count of hits of group g.
class Recuento {
  public:
    HWY_INLINE explicit Recuento(const V (&m)[6]) {
        const V s = hn::Xor3(m[0], m[1], m[2]), t = hn::Xor3(m[3], m[4], m[5]);
        const V c = Acarreo(m[0], m[1], m[2]), e = Acarreo(m[3], m[4], m[5]);
        const V f = hn::And(s, t);
        unidades_ = hn::Xor(s, t);
        doses_ = hn::Xor3(c, e, f);
        cuatros_ = Acarreo(c, e, f);
    }

    /// For each group its bit of the entry that its count chooses. A count of 7 does not occur.
    HWY_INLINE V Elegir(const Permisos& permite) const {
        const V* p = permite.con;
        const V hasta1 = Segun(unidades_, p[1], p[0]);
        const V hasta3 = Segun(unidades_, p[3], p[2]);
        const V hasta5 = Segun(unidades_, p[5], p[4]);
        return Segun(cuatros_, Segun(doses_, p[6], hasta5), Segun(doses_, hasta3, hasta1));
    }

  private:
    static HWY_INLINE V Acarreo(V a, V b, V c) { return hn::OrAnd(hn::And(a, b), c, hn::Xor(a, b)); }
    static HWY_INLINE V Segun(V bits, V si, V no) { return hn::OrAnd(hn::AndNot(bits, no), bits, si); }

    V unidades_, doses_, cuatros_;
};

// Of eight groups, a bit for each that the bet satisfies.
struct OchoPorFila {
    SeisBusquedas miembro;
    Permisos permite;
    explicit OchoPorFila(const OchoGruposPorFila& t) : miembro(t.Miembro), permite(t.Permite) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        V m[6];
        for (int r = 0; r < 6; ++r) m[r] = miembro(tramo, i, r);
        return Recuento(m).Elegir(permite);
    }
};

struct PruebaGrupos {
    OchoPorFila satisfechos;
    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        return hn::VecFromMask(d, hn::Eq(satisfechos(tramo, i), hn::Set(d, 0xFF)));
    }
};

struct CuentaGrupos {
    OchoPorFila satisfechos;
    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const { return hn::PopulationCount(satisfechos(tramo, i)); }
};

int32_t Grupos(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas) {
    int32_t marcadas = 0;
    for (const OchoGruposPorFila& ocho : tablas) marcadas += Recorrer(tramo, PruebaGrupos{OchoPorFila(ocho)});
    return marcadas;
}

void GruposRespuestas(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas, uint8_t* respuestas) {
    PonerCeros(tramo, respuestas);
    for (const OchoGruposPorFila& ocho : tablas) Anadir(tramo, CuentaGrupos{OchoPorFila(ocho)}, respuestas);
}

struct CuentaLimites {
    const TablasLimites& tablas;

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        V satisfechos = hn::Zero(d);
        for (const OchoGrupos& ocho : tablas.Grupos) {
            const Recuento cuenta(Seis(tramo, i, Busqueda64(ocho.Miembro)).v);
            satisfechos = hn::Add(satisfechos, hn::PopulationCount(cuenta.Elegir(Permisos(ocho.Permite))));
        }
        return satisfechos;
    }
};

struct PruebaLimites {
    CuentaLimites contar;

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const V satisfechos = contar(tramo, i);
        const V fuera = hn::Or(hn::SaturatedSub(hn::Set(d, contar.tablas.Minimo), satisfechos),
                               hn::SaturatedSub(satisfechos, hn::Set(d, contar.tablas.Maximo)));
        return hn::VecFromMask(d, hn::Eq(fuera, hn::Zero(d)));
    }
};

int32_t Limites(const Tramo& tramo, const TablasLimites& tablas) {
    return Recorrer(tramo, PruebaLimites{{tablas}});
}

void LimitesRespuestas(const Tramo& tramo, const TablasLimites& tablas, uint8_t* respuestas) {
    Escribir(tramo, CuentaLimites{tablas}, respuestas);
}

// A choice of different subgroups exists exactly when any c of the conditions are satisfied by c or
// more subgroups between them.
struct PruebaRelacionados {
    Busqueda64 miembro;
    const TablasRelacionados& tablas;
    explicit PruebaRelacionados(const TablasRelacionados& t) : miembro(t.Miembro), tablas(t) {}

    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const {
        const Recuento cuenta(Seis(tramo, i, miembro).v);
        V subgrupos[64]; // by set of conditions: the subgroups that satisfy one of them
        subgrupos[0] = hn::Zero(d);
        V faltan = hn::Zero(d);
        for (int c = 0; c < tablas.Condiciones; ++c) {
            const V satisfacen = cuenta.Elegir(Permisos(tablas.Permite[static_cast<size_t>(c)]));
            const unsigned nueva = 1u << c;
            for (unsigned conjunto = 0; conjunto < nueva; ++conjunto) {
                const V unidos = hn::Or(subgrupos[conjunto], satisfacen);
                subgrupos[conjunto | nueva] = unidos;
                const auto hacenFalta = static_cast<uint8_t>(std::popcount(conjunto) + 1);
                faltan = hn::Or(faltan, hn::SaturatedSub(hn::Set(d, hacenFalta), hn::PopulationCount(unidos)));
            }
        }
        return hn::VecFromMask(d, hn::Eq(faltan, hn::Zero(d)));
    }
};

int32_t Relacionados(const Tramo& tramo, std::span<const TablasRelacionados> tablas) {
    int32_t marcadas = 0;
    for (const TablasRelacionados& grupo : tablas) marcadas += Recorrer(tramo, PruebaRelacionados(grupo));
    return marcadas;
}

struct UnoSiCasan {
    PruebaRelacionados casan;
    HWY_INLINE V operator()(const Tramo& tramo, int64_t i) const { return hn::And(casan(tramo, i), hn::Set(d, 1)); }
};

void RelacionadosRespuestas(const Tramo& tramo, std::span<const TablasRelacionados> tablas, uint8_t* respuestas) {
    PonerCeros(tramo, respuestas);
    for (const TablasRelacionados& grupo : tablas) Anadir(tramo, UnoSiCasan{PruebaRelacionados(grupo)}, respuestas);
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Posiciones);
HWY_EXPORT(Grupos);
HWY_EXPORT(Limites);
HWY_EXPORT(Relacionados);
HWY_EXPORT(GruposRespuestas);
HWY_EXPORT(LimitesRespuestas);
HWY_EXPORT(RelacionadosRespuestas);
} // namespace

int32_t NucleoPosiciones(const Tramo& tramo, const TablasPosiciones& tablas) {
    return HWY_DYNAMIC_DISPATCH(Posiciones)(tramo, tablas);
}

int32_t NucleoGrupos(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas) {
    return HWY_DYNAMIC_DISPATCH(Grupos)(tramo, tablas);
}

int32_t NucleoLimites(const Tramo& tramo, const TablasLimites& tablas) {
    return HWY_DYNAMIC_DISPATCH(Limites)(tramo, tablas);
}

int32_t NucleoRelacionados(const Tramo& tramo, std::span<const TablasRelacionados> tablas) {
    return HWY_DYNAMIC_DISPATCH(Relacionados)(tramo, tablas);
}

void RespuestasGrupos(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(GruposRespuestas)(tramo, tablas, respuestas);
}

void RespuestasLimites(const Tramo& tramo, const TablasLimites& tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(LimitesRespuestas)(tramo, tablas, respuestas);
}

void RespuestasRelacionados(const Tramo& tramo, std::span<const TablasRelacionados> tablas, uint8_t* respuestas) {
    HWY_DYNAMIC_DISPATCH(RelacionadosRespuestas)(tramo, tablas, respuestas);
}
#endif
