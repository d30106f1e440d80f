// The kernel of the coefficient of profitability. It keeps the contract of Nucleos.h.
#pragma once

#include <vector>

#include "NucleosValores.h"

using PorPosicionDoble = std::array<double, 64>;

/// The answer for a bet is that of the class of its coefficient. Most bets are answered by a sum of scaled
/// logarithms, those too near the edge of a class for that by products of doubles, and what these leave
/// open by the exact steps.
struct TablasCoeficiente {
    enum Respuesta : uint8_t { Falla, Pasa, Duda = 255 };

    PorPosicionDoble Apostado{}, Real{};             ///< percentages
    PorPosicionDoble FactorApostado{}, FactorReal{}; ///< p / 100, and 1 for a percentage that does not count
    std::array<int32_t, 101> PorClase{}; ///< answer of each class, entry 100 is `Duda`; gathered, so 32 bits
    /// All percentages above 0 lie in [1e-30, 1e30]: no product leaves the normal doubles.
    bool Moderados = true;

    PalabrasPorPosicion Logaritmo; ///< of real / played, scaled, modulo 2^16
    std::vector<uint8_t> PorSuma;  ///< answer of each of the 2^16 sums of six logarithms
};

/// Marks the live bets whose answer is `Falla`.
int32_t NucleoCoeficiente(const Tramo& tramo, const TablasCoeficiente& tablas);
int32_t NucleoCoeficienteEscalar(const Tramo& tramo, const TablasCoeficiente& tablas);

/// Writes the answer for each bet, live or not, in `respuestas`, which is aligned as the rows are and
/// written up to the next multiple of 64. `eliminada` is not looked at.
void NucleoRespuestas(const Tramo& tramo, const TablasCoeficiente& tablas, uint8_t* respuestas);
void NucleoRespuestasEscalar(const Tramo& tramo, const TablasCoeficiente& tablas, uint8_t* respuestas);

/// The exact steps for bet `i`.
uint8_t RespuestaExacta(const Tramo& tramo, int64_t i, const TablasCoeficiente& tablas);
