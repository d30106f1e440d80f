#include "EnOrden.h"
#include "Evaluadores.h"
#include "FigurasDeClases.h"
#include "Repartidores.h"

namespace {

constexpr size_t Digitos = 10;

TablasClases Preparar(const EstadoTrabajo& trabajo) {
    return TablasDeFigura(trabajo, Digitos, [](int n) { return n % 10; });
}

} // namespace

// The bounds of the sum are tested also when nothing is chosen.
int32_t FiltrarTERMINACIONES(Sesion& sesion, Entorno& entorno) {
    const RegistroTERMINACIONES& registro = sesion.condiciones.TERMINACIONES;
    TablasClases tablas = Preparar(sesion.trabajo);
    for (size_t s = 0; s < tablas.SumaPasa.size(); ++s)
        tablas.SumaPasa[s] = s >= registro.SumaMinima && s <= registro.SumaMaxima;
    for (size_t c = 0; c < Digitos; ++c) tablas.Codigo[c] = CodigosDeClase(registro.TerminadosEn[c]);
    tablas.Pasa = FigurasQuePasan(registro.FigurasTerminaciones, PrimeraFiguraTERMINACIONES);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoClases(tramo, tablas); });
}

namespace {

Cuentas ContarSumas(EstadoTrabajo& trabajo, Entorno& entorno, const TablasClases& tablas) {
    if (EsExpansionEntera(trabajo)) return ContarSumasEnOrden(trabajo, entorno, tablas.Clase);
    const FilasDeTramo<7> filas;
    CuentaPalabras sumas;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasClases(tramo, tablas, filas.Todas());
        NucleoContarBytes(tramo, filas[1], nullptr, sumas);
    });
    return PorBaja(sumas, 64);
}

} // namespace

Apartados RepartirTERMINACIONES(Sesion& sesion, Entorno& entorno) {
    const TablasClases tablas = Preparar(sesion.trabajo);
    const CuentasDeClases cuentas = ContarClases(sesion.trabajo, entorno, tablas);
    Apartados apartados;
    for (size_t c = 0; c < Digitos; ++c)
        apartados.push_back(Apartado("Terminados en " + std::to_string(c), cuentas.PorClase[c]));
    apartados.push_back(ApartadoRecortado("Suma de terminaciones", ContarSumas(sesion.trabajo, entorno, tablas)));
    apartados.push_back(ApartadoFiguras(cuentas.PorFigura, PrimeraFiguraTERMINACIONES,
                                        sesion.condiciones.TERMINACIONES.FigurasTerminaciones.size()));
    return apartados;
}
