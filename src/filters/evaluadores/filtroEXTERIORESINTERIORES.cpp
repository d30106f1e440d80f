#include "Apartados.h"
#include "Evaluadores.h"
#include "Repartidores.h"

namespace {

// Exterior numbers are the frame of the ticket's grid: its first and last column and row.
bool EsExterior(int n) {
    return n < 10 || n >= 40 || n % 10 == 0 || n % 10 == 9;
}

} // namespace

int32_t FiltrarEXTERIORESINTERIORES(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& activos = sesion.condiciones.EXTERIORESINTERIORES.ExterioresInterioresActivos;
    if (!EnVigor(activos)) return 0;
    return FiltrarCuenta(sesion.trabajo, entorno, AciertosQuePasan(activos), EsExterior);
}

Apartados RepartirEXTERIORESINTERIORES(Sesion& sesion, Entorno& entorno) {
    return {Apartado("Exteriores", RepartirCuenta(sesion.trabajo, entorno, EsExterior))};
}
