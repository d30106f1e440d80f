#include "Evaluadores.h"
#include "FigurasDeClases.h"
#include "Repartidores.h"

namespace {

constexpr size_t Grupos = 9;

TablasClases Preparar(const EstadoTrabajo& trabajo) {
    return TablasDeFigura(trabajo, Grupos, [](int n) { return (n - 1) % static_cast<int>(Grupos); });
}

} // namespace

// Groups are alternatives: every group whose count is allowed adds 1, and any sum above 0 passes.
int32_t FiltrarHOMOLOGOS(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& acertados = sesion.condiciones.HOMOLOGOS.HomologosAcertados;
    if (!EnVigor(acertados)) return 0;

    TablasClases tablas = Preparar(sesion.trabajo);
    for (size_t g = 0; g < Grupos; ++g) tablas.Codigo[g] = AciertosQuePasan(acertados);
    tablas.Pasa.fill(1);
    tablas.Pasa[0] = 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoClases(tramo, tablas); });
}

// By the largest group, which is the first size of the bet's figure.
Apartados RepartirHOMOLOGOS(Sesion& sesion, Entorno& entorno) {
    TablasClases tablas = Preparar(sesion.trabajo);
    tablas.Pasa = PorCodigoDeFigura([](size_t f) { return TamanosFigura[f][0]; });
    const Cuentas cuentas = ContarAciertos(sesion.trabajo, entorno, [&](const Tramo& tramo, uint8_t* respuestas) {
        RespuestasClases(tramo, tablas, respuestas);
    });
    return {Apartado("Mayor grupo", Cuentas(cuentas.begin() + 1, cuentas.end()), 1)};
}
