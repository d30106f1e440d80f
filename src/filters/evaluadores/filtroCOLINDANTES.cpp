#include "Apartados.h"
#include "Evaluadores.h"
#include "Repartidores.h"

namespace {

// A number stands in column n / 10 and row n % 10 of the ticket. With twelve codes to a column, cells
// that touch differ by 1, 11, 12 or 13, and no others do: the rows of two columns are never more
// than nine apart.
TablasColindantes Preparar(const EstadoTrabajo& trabajo, const PorCuenta& pasa) {
    constexpr int Columna = 12;
    TablasColindantes tablas;
    tablas.Celda = DeCadaPosicion(trabajo, [](int n) { return n / 10 * Columna + n % 10; });
    for (const size_t diferencia : {1, Columna - 1, Columna, Columna + 1}) tablas.Toca[diferencia] = 1;
    tablas.Pasa = pasa;
    return tablas;
}

} // namespace

int32_t FiltrarCOLINDANTES(Sesion& sesion, Entorno& entorno) {
    const TablaAciertos& acertados = sesion.condiciones.COLINDANTES.ColindantesAcertados;
    if (!EnVigor(acertados)) return 0;
    const TablasColindantes tablas = Preparar(sesion.trabajo, AciertosQuePasan(acertados));
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoColindantes(tramo, tablas); });
}

Apartados RepartirCOLINDANTES(Sesion& sesion, Entorno& entorno) {
    const TablasColindantes tablas = Preparar(sesion.trabajo, LaMismaCuenta);
    return {
        Apartado("Colindantes", ContarAciertos(sesion.trabajo, entorno, [&](const Tramo& tramo, uint8_t* respuestas) {
                     RespuestasColindantes(tramo, tablas, respuestas);
                 }))};
}
