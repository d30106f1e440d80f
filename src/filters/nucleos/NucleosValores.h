// The kernels of the filters that give each number a value. They keep the contract of Nucleos.h.
#pragma once

#include <span>
#include <vector>

#include "Comunes.h"
#include "Nucleos.h"

/// 16 bits for each position: the low byte and the high one.
struct alignas(64) PalabrasPorPosicion {
    PorPosicion Baja{}, Alta{};

    void Poner(size_t posicion, int32_t valor) {
        Baja[posicion] = static_cast<uint8_t>(valor & 0xFF);
        Alta[posicion] = static_cast<uint8_t>(valor >> 8 & 0xFF);
    }
    /// With sign, for a position below 64.
    int16_t Valor(size_t posicion) const {
        return static_cast<int16_t>(static_cast<uint16_t>(Baja[posicion] | Alta[posicion] << 8));
    }
};

/// The sum of the marks must lie in one of the intervals. The vectors add in 16 bits, which the sum of
/// six marks of at most `MayorMarca` never leaves.
struct TablasValoraciones {
    static constexpr int MayorMarca = INT16_MAX / 6;
    PalabrasPorPosicion Marca;
    std::vector<Intervalo> Intervalos; ///< those in use
    bool SumaEn16Bits = true;          ///< no mark is above `MayorMarca` or below its opposite
};
int32_t NucleoValoraciones(const Tramo& tramo, std::span<const TablasValoraciones> tablas);
int32_t NucleoValoracionesEscalar(const Tramo& tramo, std::span<const TablasValoraciones> tablas);

/// The sum of the values of the six positions of bet `i`, exact.
int SumaDeMarcas(const Tramo& tramo, int64_t i, const PalabrasPorPosicion& valores);
