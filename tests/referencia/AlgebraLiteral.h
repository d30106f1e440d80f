// The operations of the algebra of combinations in their plain steps: a mark for each bet.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <vector>

#include "Guion.h"
#include "modCSN.h"

enum class OperacionLiteral { Ordenar, OrdenarAlReves, Sumar, Unir, Comunes, Restar };

inline int32_t CSNDe(Apuesta a) {
    std::sort(a.begin(), a.end());
    std::array<uint8_t, 6> c;
    for (size_t r = 0; r < 6; ++r) c[r] = static_cast<uint8_t>(a[r]);
    return CombinacionaCSN(6, 49, c.data());
}

inline Apuesta ApuestaDe(int32_t csn) {
    std::array<uint8_t, 6> c;
    CSNaCombinacion(csn, 6, 49, c.data());
    return {c.begin(), c.end()};
}

inline std::vector<Apuesta> AlgebraLiteral(OperacionLiteral que, const std::vector<Apuesta>& s1,
                                           const std::vector<Apuesta>& s2) {
    std::vector<int32_t> orden;
    for (const Apuesta& a : s1) orden.push_back(CSNDe(a));
    if (que == OperacionLiteral::Ordenar) std::sort(orden.begin(), orden.end());
    if (que == OperacionLiteral::OrdenarAlReves) std::sort(orden.rbegin(), orden.rend());
    if (que == OperacionLiteral::Sumar)
        for (const Apuesta& a : s2) orden.push_back(CSNDe(a));
    std::vector<Apuesta> resultado;
    if (que <= OperacionLiteral::Sumar) {
        for (const int32_t csn : orden) resultado.push_back(ApuestaDe(csn));
        return resultado;
    }
    std::map<int32_t, int32_t> MarcaCSN; // what is not there is marked 0
    for (const Apuesta& a : s1) MarcaCSN[CSNDe(a)] = 1;
    for (const Apuesta& a : s2) {
        int32_t& marca = MarcaCSN[CSNDe(a)];
        marca = que == OperacionLiteral::Unir ? 1 : que == OperacionLiteral::Comunes ? marca + 1 : 0;
    }
    const int32_t buscada = que == OperacionLiteral::Comunes ? 2 : 1;
    for (const auto& [csn, marca] : MarcaCSN)
        if (marca == buscada) resultado.push_back(ApuestaDe(csn));
    return resultado;
}
