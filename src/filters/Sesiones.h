// How a working state begins, is reset and changes game.
#pragma once

#include "Entorno.h"
#include "Sesion.h"

/// Defaults of the reduction settings and of the nineteen records (rows keep their state).
void InicializarFiltros(Sesion& sesion, Entorno& entorno);

/// The start of the program: everything at its default, rows filled, PRIMITIVA, title without file.
void IniciarSesion(Sesion& sesion, Entorno& entorno);

/// Back to an empty piece of work of the current game, titled "Sin guardar.xml" and saved, whose tables
/// hold no memory. With a base imported from a file the marks, the file and the tables stay.
void ReiniciarSesion(Sesion& sesion, Entorno& entorno);

/// Changes the game: clears the marks and colours the rows; conditions, title and reduction stay.
void CambiarJuego(Sesion& sesion, int juego);

/// Rebuilds the NºACT text of a row with blocks, or of the reduction row; other rows stay.
void ActualizarFila(Sesion& sesion, int k);

/// Empties the ELIMINAN column, then writes the counts of the active rows in it.
void ReiniciarEliminados(Sesion& sesion);

/// The row's own switch, as the right button works it: leaves the saved flag as it is.
void AlternarFila(Sesion& sesion, int k);
