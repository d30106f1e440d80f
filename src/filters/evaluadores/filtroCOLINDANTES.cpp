#include "Evaluadores.h"
#include "Preparar.h"

// A number stands in column n / 10 and row n % 10 of the ticket. With twelve codes to a column, cells
// that touch differ by 1, 11, 12 or 13, and no others do: the rows of two columns are never more
// than nine apart.
int32_t FiltrarCOLINDANTES(Sesion& sesion, Entorno& entorno) {
    constexpr int Columna = 12;
    const TablaAciertos& acertados = sesion.condiciones.COLINDANTES.ColindantesAcertados;
    if (!EnVigor(acertados)) return 0;
    TablasColindantes tablas;
    tablas.Celda = DeCadaPosicion(sesion.trabajo, [](int n) { return n / 10 * Columna + n % 10; });
    for (const size_t diferencia : {1, Columna - 1, Columna, Columna + 1}) tablas.Toca[diferencia] = 1;
    tablas.Pasa = AciertosQuePasan(acertados);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoColindantes(tramo, tablas); });
}
