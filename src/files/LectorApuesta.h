// From a record to its bet.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>

#include "Juegos.h"
#include "NucleoRegistros.h"
#include "RegistroApuestas.h"

using ApuestaLeida = std::array<uint8_t, 7>;

/// What the box of a failed reading says in its brackets.
struct FalloLectura {
    std::string Descripcion, Detalle;
};

/// Takes standard records apart; what differs in anything is left to LeerTexto.
class LectorRapido {
  public:
    explicit LectorRapido(const Juego& juego);

    const FormaRegistro& Forma() const { return forma_; }

    /// False, with `apuesta` in any state, for a record of another form or a bet that is bad; `registro`
    /// has its 22 bytes.
    bool Leer(const char* registro, ApuestaLeida& apuesta) const {
        uint16_t largo;
        std::memcpy(&largo, registro, 2);
        PalabrasApuesta p = CargarPalabras(registro + 2);
        uint64_t malo = 0;
        for (size_t i = 0; i < 3; ++i) {
            p[i] ^= ceros_[i]; // digits become 0 to 9, separators 0
            malo |= (p[i] | (p[i] + cifras_[i])) & sobra_[i];
            p[i] = p[i] * 10 + (p[i] >> 8); // the byte of the tens becomes the number
        }
        apuesta = {Byte(p[0], 0), Byte(p[0], 3), Byte(p[0], 6), Byte(p[1], 1),
                   Byte(p[2], 0), Byte(p[2], 3), Byte(p[2], 6)};
        return largo == LargoApuesta && malo == 0 && SonSeisDistintos(apuesta) && apuesta[6] >= forma_.DigitoMinimo &&
               apuesta[6] <= forma_.DigitoMaximo;
    }

  private:
    static uint8_t Byte(uint64_t palabra, int lugar) { return static_cast<uint8_t>(palabra >> 8 * lugar); }

    static bool SonSeisDistintos(const ApuestaLeida& apuesta) {
        uint64_t vistos = 0;
        for (size_t e = 0; e < 6; ++e) {
            if (apuesta[e] < 1 || apuesta[e] > NumeroMaximoBoleto) return false;
            vistos |= uint64_t{1} << apuesta[e];
        }
        return std::popcount(vistos) == 6;
    }

    PalabrasApuesta ceros_, cifras_{}, sobra_{};
    FormaRegistro forma_{};
};

/// The bet of a deciphered record in any form that the format allows.
bool LeerTextoApuesta(std::string texto, const FormaRegistro& forma, ApuestaLeida& apuesta, FalloLectura& fallo);
