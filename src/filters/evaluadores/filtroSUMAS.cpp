#include "Apartados.h"
#include "EnOrden.h"
#include "Evaluadores.h"
#include "Intervalos.h"
#include "Repartidores.h"

int32_t FiltrarSUMAS(Sesion& sesion, Entorno& entorno) {
    const RegistroSUMAS& registro = sesion.condiciones.SUMAS;
    if (!AlgunoEnUso(registro.intervalos)) return 0;
    const TablasSumas tablas{NumeroDeCadaPosicion(sesion.trabajo), SumasQuePasan(registro.intervalos)};
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoSumas(tramo, tablas); });
}

namespace {

Cuentas ContarSumas(EstadoTrabajo& trabajo, Entorno& entorno, const PorPosicion& numero) {
    if (EsExpansionEntera(trabajo)) return ContarSumasEnOrden(trabajo, entorno, numero);
    const FilasDeTramo<2> filas; // half the sum, and what is left
    CuentaPalabras cuenta;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasSuma(tramo, numero, filas.Todas());
        NucleoContarBytes(tramo, filas[0], filas[1], cuenta);
    });
    Cuentas cuentas;
    for (size_t s = 0; s < 512; ++s) cuentas.push_back(cuenta.De(s / 2 + s % 2 * 256));
    return cuentas;
}

} // namespace

Apartados RepartirSUMAS(Sesion& sesion, Entorno& entorno) {
    return {ApartadoRecortado("Suma", ContarSumas(sesion.trabajo, entorno, NumeroDeCadaPosicion(sesion.trabajo)))};
}
