// The proof of a system, apart from every search: each conditioned bet against each bet of the system.
#pragma once

#include <cstdint>
#include <vector>

#include "Tabla.h"
#include "Vigia.h"

/// Bets of the table, rows 1 to 6 with positions 1 to 49 of the base, that have at least t of them in
/// common with some bet of the system; bit p - 1 of its masks is position p.
int64_t ContarCubiertas(const Tabla& condicionadas, const std::vector<uint64_t>& sistema, int t,
                        const Vigia& vigia = {});

/// Whether the system has no bet twice and consists of bets of the table alone.
bool SonCondicionadas(const Tabla& condicionadas, std::vector<uint64_t> sistema, const Vigia& vigia = {});
