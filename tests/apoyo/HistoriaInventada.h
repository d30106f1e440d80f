// A seeded history of draws that never were, the same on every machine: as draws, as an answer of the
// service and as a draw file.
//
//     const Sorteos sorteos = SorteosInventados(BONOLOTO, 900);
//     EscribirTodo(ruta, TextoFicheroSorteos(sorteos));
//     servicio.Respuesta(RespuestaXML(BONOLOTO, sorteos, PremiosInventados(sorteos)));
#pragma once

#include <string>
#include <vector>

#include "ConsultarServicioSorteos.h"
#include "Juegos.h"
#include "Sorteos.h"

/// Draws of a day each from the first of January 1990 on, 300 a year: ascending numbers of the game, a
/// complementary that is none of them (0 under EURODREAMS), a digit.
Sorteos SorteosInventados(int juego, size_t cuantos, uint32_t semilla = 1);

/// Money for each of the draws, whole cents.
std::vector<SorteoConPremios> PremiosInventados(const Sorteos& sorteos, uint32_t semilla = 1);

/// The service's answer; without prizes only the list of draws.
std::string RespuestaXML(int juego, const Sorteos& sorteos, const std::vector<SorteoConPremios>& premios = {});

/// The draw file as an update writes it.
std::string TextoFicheroSorteos(const Sorteos& sorteos);
