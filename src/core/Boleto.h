// The ticket's rules: how marks are set and counted, and what they say of the base.
#pragma once

#include "Entorno.h"
#include "EstadoTrabajo.h"

/// Marked numbers among 1 to `NumeroMaximo`; higher ones do not count even if marked, but in a base
/// imported from a file.
int16_t ContarBase(const EstadoTrabajo& trabajo);

/// Rebuilds `NumerosBase` and `BaseNumeros` from the marks.
void LeerBase(EstadoTrabajo& trabajo);

/// After any change of the marks: C(n,6) in the first two counters, "0" in the third.
void ActualizarContadores(EstadoTrabajo& trabajo);

/// The base size as the window shows it: the count and " Números".
std::string TextoTipoCombinacion(const EstadoTrabajo& trabajo);

/// Each toggles marks as a click does. Rows r 0 to 9, columns c 0 to 4; the number r + 1, or 10c + 1,
/// decides for all the others of its row or column.
void PulsarNumero(EstadoTrabajo& trabajo, int numero);
void PulsarReintegro(EstadoTrabajo& trabajo, int digito);
void PulsarFila(EstadoTrabajo& trabajo, int r);
void PulsarColumna(EstadoTrabajo& trabajo, int c);

/// Clears all marks if there is one, digits included; otherwise marks the 49 numbers. Unmarking
/// leaves the saved flag as it was.
void MarcarDesmarcarTODOS(EstadoTrabajo& trabajo);

/// Clears the marks of numbers and digits; the counters follow.
void LimpiarMarcas(EstadoTrabajo& trabajo);

/// Marks, indexed by number, of `cuantos` different numbers of 1 to `maximo` drawn at random.
std::array<bool, NumeroMaximoBoleto + 1> SortearMarcas(int maximo, int cuantos);

/// Marks `cuantos` numbers of the game drawn at random, in place of those marked.
void MarcarAlazar(EstadoTrabajo& trabajo, int cuantos);

/// Whether the marked digits suit the game and the digit mode; shows the box and returns false if not.
bool ValidarReintegros(const EstadoTrabajo& trabajo, Entorno& entorno);
