#include "Apartados.h"
#include "Evaluadores.h"
#include "Repartidores.h"

namespace {

bool EsPar(int n) {
    return n % 2 == 0;
}

} // namespace

int32_t FiltrarPARESIMPARES(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& activos = sesion.condiciones.PARESIMPARES.ParesActivos;
    if (!EnVigor(activos)) return 0;
    return FiltrarCuenta(sesion.trabajo, entorno, AciertosQuePasan(activos), EsPar);
}

Apartados RepartirPARESIMPARES(Sesion& sesion, Entorno& entorno) {
    return {Apartado("Pares", RepartirCuenta(sesion.trabajo, entorno, EsPar))};
}
