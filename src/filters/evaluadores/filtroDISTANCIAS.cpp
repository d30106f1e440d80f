#include <algorithm>

#include "Apartados.h"
#include "Evaluadores.h"
#include "Repartidores.h"

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

// Imported bets may stand in any order, so that a difference can be below 0.
Apartados RepartirDISTANCIAS(Sesion& sesion, Entorno& entorno) {
    constexpr int8_t menor = -NumeroMaximoBoleto;
    constexpr size_t valores = 2 * NumeroMaximoBoleto + 1;
    constexpr std::array<const char*, 6> nombres{"Distancia 1-2", "Distancia 2-3", "Distancia 3-4",
                                                 "Distancia 4-5", "Distancia 5-6", "Distancia 1-6"};
    const PorPosicion numero = NumeroDeCadaPosicion(sesion.trabajo);
    const FilasDeTramo<6> filas;
    std::array<CuentaPalabras, 3> cuentas; // each of two distances together
    BarrerContando(sesion.trabajo, entorno, [&](const Tramo& tramo) {
        FilasDistancias(tramo, numero, menor, filas.Todas());
        for (size_t c = 0; c < 3; ++c) NucleoContarBytes(tramo, filas[2 * c], filas[2 * c + 1], cuentas[c]);
    });
    Apartados apartados;
    for (size_t k = 0; k < nombres.size(); ++k) {
        const CuentaPalabras& cuenta = cuentas[k / 2];
        const Cuentas suyas = k % 2 == 0 ? PorBaja(cuenta, valores) : PorAlta(cuenta, valores);
        apartados.push_back(ApartadoRecortado(nombres[k], suyas, menor));
    }
    return apartados;
}
