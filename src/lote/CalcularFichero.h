// The calculation that an order on a final system begins with.
#pragma once

#include <string>

#include "Lote.h"

/// Opens the base file and calculates; a reduction without an end of its own makes one cycle. The bets of
/// the file `sistema`, unless it is empty, then take the place of the final system. False after a box.
bool CalcularFichero(Lote& lote, const std::string& base, const std::string& sistema);
