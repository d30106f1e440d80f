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

namespace {

constexpr int8_t Menor = -NumeroMaximoBoleto; // imported bets may stand in any order
constexpr size_t Valores = 2 * NumeroMaximoBoleto + 1;

// The distances 2-1 and 3-2, 4-3 and 5-4, 6-5 and 5-1, each two together, the one that changes more
// often in the low byte. That of the whole bet is the sum of the last two.
std::array<CuentaPalabras, 3> ContarDistancias(EstadoTrabajo& trabajo, Entorno& entorno) {
    const PorPosicion numero = NumeroDeCadaPosicion(trabajo);
    const FilasDeTramo<6> filas;
    std::array<CuentaPalabras, 3> cuentas;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasDistancias(tramo, numero, Menor, filas.Todas());
        NucleoContarBytes(tramo, filas[1], filas[0], cuentas[0]);
        NucleoContarBytes(tramo, filas[3], filas[2], cuentas[1]);
        NucleoContarBytes(tramo, filas[4], filas[5], cuentas[2]);
    });
    return cuentas;
}

Cuentas DeLaApuesta(const CuentaPalabras& ultimas) {
    Cuentas cuentas(2 * Valores);
    for (size_t baja = 0; baja < Valores; ++baja)
        for (size_t alta = 0; alta < Valores; ++alta) cuentas[baja + alta].Sumar(ultimas.De(baja + 256 * alta));
    return cuentas;
}

} // namespace

Apartados RepartirDISTANCIAS(Sesion& sesion, Entorno& entorno) {
    const auto cuentas = ContarDistancias(sesion.trabajo, entorno);
    return {ApartadoRecortado("Distancia 1-2", PorAlta(cuentas[0], Valores), Menor),
            ApartadoRecortado("Distancia 2-3", PorBaja(cuentas[0], Valores), Menor),
            ApartadoRecortado("Distancia 3-4", PorAlta(cuentas[1], Valores), Menor),
            ApartadoRecortado("Distancia 4-5", PorBaja(cuentas[1], Valores), Menor),
            ApartadoRecortado("Distancia 5-6", PorBaja(cuentas[2], Valores), Menor),
            ApartadoRecortado("Distancia 1-6", DeLaApuesta(cuentas[2]), 2 * Menor)};
}
