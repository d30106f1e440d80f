#include "Evaluadores.h"
#include "Preparar.h"

// Groups are alternatives: every group whose count is allowed adds 1, and any sum above 0 passes.
int32_t FiltrarHOMOLOGOS(Sesion& sesion, Entorno& entorno) {
    constexpr int Grupos = 9;
    const TablaAciertos& acertados = sesion.condiciones.HOMOLOGOS.HomologosAcertados;
    if (!EnVigor(acertados)) return 0;

    TablasClases tablas;
    tablas.Clases = Grupos;
    tablas.Clase = DeCadaPosicion(sesion.trabajo, [](int n) { return (n - 1) % Grupos; });
    tablas.SumaPasa.fill(1);
    for (size_t g = 0; g < Grupos; ++g) tablas.Codigo[g] = AciertosQuePasan(acertados);
    tablas.Pasa.fill(1);
    tablas.Pasa[0] = 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoClases(tramo, tablas); });
}
