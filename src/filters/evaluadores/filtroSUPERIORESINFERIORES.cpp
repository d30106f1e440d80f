#include "Apartados.h"
#include "Evaluadores.h"
#include "Repartidores.h"

namespace {

bool EsSuperior(int n) {
    return n % 10 < 5;
}

} // namespace

int32_t FiltrarSUPERIORESINFERIORES(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& activos = sesion.condiciones.SUPERIORESINFERIORES.SuperioresInferioresActivos;
    if (!EnVigor(activos)) return 0;
    return FiltrarCuenta(sesion.trabajo, entorno, AciertosQuePasan(activos), EsSuperior);
}

Apartados RepartirSUPERIORESINFERIORES(Sesion& sesion, Entorno& entorno) {
    return {Apartado("Superiores", RepartirCuenta(sesion.trabajo, entorno, EsSuperior))};
}
