#include "Apartados.h"
#include "Evaluadores.h"
#include "PrepararCoeficiente.h"
#include "Repartidores.h"

namespace {

TablasCoeficiente Preparar(const EstadoTrabajo& trabajo, const RegistroCOEFICIENTERENTABILIDAD& registro,
                           const std::array<uint8_t, 100>& respuestas) {
    TablasCoeficiente tablas;
    const auto numeros = static_cast<size_t>(trabajo.NumerosBase);
    for (size_t p = 1; p <= numeros; ++p) {
        tablas.Apostado[p] = registro.PorcentajesApostados[trabajo.BaseNumeros[p]];
        tablas.Real[p] = registro.PorcentajesReales[trabajo.BaseNumeros[p]];
    }
    PrepararCoeficiente(tablas, numeros, respuestas);
    return tablas;
}

} // namespace

// Flag 100 allows no coefficient, but alone it is enough for the filter to have something chosen.
int32_t FiltrarCOEFICIENTERENTABILIDAD(Sesion& sesion, Entorno& entorno) {
    const RegistroCOEFICIENTERENTABILIDAD& registro = sesion.condiciones.COEFICIENTERENTABILIDAD;
    if (!EnVigor(registro.RangosCR)) return 0;
    std::array<uint8_t, 100> pasa;
    for (size_t c = 0; c < pasa.size(); ++c)
        pasa[c] = registro.RangosCR[c] == 1 ? TablasCoeficiente::Pasa : TablasCoeficiente::Falla;
    const TablasCoeficiente tablas = Preparar(sesion.trabajo, registro, pasa);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoCoeficiente(tramo, tablas); });
}

Apartados RepartirCOEFICIENTERENTABILIDAD(Sesion& sesion, Entorno& entorno) {
    const TablasCoeficiente tablas = Preparar(sesion.trabajo, sesion.condiciones.COEFICIENTERENTABILIDAD, LaMismaClase);
    ApartadoReparto apartado = Apartado("Coeficiente", ContarRespuestas(sesion.trabajo, entorno, LaMismaClase.size(),
                                                                        [&](const Tramo& tramo, uint8_t* respuestas) {
                                                                            NucleoRespuestas(tramo, tablas, respuestas);
                                                                        }));
    for (BarraReparto& barra : apartado.Barras)
        barra.Etiqueta = std::to_string(barra.Valor / 10) + entorno.SeparadorDecimal + std::to_string(barra.Valor % 10);
    return {std::move(apartado)};
}
