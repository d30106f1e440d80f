#include "FigurasDeClases.h"

CuentasDeClases ContarClases(EstadoTrabajo& trabajo, Entorno& entorno, TablasClases tablas) {
    tablas.Pasa = PorCodigoDeFigura([](size_t f) { return f; });
    const auto clases = static_cast<size_t>(tablas.Clases);
    const FilasDeTramo<7> filas; // figure, sum and the counts by twos
    CuentaFiguras figuras{};
    std::array<CuentaAciertos, 10> aciertos{};
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasClases(tramo, tablas, filas.Todas());
        NucleoContarFiguras(tramo, filas[0], figuras);
        for (size_t c = 0; c < clases; c += 2) NucleoContarPares(tramo, filas[2 + c / 2], aciertos[c], aciertos[c + 1]);
    });
    CuentaValor todas;
    for (const CuentaValor& figura : figuras) todas.Sumar(figura);
    CuentasDeClases cuentas;
    cuentas.PorFigura.assign(figuras.begin(), figuras.end());
    for (size_t c = 0; c < clases; ++c) {
        CuentaValor ninguna = todas; // none of the class
        for (const CuentaValor& algunas : aciertos[c]) {
            ninguna.Apuestas -= algunas.Apuestas;
            ninguna.Pasan -= algunas.Pasan;
        }
        aciertos[c][0] = ninguna;
        cuentas.PorClase[c].assign(aciertos[c].begin(), aciertos[c].end());
    }
    return cuentas;
}
