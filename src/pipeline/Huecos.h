// The gaps of a system: the conditioned bets that it does not cover.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "EstadoTrabajo.h"

/// The bets of `ApuestasCondicionadas`, from 1, that have fewer than `aciertos` numbers, 1 to 6, in common
/// with every bet of `sistema`, a table of real numbers that may lie outside the base. One sweep over both
/// tables whatever their sizes. `turno()` is called now and then; false stops it, and then the result is
/// false. Memory: a bit for each subset of `aciertos` numbers of the base, and the result.
bool HallarHuecos(const EstadoTrabajo& trabajo, const Tabla& sistema, int aciertos, const std::function<bool()>& turno,
                  std::vector<int32_t>& huecos);

/// "12 de 924 (1,30 %)".
std::string TextoHuecos(int64_t huecos, int64_t condicionadas, char separador);

/// The report of the gaps: `texto`, their count, and the first hundred thousand of them.
inline constexpr std::string_view NombreInformeHuecos = "TOMBOLERA_HUECOS.txt";
std::string InformeHuecos(const EstadoTrabajo& trabajo, const std::vector<int32_t>& huecos, const std::string& texto);

/// The real numbers of a conditioned bet, twelve digits.
std::string DoceCifras(const EstadoTrabajo& trabajo, int32_t apuesta);
