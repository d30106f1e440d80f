#include <array>
#include <numeric>
#include <utility>

#include "modEncriptarFichero.h"

std::string EncriptarRC4(std::string_view texto, std::string_view clave) {
    if (clave.empty() || texto.empty() || texto.size() > RegistroMaximo) return "0";
    std::array<uint8_t, 256> S;
    std::iota(S.begin(), S.end(), uint8_t{0});
    for (size_t i = 0, j = 0; i < 256; ++i) {
        j = (j + S[i] + static_cast<uint8_t>(clave[i % clave.size()])) % 256;
        std::swap(S[i], S[j]);
    }
    std::string salida(texto);
    size_t i = 0, j = 0;
    for (char& c : salida) {
        i = (i + 1) % 256;
        j = (j + S[i]) % 256;
        std::swap(S[i], S[j]);
        c = static_cast<char>(c ^ static_cast<char>(S[(S[i] + S[j]) % 256u]));
    }
    return salida;
}
