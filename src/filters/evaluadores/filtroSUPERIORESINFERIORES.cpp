#include "Evaluadores.h"
#include "Preparar.h"

int32_t FiltrarSUPERIORESINFERIORES(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& activos = sesion.condiciones.SUPERIORESINFERIORES.SuperioresInferioresActivos;
    if (!EnVigor(activos)) return 0;
    return FiltrarCuenta(sesion.trabajo, entorno, AciertosQuePasan(activos), [](int n) { return n % 10 < 5; });
}
