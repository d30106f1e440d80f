// What the algebra of combinations does with whole systems. Systems are tables of real numbers, each bet
// with its numbers ascending; results have seven rows, of which these write 1 to 6.
//
//     Tabla resultado;
//     SumarSinRepetidas(uno, otro, resultado, [] { return true; });
#pragma once

#include <functional>

#include "Tabla.h"

/// Called every some thousands of bets; false stops the work.
using Turno = std::function<bool()>;

// Each returns false when it was stopped, and the result is then unspecified. All throw std::bad_alloc,
// for the result, 6 bytes a bet, or for what they need besides it, as told.

/// The bets of one system behind those of the other, as they stand. Needs nothing else.
bool SumarDirecto(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno);

/// Each bet that is in some of the systems once, in the order of sequence numbers. Needs 1.8 MB.
bool SumarSinRepetidas(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno);

/// The bets whose marks add up to 2, in the order of sequence numbers: being in system 1, however often,
/// is one mark, and each time in system 2 another. So a bet that system 2 alone holds twice is taken,
/// and one of system 1 that system 2 holds twice is not. Needs 7 MB.
bool Intersecar(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno);

/// The bets of system 1 that system 2 does not hold, once each, in the order of sequence numbers. Needs
/// 1.8 MB.
bool Restar(const Tabla& s1, const Tabla& s2, Tabla& resultado, const Turno& turno);

/// The bets of a system in the order of sequence numbers, repeated ones as often as they are. Needs 14 MB.
bool OrdenarSistema(const Tabla& sistema, bool descendente, Tabla& resultado, const Turno& turno);
