// In how many draws a bet has the hits asked for: one question and three ways to its answer. All give
// the same; which is the quickest depends on the number of bets and draws, and on the bets' order.
#pragma once

#include <array>
#include <vector>

#include "Entorno.h"
#include "EstadoTrabajo.h"
#include "NucleosReparto.h"
#include "Registros.h"

/// The six numbers of a draw as positions in the base, 0 for a number that it lacks. A number that is
/// there twice counts as two hits.
using SorteoEnBase = std::array<uint8_t, 6>;

/// A bet passes when the draws in which it has hits that `Acertar` allows are `Minimo` to `Maximo`.
struct PreguntaSorteos {
    std::vector<SorteoEnBase> Sorteos;
    TablaAciertos Acertar{};        ///< 1 or 0
    int32_t Minimo = 0, Maximo = 0; ///< 0 <= Minimo <= Maximo <= number of draws
};

/// The ways to the answers.
enum class ManeraSorteos {
    Comparando, ///< every bet with every draw
    Expansion,  ///< of a whole expansion the answers come one after the other, whatever the number of draws
    Consultando ///< first the answers of all bets of the ticket, then the table's bets look theirs up
};

/// Marks the live bets that do not pass and returns how many it marked.
int32_t FiltrarSorteos(ManeraSorteos manera, EstadoTrabajo& trabajo, Entorno& entorno, const PreguntaSorteos& pregunta);

/// Live bets by their number of draws with hits that `Acertar` allows, from 0 to all draws; the flags are
/// those of EstadoApuesta. The limits of the question have no part in it.
std::vector<CuentaValor> RepartirSorteos(ManeraSorteos manera, EstadoTrabajo& trabajo, Entorno& entorno,
                                         PreguntaSorteos pregunta);
