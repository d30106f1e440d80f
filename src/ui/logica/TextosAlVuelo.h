// What the counts made on the fly say of the conditions.
#pragma once

#include <string>

#include "AlVuelo.h"

/// "50,48 %" of `total`, halves away from zero; "0,00 %" of none.
std::string TextoTantoPorCiento(int64_t parte, int64_t total, char decimal);

/// Why there are no bets to count, empty when there are some.
std::string FaltaBase(const EstadoTrabajo& trabajo);

/// "Al vuelo: 7.059.052 (50,48 %)"; in words where no bet passes.
std::string TextoAlVuelo(const CuentaAlVuelo& cuenta, const Entorno& entorno);

/// The line under a condition's chart: "Pasan 7.059.052 de 13.983.816 (50,48 %)".
std::string TextoPasan(int32_t pasan, int32_t total, const Entorno& entorno);

/// The next one: "Con las otras activas: 302 (0,00 %)".
std::string TextoPasanJuntas(int32_t pasan, int32_t total, const Entorno& entorno);

/// The tip of a row: "Sola elimina 1.204 apuestas; sólo ella elimina 300 de ellas".
std::string TextoCoste(const CosteCondicion& coste, const Entorno& entorno);
