// The works of the scrutiny that are measured, and what they share.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Tabla.h"

struct TrabajoEscrutinio {
    std::string nombre;
    double permitido; ///< times one reading of the whole ticket, 84 MB
    std::function<int64_t()> hacer;
    int64_t esperado; ///< what `hacer` returns
};

/// Adds the check against one draw. `boleto` has every bet of 49 numbers in seven rows and outlives them.
void AnotarUnSorteo(const Tabla& boleto, std::vector<TrabajoEscrutinio>& trabajos);
/// Adds the check against many draws, of a part of the ticket and of all of it.
void AnotarVariosSorteos(const Tabla& boleto, std::vector<TrabajoEscrutinio>& trabajos);
