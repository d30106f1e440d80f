#include "Evaluadores.h"
#include "Intervalos.h"
#include "Preparar.h"

int32_t FiltrarSUMASPORTRIOS(Sesion& sesion, Entorno& entorno) {
    const RegistroSUMASPORTRIOS& registro = sesion.condiciones.SUMASPORTRIOS;
    if (!AlgunoEnUso(registro.intervalosT1) && !AlgunoEnUso(registro.intervalosT2)) return 0;
    const TablasTrios tablas{NumeroDeCadaPosicion(sesion.trabajo), SumasQuePasan(registro.intervalosT1),
                             SumasQuePasan(registro.intervalosT2)};
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoTrios(tramo, tablas); });
}
