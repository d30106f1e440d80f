#include "Evaluadores.h"
#include "Intervalos.h"
#include "Preparar.h"

int32_t FiltrarSUMAS(Sesion& sesion, Entorno& entorno) {
    const RegistroSUMAS& registro = sesion.condiciones.SUMAS;
    if (!AlgunoEnUso(registro.intervalos)) return 0;
    const TablasSumas tablas{NumeroDeCadaPosicion(sesion.trabajo), SumasQuePasan(registro.intervalos)};
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoSumas(tramo, tablas); });
}
