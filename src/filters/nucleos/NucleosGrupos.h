// The kernels of the filters with groups of numbers, positions and marks. They keep the contract of
// Nucleos.h.
#pragma once

#include <span>
#include <vector>

#include "Comunes.h"
#include "Nucleos.h"

/// Each position of the bet must hold a number that its own table lets pass.
struct alignas(64) TablasPosiciones {
    std::array<PorPosicion, 6> Pasa{}; ///< by row: 1 or 0
};
int32_t NucleoPosiciones(const Tramo& tramo, const TablasPosiciones& tablas);
int32_t NucleoPosicionesEscalar(const Tramo& tramo, const TablasPosiciones& tablas);

/// Bit g of entry h: group g allows h hits.
using AciertosDeOcho = std::array<uint8_t, 7>;

/// Eight groups side by side, one bit for each, where a number may count in some rows alone. A bet
/// must satisfy all eight.
struct alignas(64) OchoGruposPorFila {
    std::array<PorPosicion, 6> Miembro{}; ///< by row: the groups in which a number there is a hit
    AciertosDeOcho Permite{};
};
int32_t NucleoGrupos(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas);
int32_t NucleoGruposEscalar(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas);
/// The number of groups that a bet satisfies, at most 255.
void RespuestasGrupos(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas, uint8_t* respuestas);
void RespuestasGruposEscalar(const Tramo& tramo, std::span<const OchoGruposPorFila> tablas, uint8_t* respuestas);

/// Eight groups whose numbers count in any row.
struct alignas(64) OchoGrupos {
    PorPosicion Miembro{}; ///< the groups in which the number is a hit
    AciertosDeOcho Permite{};
};

/// The number of groups satisfied, at most 255, must lie in [Minimo, Maximo].
struct TablasLimites {
    std::vector<OchoGrupos> Grupos;
    uint8_t Minimo = 0, Maximo = 255;
};
int32_t NucleoLimites(const Tramo& tramo, const TablasLimites& tablas);
int32_t NucleoLimitesEscalar(const Tramo& tramo, const TablasLimites& tablas);
/// The number of groups satisfied.
void RespuestasLimites(const Tramo& tramo, const TablasLimites& tablas, uint8_t* respuestas);
void RespuestasLimitesEscalar(const Tramo& tramo, const TablasLimites& tablas, uint8_t* respuestas);

/// Up to six subgroups, a bit for each, and as many conditions. Each condition needs a subgroup of its
/// own whose hits it allows.
struct alignas(64) TablasRelacionados {
    PorPosicion Miembro{};                   ///< the subgroups in which the number is a hit
    std::array<AciertosDeOcho, 6> Permite{}; ///< by condition: the subgroups that satisfy it, by hits
    int Condiciones = 0;                     ///< how many exist; with none a bet passes
};
int32_t NucleoRelacionados(const Tramo& tramo, std::span<const TablasRelacionados> tablas);
int32_t NucleoRelacionadosEscalar(const Tramo& tramo, std::span<const TablasRelacionados> tablas);
/// How many of the tables a bet satisfies, at most 255.
void RespuestasRelacionados(const Tramo& tramo, std::span<const TablasRelacionados> tablas, uint8_t* respuestas);
void RespuestasRelacionadosEscalar(const Tramo& tramo, std::span<const TablasRelacionados> tablas, uint8_t* respuestas);
