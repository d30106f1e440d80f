#include "Apartados.h"
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

Apartados RepartirSUMASPORTRIOS(Sesion& sesion, Entorno& entorno) {
    const PorPosicion numero = NumeroDeCadaPosicion(sesion.trabajo);
    const FilasDeTramo<2> filas;
    std::array<CuentaPalabras, 2> cuentas;
    BarrerContando(sesion.trabajo, entorno, [&](const Tramo& tramo) {
        FilasTrios(tramo, numero, filas.Todas());
        for (size_t t = 0; t < 2; ++t) NucleoContarBytes(tramo, filas[t], nullptr, cuentas[t]);
    });
    return {ApartadoRecortado("Tres primeros", PorBaja(cuentas[0], 256)),
            ApartadoRecortado("Tres últimos", PorBaja(cuentas[1], 256))};
}
