#include <algorithm>

#include "Evaluadores.h"
#include "Preparar.h"

namespace {

// Differences of numbers lie within -49 and 49: a bound beyond `Lejos` says no more than `Lejos` itself.
constexpr int Lejos = 64;

void PonerDistancia(TablasDistancias& tablas, size_t k, Intervalo intervalo) {
    if (!intervalo.EnUso()) intervalo = {-Lejos, Lejos};
    if (intervalo.Minimo > intervalo.Maximo) intervalo = {Lejos, Lejos}; // nothing passes
    const int minimo = std::clamp<int>(intervalo.Minimo, -Lejos, Lejos);
    const int maximo = std::clamp<int>(intervalo.Maximo, -Lejos, Lejos);
    tablas.Minimo[k] = static_cast<int8_t>(minimo);
    tablas.Ancho[k] = static_cast<uint8_t>(maximo - minimo);
}

} // namespace

int32_t FiltrarDISTANCIAS(Sesion& sesion, Entorno& entorno) {
    const auto& distancias = sesion.condiciones.DISTANCIAS.Distancia;
    if (std::none_of(distancias.begin(), distancias.end(), [](const Intervalo& i) { return i.EnUso(); })) return 0;
    TablasDistancias tablas;
    tablas.Numero = NumeroDeCadaPosicion(sesion.trabajo);
    for (size_t k = 0; k < distancias.size(); ++k) PonerDistancia(tablas, k, distancias[k]);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoDistancias(tramo, tablas); });
}
