#include <algorithm>

#include "Evaluadores.h"
#include "FigurasDeClases.h"
#include "Repartidores.h"

namespace {

constexpr std::array<const char*, 5> Nombres{"Decena 1-9", "Decena 10-19", "Decena 20-29", "Decena 30-39",
                                             "Decena 40-49"};

TablasClases Preparar(const EstadoTrabajo& trabajo) {
    return TablasDeFigura(trabajo, Nombres.size(), [](int n) { return n / 10; });
}

} // namespace

int32_t FiltrarDECENAS(Sesion& sesion, Entorno& entorno) {
    const RegistroDECENAS& registro = sesion.condiciones.DECENAS;
    const bool algunaDecena = std::any_of(registro.Decena.begin(), registro.Decena.end(), EnVigor<TablaAciertos>);
    if (!algunaDecena && !EnVigor(registro.FigurasDecenas)) return 0;

    TablasClases tablas = Preparar(sesion.trabajo);
    for (size_t c = 0; c < registro.Decena.size(); ++c) tablas.Codigo[c] = CodigosDeClase(registro.Decena[c]);
    tablas.Pasa = FigurasQuePasan(registro.FigurasDecenas, 0);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoClases(tramo, tablas); });
}

Apartados RepartirDECENAS(Sesion& sesion, Entorno& entorno) {
    const CuentasDeClases cuentas = ContarClases(sesion.trabajo, entorno, Preparar(sesion.trabajo));
    Apartados apartados;
    for (size_t c = 0; c < Nombres.size(); ++c) apartados.push_back(Apartado(Nombres[c], cuentas.PorClase[c]));
    apartados.push_back(ApartadoFiguras(cuentas.PorFigura, 0, sesion.condiciones.DECENAS.FigurasDecenas.size()));
    return apartados;
}
