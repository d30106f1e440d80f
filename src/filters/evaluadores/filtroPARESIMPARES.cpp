#include "Evaluadores.h"
#include "Preparar.h"

int32_t FiltrarPARESIMPARES(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& activos = sesion.condiciones.PARESIMPARES.ParesActivos;
    if (!EnVigor(activos)) return 0;
    return FiltrarCuenta(sesion.trabajo, entorno, AciertosQuePasan(activos), [](int n) { return n % 2 == 0; });
}
