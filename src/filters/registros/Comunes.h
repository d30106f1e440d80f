// What the records of the filters are made of.
#pragma once

#include <array>
#include <cstdint>
#include <string>

/// Flags by hit count 0 to 6: 1 means that this count is allowed.
using TablaAciertos = std::array<uint8_t, 7>;

/// Flags by number, 1 to 49; entry 0 is not used.
using MarcasNumeros = std::array<uint8_t, 50>;

/// An interval with both bounds 0 is not in use.
struct Intervalo {
    int16_t Minimo = 0, Maximo = 0;
    bool EnUso() const { return Minimo != 0 || Maximo != 0; }
    bool Contiene(int valor) const { return valor >= Minimo && valor <= Maximo; }
    bool operator==(const Intervalo&) const = default;
};

/// Indices of the set flags from `primero`, joined by "," without blanks: "0,2,3". Empty for none.
template <class Marcas>
std::string TextoLista(const Marcas& marcas, size_t primero = 0) {
    std::string lista;
    for (size_t i = primero; i < marcas.size(); ++i)
        if (marcas[i] == 1) lista += (lista.empty() ? "" : ",") + std::to_string(i);
    return lista;
}

/// A table or a list of figures is in force when at least one of its flags is 1.
template <class Marcas>
bool EnVigor(const Marcas& marcas) {
    for (const auto marca : marcas)
        if (marca == 1) return true;
    return false;
}
