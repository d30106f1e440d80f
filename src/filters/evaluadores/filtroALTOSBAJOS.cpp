#include "Apartados.h"
#include "Evaluadores.h"
#include "Repartidores.h"

namespace {

bool EsAlto(int n) {
    return n > 24;
}

} // namespace

// The count of low numbers is 6 less that of the high ones, so one count decides both tables.
int32_t FiltrarALTOSBAJOS(Sesion& sesion, Entorno& entorno) {
    const RegistroALTOSBAJOS& registro = sesion.condiciones.ALTOSBAJOS;
    if (!EnVigor(registro.Bajos) && !EnVigor(registro.Altos)) return 0;
    const PorCuenta bajos = AciertosQuePasan(registro.Bajos), altos = AciertosQuePasan(registro.Altos);
    PorCuenta pasa{};
    for (size_t a = 0; a <= 6; ++a) pasa[a] = altos[a] & bajos[6 - a];
    return FiltrarCuenta(sesion.trabajo, entorno, pasa, EsAlto);
}

Apartados RepartirALTOSBAJOS(Sesion& sesion, Entorno& entorno) {
    const Cuentas altos = RepartirCuenta(sesion.trabajo, entorno, EsAlto);
    return {Apartado("Bajos", Cuentas(altos.rbegin(), altos.rend())), Apartado("Altos", altos)};
}
