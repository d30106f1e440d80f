// The check against one draw as it is told: each number of each bet against the winning ones.
#pragma once

#include <array>
#include <cstdint>

#include "NucleoEscrutar.h"

struct EscrutarLiteral {
    std::array<uint8_t, 6> ganadores{};
    uint8_t complementario = 0;
    int digito = -1; ///< none

    int Aciertos(const Tabla& apuestas, int64_t i) const {
        int aciertos = 0;
        for (int r = 1; r <= 6; ++r)
            for (const uint8_t ganador : ganadores)
                if (apuestas(r, i) == ganador) {
                    ++aciertos;
                    break;
                }
        return aciertos;
    }

    bool TieneComplementario(const Tabla& apuestas, int64_t i) const {
        for (int r = 1; r <= 6; ++r)
            if (apuestas(r, i) == complementario) return true;
        return false;
    }

    CuentaEscrutinio operator()(const Tabla& apuestas) const {
        CuentaEscrutinio cuenta;
        for (int64_t i = 1; i <= apuestas.Apuestas(); ++i) {
            const int aciertos = Aciertos(apuestas, i);
            ++cuenta.Aciertos.Aciertos[static_cast<size_t>(aciertos)];
            if (aciertos == 5 && TieneComplementario(apuestas, i)) ++cuenta.Aciertos.CincoC;
            if (apuestas(7, i) == digito) {
                ++cuenta.Digitos;
                if (aciertos == 6) ++cuenta.SeisConDigito;
            }
        }
        return cuenta;
    }
};
