// The exact hit counts of all k-subsets of the base at once.
#pragma once

#include "Cadencia.h"
#include "OrdenSubconjuntos.h"
#include "TablaGarantias.h"

/// Which candidates count, and what is asked of the caller meanwhile.
struct PedidoExpansion {
    int k;               ///< 2 to 6
    const uint8_t* Mapa; ///< by rank, non-zero for the candidates that count; null for all
    int64_t Candidatas;  ///< how many count, for the cadence
    const Turno& turno;
};

/// Adds to `tabla` every k-subset that counts. `bets` holds for each subset of up to k positions how many
/// bets of the system hold it. The cost does not depend on the system. False when stopped, and then
/// `tabla` is left as it was. Throws std::bad_alloc.
///
/// Counters of 16 bits serve systems of fewer than 65,535 bets: the highest value means "none".
bool ExpandirAciertos(const OrdenSubconjuntos& orden, PlanosSubconjunto<uint16_t>& bets, const PedidoExpansion& pedido,
                      TablaGarantias& tabla);
bool ExpandirAciertos(const OrdenSubconjuntos& orden, PlanosSubconjunto<uint32_t>& bets, const PedidoExpansion& pedido,
                      TablaGarantias& tabla);
