#include "FigurasDeClases.h"

CuentasDeClases ContarClases(EstadoTrabajo& trabajo, Entorno& entorno, TablasClases tablas) {
    tablas.Pasa = PorCodigoDeFigura([](size_t f) { return f; });
    const auto clases = static_cast<size_t>(tablas.Clases);
    const FilasDeTramo<7> filas; // figure, sum and the counts by twos
    CuentaPalabras sumaYFigura;
    std::array<CuentaAciertos, 10> aciertos{};
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasClases(tramo, tablas, filas.Todas());
        NucleoContarBytes(tramo, filas[1], filas[0], sumaYFigura);
        for (size_t c = 0; c < clases; ++c) NucleoContarAciertos(tramo, filas[2 + c / 2], c % 2 == 1, aciertos[c]);
    });
    CuentasDeClases cuentas;
    cuentas.PorFigura = PorAlta(sumaYFigura, NombresFiguras.size());
    cuentas.PorSuma = PorBaja(sumaYFigura, 64);
    for (size_t c = 0; c < clases; ++c) cuentas.PorClase[c].assign(aciertos[c].begin(), aciertos[c].end());
    return cuentas;
}
