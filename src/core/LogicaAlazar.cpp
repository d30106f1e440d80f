#include "LogicaAlazar.h"

#include <algorithm>

#include "Boleto.h"

void LogicaAlazar::Marcar() {
    MarcarAlazar(trabajo, std::clamp<int>(cboNumeros, 1, trabajo.NumeroMaximo()));
}
