// Regular lines of a text file of bets, taken apart by words instead of character by character.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

static_assert(std::endian::native == std::endian::little, "the words of a line are read as little-endian");

/// A fixed shape of six numbers of two digits, such as "00,00,00,00,00,00".
class MoldeApuesta {
  public:
    /// Bytes behind the start of a line that `Leer` looks at.
    static constexpr size_t BytesLeidos = 20;

    /// `separador` stands between the numbers, nothing when it is empty.
    explicit MoldeApuesta(std::string_view separador) : paso_(separador.empty() ? 2 : 3), largo_(5 * paso_ + 2) {
        std::array<char, BytesLeidos> forma{}, cifras{}, comparados{};
        for (size_t i = 0; i < largo_; ++i) {
            const bool cifra = i % paso_ < 2;
            forma[i] = cifra ? '0' : separador[0];
            cifras[i] = cifra ? '\x06' : '\0';
            comparados[i] = cifra ? '\xF0' : '\xFF';
        }
        for (size_t k = 0; k < 3; ++k) {
            forma_[k] = Cargar(forma.data() + Inicio[k]);
            cifras_[k] = Cargar(cifras.data() + Inicio[k]);
            comparados_[k] = Cargar(comparados.data() + Inicio[k]);
        }
    }

    /// Characters of the shape.
    size_t Largo() const { return largo_; }

    /// The six numbers of a line. False when it begins otherwise, or they are not ascending ones of 1 to
    /// `maximo`.
    bool Leer(const char* linea, int maximo, std::array<uint8_t, 6>& numeros) const {
        uint64_t malo = 0;
        std::array<uint64_t, 3> p;
        for (size_t k = 0; k < 3; ++k) {
            const uint64_t x = Cargar(linea + Inicio[k]) ^ forma_[k]; // digits become 0 to 9, separators 0
            malo |= (x | (x + cifras_[k])) & comparados_[k];
            p[k] = x * 10 + (x >> 8); // the byte of the tens becomes the number
        }
        if (malo != 0) return false;
        uint8_t anterior = 0;
        bool ascendentes = true;
        for (size_t i = 0; i < 6; ++i) {
            const size_t lugar = i * paso_, k = lugar < 7 ? 0 : lugar < 12 ? 1 : 2;
            numeros[i] = static_cast<uint8_t>(p[k] >> 8 * (lugar - Inicio[k]));
            ascendentes &= numeros[i] > anterior;
            anterior = numeros[i];
        }
        return ascendentes && anterior <= maximo;
    }

  private:
    // The words begin at these characters, so that no number lies across two of them.
    static constexpr std::array<size_t, 3> Inicio{0, 8, 12};

    static uint64_t Cargar(const char* texto) {
        uint64_t palabra;
        std::memcpy(&palabra, texto, sizeof palabra);
        return palabra;
    }

    size_t paso_, largo_;
    std::array<uint64_t, 3> forma_{}, cifras_{}, comparados_{};
};
