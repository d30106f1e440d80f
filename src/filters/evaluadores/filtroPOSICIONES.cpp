#include "Apartados.h"
#include "EnOrden.h"
#include "Evaluadores.h"
#include "NucleosGrupos.h"
#include "Repartidores.h"

int32_t FiltrarPOSICIONES(Sesion& sesion, Entorno& entorno) {
    const auto& bola = sesion.condiciones.POSICIONES.Bola;
    TablasPosiciones tablas;
    bool alguna = false;
    for (size_t k = 0; k < bola.size(); ++k) {
        const bool enVigor = EnVigor(bola[k]);
        alguna |= enVigor;
        tablas.Pasa[k] =
            DeCadaPosicion(sesion.trabajo, [&](int n) { return !enVigor || bola[k][static_cast<size_t>(n)] == 1; });
    }
    if (!alguna) return 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoPosiciones(tramo, tablas); });
}

namespace {

// By the position in the base of each ball.
using CuentasPorBola = std::array<Cuentas, 6>;

CuentasPorBola ContarExpansion(EstadoTrabajo& trabajo, Entorno& entorno, size_t posiciones) {
    CuentasPorBola cuentas;
    cuentas.fill(Cuentas(posiciones));
    ContarEnOrden(
        trabajo, entorno,
        [&](size_t p1, size_t p2, size_t p3, size_t, const CuentaValor& cuenta) {
            cuentas[0][p1].Sumar(cuenta);
            cuentas[1][p2].Sumar(cuenta);
            cuentas[2][p3].Sumar(cuenta);
        },
        [&](size_t, size_t p4, size_t p5, size_t p6, const CuentaValor& cuenta) {
            cuentas[3][p4].Sumar(cuenta);
            cuentas[4][p5].Sumar(cuenta);
            cuentas[5][p6].Sumar(cuenta);
        });
    return cuentas;
}

// The rows of the table are the positions themselves, here each two together.
CuentasPorBola ContarFilas(EstadoTrabajo& trabajo, Entorno& entorno, size_t posiciones) {
    std::array<CuentaPalabras, 3> pares;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        for (size_t c = 0; c < 3; ++c) NucleoContarBytes(tramo, tramo.fila[2 * c + 1], tramo.fila[2 * c], pares[c]);
    });
    CuentasPorBola cuentas;
    for (size_t c = 0; c < 3; ++c) {
        cuentas[2 * c] = PorAlta(pares[c], posiciones);
        cuentas[2 * c + 1] = PorBaja(pares[c], posiciones);
    }
    return cuentas;
}

} // namespace

// The bars are those of the base's numbers.
Apartados RepartirPOSICIONES(Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    const auto contar = EsExpansionEntera(trabajo) ? ContarExpansion : ContarFilas;
    const CuentasPorBola cuentas = contar(trabajo, entorno, static_cast<size_t>(trabajo.NumerosBase) + 1);
    Apartados apartados;
    for (size_t k = 0; k < 6; ++k) {
        ApartadoReparto bola = ApartadoRecortado("Bola " + std::to_string(k + 1), cuentas[k]);
        for (BarraReparto& barra : bola.Barras) {
            barra.Valor = trabajo.BaseNumeros[static_cast<size_t>(barra.Valor)];
            barra.Etiqueta = std::to_string(barra.Valor);
        }
        apartados.push_back(std::move(bola));
    }
    return apartados;
}
