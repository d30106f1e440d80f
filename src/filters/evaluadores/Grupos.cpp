#include "Grupos.h"

namespace {

void PonerBit(uint8_t& byte, size_t bit) {
    byte = static_cast<uint8_t>(byte | 1u << bit);
}

} // namespace

void AnadirMiembros(const EstadoTrabajo& trabajo, const MarcasNumeros& numeros, size_t g, PorPosicion& miembro) {
    for (size_t p = 1; p <= static_cast<size_t>(trabajo.NumerosBase); ++p)
        if (numeros[trabajo.BaseNumeros[p]] == 1) PonerBit(miembro[p], g);
}

void AnadirAciertos(const TablaAciertos& aciertos, size_t g, AciertosDeOcho& permite) {
    for (size_t h = 0; h < aciertos.size(); ++h)
        if (aciertos[h] == 1) PonerBit(permite[h], g);
}
