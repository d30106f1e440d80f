// The kernel of the check against one draw: hits of each bet and the counts over a stretch of the table.
#pragma once

#include <array>
#include <cstdint>

#include "CategoriasPremio.h"
#include "Entorno.h"

/// What the check counts over many bets.
struct CuentaEscrutinio {
    CuentaAciertos Aciertos;
    int32_t Digitos = 0;       ///< bets of the chosen digit, whatever their hits
    int32_t SeisConDigito = 0; ///< those of them with six hits

    CuentaEscrutinio& operator+=(const CuentaEscrutinio& otra) {
        Aciertos += otra.Aciertos;
        Digitos += otra.Digitos;
        SeisConDigito += otra.SeisConDigito;
        return *this;
    }
    bool operator==(const CuentaEscrutinio&) const = default;
};

/// A draw as the kernel looks it up.
class alignas(64) SorteoPorNumero {
  public:
    static constexpr uint8_t SinDigito = 255;

    /// `digito` is the value of row 7 that is counted.
    SorteoPorNumero(const Sorteado& sorteo, uint8_t digito);

    /// By number, below 64: 1 for a winner, 16 for the complementary. The sum over a bet has the hits in
    /// its low half.
    std::array<uint8_t, 64> Valor{};
    uint8_t Digito;
};

/// Bets [0, n) of a stretch. `fila[r]` is row r + 1, the numbers all below 64; `aciertos` gets the hits of
/// each bet. All pointers are 64-byte aligned.
struct TramoEscrutinio {
    const uint8_t* fila[7];
    uint8_t* aciertos;
    int64_t n;
};

/// Checks the bets of the stretch. Both give the same; the second one goes bet by bet.
CuentaEscrutinio NucleoEscrutar(const TramoEscrutinio& tramo, const SorteoPorNumero& sorteo);
CuentaEscrutinio NucleoEscrutarEscalar(const TramoEscrutinio& tramo, const SorteoPorNumero& sorteo);

/// Bets between two turns of the event loop.
inline constexpr int64_t ApuestasPorTurnoEscrutinio = 5000;

/// Checks the first `cuantas` bets of a table of seven rows; the one row of `aciertos` gets the hits of each
/// bet. Throws std::bad_alloc.
CuentaEscrutinio EscrutarTabla(const Tabla& apuestas, int32_t cuantas, const SorteoPorNumero& sorteo, Tabla& aciertos,
                               Entorno& entorno);
