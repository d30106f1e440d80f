#include <algorithm>

#include "CodigosFigura.h"
#include "Evaluadores.h"
#include "Preparar.h"

int32_t FiltrarDECENAS(Sesion& sesion, Entorno& entorno) {
    const RegistroDECENAS& registro = sesion.condiciones.DECENAS;
    const bool algunaDecena = std::any_of(registro.Decena.begin(), registro.Decena.end(), EnVigor<TablaAciertos>);
    if (!algunaDecena && !EnVigor(registro.FigurasDecenas)) return 0;

    TablasClases tablas;
    tablas.Clases = static_cast<int>(registro.Decena.size());
    tablas.Clase = DeCadaPosicion(sesion.trabajo, [](int n) { return n / 10; });
    tablas.SumaPasa.fill(1);
    for (size_t c = 0; c < registro.Decena.size(); ++c) tablas.Codigo[c] = CodigosDeClase(registro.Decena[c]);
    tablas.Pasa = FigurasQuePasan(registro.FigurasDecenas, 0);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoClases(tramo, tablas); });
}
