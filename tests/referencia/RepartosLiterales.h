// What the filters test, one bet at a time: the values by which a spread counts.
#pragma once

#include <string>
#include <vector>

#include "Sesion.h"

/// One thing that a filter tests, with its value for each bet of the table, dead ones too.
struct ApartadoLiteral {
    std::string Nombre;
    std::vector<int32_t> Valores;
};

/// For filter `k`, in the order in which its spread tells them.
std::vector<ApartadoLiteral> ApartadosLiterales(int k, const Sesion& sesion);
