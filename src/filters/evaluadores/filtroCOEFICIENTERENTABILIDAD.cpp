#include "Evaluadores.h"
#include "Preparar.h"
#include "PrepararCoeficiente.h"

namespace {

TablasCoeficiente Preparar(const EstadoTrabajo& trabajo, const RegistroCOEFICIENTERENTABILIDAD& registro) {
    TablasCoeficiente tablas;
    const auto numeros = static_cast<size_t>(trabajo.NumerosBase);
    for (size_t p = 1; p <= numeros; ++p) {
        tablas.Apostado[p] = registro.PorcentajesApostados[trabajo.BaseNumeros[p]];
        tablas.Real[p] = registro.PorcentajesReales[trabajo.BaseNumeros[p]];
    }
    std::array<uint8_t, 100> pasa;
    for (size_t c = 0; c < pasa.size(); ++c)
        pasa[c] = registro.RangosCR[c] == 1 ? TablasCoeficiente::Pasa : TablasCoeficiente::Falla;
    PrepararCoeficiente(tablas, numeros, pasa);
    return tablas;
}

} // namespace

// Flag 100 allows no coefficient, but alone it is enough for the filter to have something chosen.
int32_t FiltrarCOEFICIENTERENTABILIDAD(Sesion& sesion, Entorno& entorno) {
    const RegistroCOEFICIENTERENTABILIDAD& registro = sesion.condiciones.COEFICIENTERENTABILIDAD;
    if (!EnVigor(registro.RangosCR)) return 0;
    const TablasCoeficiente tablas = Preparar(sesion.trabajo, registro);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoCoeficiente(tramo, tablas); });
}
