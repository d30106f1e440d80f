// The scalar twins of the kernels of groups.
#include <bit>

#include "Escalares.h"
#include "NucleosGrupos.h"

namespace {

// Hits of each of eight groups in a bet.
using Recuento = std::array<size_t, 8>;

Recuento Contar(const SeisValores& miembro) {
    Recuento cuenta{};
    for (const int m : miembro)
        for (size_t g = 0; g < 8; ++g) cuenta[g] += static_cast<size_t>(m >> g & 1);
    return cuenta;
}

// Bit g is set when group g is satisfied.
unsigned Satisfechos(const Recuento& cuenta, const AciertosDeOcho& permite) {
    unsigned grupos = 0;
    for (size_t g = 0; g < 8; ++g) grupos |= permite[cuenta[g]] & 1u << g;
    return grupos;
}

SeisValores PorFila(const Tramo& tramo, int64_t i, const std::array<PorPosicion, 6>& tablas) {
    SeisValores v;
    for (size_t r = 0; r < 6; ++r) v[r] = tablas[r][tramo.fila[r][i] & 63u];
    return v;
}

bool CondicionesCasan(const Recuento& cuenta, const TablasRelacionados& tablas) {
    std::array<unsigned, 64> subgrupos{}; // by set of conditions: the subgroups that satisfy one of them
    for (unsigned conjunto = 1; conjunto < 1u << tablas.Condiciones; ++conjunto) {
        const auto primera = static_cast<size_t>(std::countr_zero(conjunto));
        subgrupos[conjunto] = subgrupos[conjunto & (conjunto - 1)] | Satisfechos(cuenta, tablas.Permite[primera]);
        if (std::popcount(subgrupos[conjunto]) < std::popcount(conjunto)) return false;
    }
    return true;
}

int CuantosSatisfechos(const Tramo& tramo, int64_t i, const std::vector<OchoGrupos>& grupos) {
    int satisfechos = 0;
    for (const OchoGrupos& ocho : grupos)
        satisfechos += std::popcount(Satisfechos(Contar(Valores(tramo, i, ocho.Miembro)), ocho.Permite));
    return satisfechos;
}

} // namespace

int32_t NucleoPosicionesEscalar(const Tramo& tramo, const TablasPosiciones& tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) {
        for (const int pasa : PorFila(tramo, i, tablas.Pasa))
            if (pasa == 0) return false;
        return true;
    });
}

int32_t NucleoGruposEscalar(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) {
        for (const OchoGruposPorFila& ocho : tablas)
            if (Satisfechos(Contar(PorFila(tramo, i, ocho.Miembro)), ocho.Permite) != 0xFF) return false;
        return true;
    });
}

void RespuestasGruposEscalar(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas, uint8_t* respuestas) {
    const auto satisfechos = [&](int64_t i) {
        int cuantos = 0;
        for (const OchoGruposPorFila& ocho : tablas)
            cuantos += std::popcount(Satisfechos(Contar(PorFila(tramo, i, ocho.Miembro)), ocho.Permite));
        return cuantos;
    };
    EscribirUnaAUna(tramo, satisfechos, respuestas);
}

int32_t NucleoLimitesEscalar(const Tramo& tramo, const TablasLimites& tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) {
        const int satisfechos = CuantosSatisfechos(tramo, i, tablas.Grupos);
        return satisfechos >= tablas.Minimo && satisfechos <= tablas.Maximo;
    });
}

void RespuestasLimitesEscalar(const Tramo& tramo, const TablasLimites& tablas, uint8_t* respuestas) {
    EscribirUnaAUna(
        tramo, [&](int64_t i) { return CuantosSatisfechos(tramo, i, tablas.Grupos); }, respuestas);
}

int32_t NucleoRelacionadosEscalar(const Tramo& tramo, std::span<const TablasRelacionados> tablas) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) {
        for (const TablasRelacionados& grupo : tablas)
            if (!CondicionesCasan(Contar(Valores(tramo, i, grupo.Miembro)), grupo)) return false;
        return true;
    });
}

void RespuestasRelacionadosEscalar(const Tramo& tramo, std::span<const TablasRelacionados> tablas,
                                   uint8_t* respuestas) {
    const auto casan = [&](int64_t i) {
        int cuantos = 0;
        for (const TablasRelacionados& grupo : tablas)
            cuantos += CondicionesCasan(Contar(Valores(tramo, i, grupo.Miembro)), grupo) ? 1 : 0;
        return cuantos;
    };
    EscribirUnaAUna(tramo, casan, respuestas);
}
