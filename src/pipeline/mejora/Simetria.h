// Permutations of the base under which a system may be the same, and what they leave of the problem.
#pragma once

#include <array>
#include <vector>

#include "Familia.h"
#include "Recubrimiento.h"
#include "Rnd.h"

/// Image of each bit, from 0.
using Permutacion = std::array<uint8_t, 49>;

/// Where the permutation takes a subset.
uint64_t Imagen(const Permutacion& p, uint64_t mascara);

/// A group of permutations by its generators.
using Simetria = std::vector<Permutacion>;

/// Positions that a symmetry may exchange: by bit, the number of its class.
using Clases = std::array<uint8_t, 49>;

/// Bits in as many members of the family have the same class, counted from 0 in order of appearance.
Clases ClasesDe(const Familia& familia);

/// A random symmetry: a permutation in cycles of few lengths, each within a class, or several times over,
/// and up to two more that turn its cycles into its cycles. Empty when chance left nothing.
Simetria SimetriaAlAzar(const Clases& clases, int n, Azar& azar);

/// A symmetry with less of what `simetria` asks: a generator left out or raised to a power.
Simetria SimetriaMenor(const Simetria& simetria, Azar& azar);

/// The orbits of a family under a symmetry.
struct Orbitas {
    std::vector<int32_t> de;            ///< by member: its orbit
    std::vector<int32_t> representante; ///< by orbit: its first member
    std::vector<int32_t> tamanio;

    int32_t Cuantas() const { return static_cast<int32_t>(representante.size()); }
};

/// False when the symmetry leads out of the family, or there would be more than `tope` orbits.
bool HallarOrbitas(const Familia& familia, const Simetria& simetria, int32_t tope, Orbitas& orbitas,
                   const Vigia& vigia = {});

/// The members of these orbits.
std::vector<int32_t> Expandir(const Orbitas& orbitas, const std::vector<int32_t>& elegidas);

/// The covering of `filas` by `columnas` that have t in common with them, orbit by orbit. `exigido` is
/// left at the total. False when there would be more than `tope` pairs.
bool RecubrimientoDeOrbitas(const Familia& filas, const Orbitas& deFilas, const Familia& columnas,
                            const Orbitas& deColumnas, int t, int64_t tope, Recubrimiento& problema,
                            const Vigia& vigia = {});

/// The same of the members themselves.
bool RecubrimientoDirecto(const Familia& filas, const Familia& columnas, int t, int64_t tope, Recubrimiento& problema,
                          const Vigia& vigia = {});
