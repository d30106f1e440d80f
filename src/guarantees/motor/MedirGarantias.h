// The measure of a system against all draws of k numbers, or against given ones, by the cheapest way.
#pragma once

#include <optional>

#include "Cadencia.h"
#include "OrdenSubconjuntos.h"
#include "TablaGarantias.h"

/// The ways to the same result.
enum class Via {
    Mascaras,  ///< a population count for each candidate and bet; next to no memory
    Sumas,     ///< for each candidate, sums of the bets that hold its subsets
    Expansion, ///< all subsets of the base at once, whatever the system
};

/// What is measured, and how to yield meanwhile. `via` forces a way.
///
/// The counts of subsets take 2 bytes for each subset of up to k numbers, 4 from 65,535 bets on: for 49
/// numbers and k = 6, 32 or 64 MB; the expansion takes 10 or 20 MB more, and given candidates a byte for
/// each set of six numbers of the base.
struct PedidoMedida {
    const std::vector<Mascara>& sistema;
    int numerosBase;
    const Turno& turno;
    std::optional<Via> via{};
};

/// Measures against every set of k numbers of the base, 1 to 6. False when stopped, and `tabla` is as it
/// was. Throws std::bad_alloc.
bool MedirTotal(const PedidoMedida& pedido, int k, TablaGarantias& tabla);

/// Measures against the first `cuantas` bets of a table of positions of the base, repeated ones each time.
bool MedirCandidatas(const PedidoMedida& pedido, const Tabla& candidatas, int64_t cuantas, TablaGarantias& tabla);
