#include "CodigosFigura.h"
#include "Evaluadores.h"
#include "Preparar.h"

// The bounds of the sum are tested also when nothing is chosen.
int32_t FiltrarTERMINACIONES(Sesion& sesion, Entorno& entorno) {
    const RegistroTERMINACIONES& registro = sesion.condiciones.TERMINACIONES;
    TablasClases tablas;
    tablas.Clases = static_cast<int>(registro.TerminadosEn.size());
    tablas.Clase = DeCadaPosicion(sesion.trabajo, [](int n) { return n % 10; });
    for (size_t s = 0; s < tablas.SumaPasa.size(); ++s)
        tablas.SumaPasa[s] = s >= registro.SumaMinima && s <= registro.SumaMaxima;
    for (size_t c = 0; c < registro.TerminadosEn.size(); ++c)
        tablas.Codigo[c] = CodigosDeClase(registro.TerminadosEn[c]);
    tablas.Pasa = FigurasQuePasan(registro.FigurasTerminaciones, PrimeraFiguraTERMINACIONES);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoClases(tramo, tablas); });
}
