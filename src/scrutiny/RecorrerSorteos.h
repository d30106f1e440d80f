// A system against a list of draws, told draw by draw.
#pragma once

#include <functional>
#include <span>

#include "CategoriasPremio.h"

/// What a walk over draws calls.
struct PasosRecorrido {
    /// Many times a second, with the part done from 0 to 1: shows it and gives the event loop a turn.
    /// False stops the walk.
    std::function<bool(double parte)> Seguir;
    /// For each draw in order, counted from 0, with the bets by hits. False stops the walk.
    std::function<bool(size_t sorteo, const CuentaAciertos& cuenta)> AlContar;
};

/// Counts the bets, whose numbers are six different ones of 1 to 49, against each draw. Draws are counted
/// some hundreds or thousands at a time and then told one by one, so that a stop leaves out those
/// of the batch in hand. False when it was stopped.
bool RecorrerSorteos(const Tabla& apuestas, std::span<const Sorteado> sorteos, const PasosRecorrido& pasos);
