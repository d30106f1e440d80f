// The reduced system made smaller.
#pragma once

struct Entorno;
struct LogicaVentanaProceso;
struct Sesion;

/// Whether the settings ask for a guarantee that a smaller system could keep; a box tells why not.
bool ReduccionMejorable(const Sesion& sesion, Entorno& entorno);

/// Searches from `ApuestasReducidas` on for a smaller system with the guarantee of the settings, or, where a
/// number of bets was asked for that does not cover everything, for as many bets that cover more. Each
/// better one, proved, goes to the window. It ends when the window says so, when its own ends are reached
/// or when nothing is left to look for. Throws std::bad_alloc.
void MejorarReduccion(LogicaVentanaProceso& vp);
