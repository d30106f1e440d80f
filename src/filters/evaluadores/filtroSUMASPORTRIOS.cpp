#include "Apartados.h"
#include "EnOrden.h"
#include "Evaluadores.h"
#include "Intervalos.h"
#include "Repartidores.h"

int32_t FiltrarSUMASPORTRIOS(Sesion& sesion, Entorno& entorno) {
    const RegistroSUMASPORTRIOS& registro = sesion.condiciones.SUMASPORTRIOS;
    if (!AlgunoEnUso(registro.intervalosT1) && !AlgunoEnUso(registro.intervalosT2)) return 0;
    const TablasTrios tablas{NumeroDeCadaPosicion(sesion.trabajo), SumasQuePasan(registro.intervalosT1),
                             SumasQuePasan(registro.intervalosT2)};
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoTrios(tramo, tablas); });
}

namespace {

constexpr size_t Sumas = 256;

// By the sums of the three first numbers and of the three last.
using CuentasDeTrios = std::array<Cuentas, 2>;

CuentasDeTrios ContarExpansion(EstadoTrabajo& trabajo, Entorno& entorno, const PorPosicion& numero) {
    CuentasDeTrios cuentas;
    cuentas.fill(Cuentas(Sumas));
    const auto suma = [&](size_t a, size_t b, size_t c) {
        return static_cast<size_t>(numero[a] + numero[b] + numero[c]);
    };
    ContarEnOrden(
        trabajo, entorno,
        [&](size_t p1, size_t p2, size_t p3, size_t, const CuentaValor& c) { cuentas[0][suma(p1, p2, p3)].Sumar(c); },
        [&](size_t, size_t p4, size_t p5, size_t p6, const CuentaValor& c) { cuentas[1][suma(p4, p5, p6)].Sumar(c); });
    return cuentas;
}

CuentasDeTrios ContarSumas(EstadoTrabajo& trabajo, Entorno& entorno, const PorPosicion& numero) {
    const FilasDeTramo<2> filas;
    std::array<CuentaPalabras, 2> cuentas;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasTrios(tramo, numero, filas.Todas());
        for (size_t t = 0; t < 2; ++t) NucleoContarBytes(tramo, filas[t], nullptr, cuentas[t]);
    });
    return {PorBaja(cuentas[0], Sumas), PorBaja(cuentas[1], Sumas)};
}

} // namespace

Apartados RepartirSUMASPORTRIOS(Sesion& sesion, Entorno& entorno) {
    const auto contar = EsExpansionEntera(sesion.trabajo) ? ContarExpansion : ContarSumas;
    const CuentasDeTrios cuentas = contar(sesion.trabajo, entorno, NumeroDeCadaPosicion(sesion.trabajo));
    return {ApartadoRecortado("Tres primeros", cuentas[0]), ApartadoRecortado("Tres últimos", cuentas[1])};
}
