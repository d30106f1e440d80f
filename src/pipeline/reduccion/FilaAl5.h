// The inner loop of the choice "al 5" by rows.
#pragma once

#include <cstdint>

/// A run of up to 44 bets that share their first five positions. `sin[k]` are the counts of the
/// 5-subsets that leave out element k of the five and hold each of the last positions; `estado` the
/// bets' states (0 no bet, 5 uncovered, 128 covered). 16 bytes behind each run are readable.
struct FilaAl5 {
    const uint8_t* sin[5];
    const uint8_t* estado;
    int n;
};

/// Gain of the best bet of a row, without the count of the shared 5-subset, and its index; `ganancia`
/// is -1 when the row holds no bet.
struct MejorDeFila {
    int ganancia = -1;
    int indice = 0;
};

/// With the vectors of this processor.
MejorDeFila MejorDeFilaAl5(const FilaAl5& fila);

/// The same without vectors.
MejorDeFila MejorDeFilaEscalar(const FilaAl5& fila);
