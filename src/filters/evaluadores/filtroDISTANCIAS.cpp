#include <algorithm>

#include "Apartados.h"
#include "EnOrden.h"
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

// By each distance, from `Menor` on; that of the whole bet from twice as much.
using CuentasDeDistancias = std::array<Cuentas, 6>;

CuentasDeDistancias ContarExpansion(EstadoTrabajo& trabajo, Entorno& entorno, const PorPosicion& numero) {
    CuentasDeDistancias cuentas;
    cuentas.fill(Cuentas(Valores));
    cuentas[5].resize(2 * Valores);
    const auto sumar = [&](size_t k, size_t desde, size_t hasta, const CuentaValor& cuenta) {
        const int menor = k < 5 ? Menor : 2 * Menor;
        cuentas[k][static_cast<size_t>(numero[hasta] - numero[desde] - menor)].Sumar(cuenta);
    };
    ContarEnOrden(
        trabajo, entorno,
        [&](size_t p1, size_t p2, size_t p3, size_t p4, const CuentaValor& cuenta) {
            sumar(0, p1, p2, cuenta);
            sumar(1, p2, p3, cuenta);
            sumar(2, p3, p4, cuenta);
        },
        [&](size_t p1, size_t p4, size_t p5, size_t p6, const CuentaValor& cuenta) {
            sumar(3, p4, p5, cuenta);
            sumar(4, p5, p6, cuenta);
            sumar(5, p1, p6, cuenta);
        });
    return cuentas;
}

// The distance of the whole bet is the sum of the last of the others and of what is in front of it.
Cuentas DeLaApuesta(const CuentaPalabras& ultimas) {
    Cuentas cuentas(2 * Valores);
    for (size_t baja = 0; baja < Valores; ++baja)
        for (size_t alta = 0; alta < Valores; ++alta) cuentas[baja + alta].Sumar(ultimas.De(baja + 256 * alta));
    return cuentas;
}

// The distances 2-1 and 3-2, 4-3 and 5-4, 6-5 and 5-1, each two together.
CuentasDeDistancias ContarDistancias(EstadoTrabajo& trabajo, Entorno& entorno, const PorPosicion& numero) {
    const FilasDeTramo<6> filas;
    std::array<CuentaPalabras, 3> pares;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasDistancias(tramo, numero, Menor, filas.Todas());
        NucleoContarBytes(tramo, filas[0], filas[1], pares[0]);
        NucleoContarBytes(tramo, filas[2], filas[3], pares[1]);
        NucleoContarBytes(tramo, filas[4], filas[5], pares[2]);
    });
    return {PorBaja(pares[0], Valores), PorAlta(pares[0], Valores), PorBaja(pares[1], Valores),
            PorAlta(pares[1], Valores), PorBaja(pares[2], Valores), DeLaApuesta(pares[2])};
}

} // namespace

Apartados RepartirDISTANCIAS(Sesion& sesion, Entorno& entorno) {
    const auto contar = EsExpansionEntera(sesion.trabajo) ? ContarExpansion : ContarDistancias;
    const CuentasDeDistancias cuentas = contar(sesion.trabajo, entorno, NumeroDeCadaPosicion(sesion.trabajo));
    return {ApartadoRecortado("Distancia 1-2", cuentas[0], Menor),
            ApartadoRecortado("Distancia 2-3", cuentas[1], Menor),
            ApartadoRecortado("Distancia 3-4", cuentas[2], Menor),
            ApartadoRecortado("Distancia 4-5", cuentas[3], Menor),
            ApartadoRecortado("Distancia 5-6", cuentas[4], Menor),
            ApartadoRecortado("Distancia 1-6", cuentas[5], 2 * Menor)};
}
