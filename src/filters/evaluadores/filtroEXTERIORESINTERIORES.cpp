#include "Evaluadores.h"
#include "Preparar.h"

// Exterior numbers are the frame of the ticket's grid: its first and last column and row.
int32_t FiltrarEXTERIORESINTERIORES(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& activos = sesion.condiciones.EXTERIORESINTERIORES.ExterioresInterioresActivos;
    if (!EnVigor(activos)) return 0;
    return FiltrarCuenta(sesion.trabajo, entorno, AciertosQuePasan(activos),
                         [](int n) { return n < 10 || n >= 40 || n % 10 == 0 || n % 10 == 9; });
}
