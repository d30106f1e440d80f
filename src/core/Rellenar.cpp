#include "Rellenar.h"

#include <algorithm>

std::string Rellenar(std::string_view texto, size_t ancho, char lado) {
    const auto caracteres = static_cast<size_t>(std::count_if(
        texto.begin(), texto.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
    if (caracteres == 0 || caracteres > ancho) return std::string(ancho, ' ');
    const std::string blancos(ancho - caracteres, ' ');
    return lado == 'D' ? std::string(texto) + blancos : blancos + std::string(texto);
}
