#include "FigurasDeClases.h"

namespace {

Cuentas ConLosDeCero(const CuentaAciertos& aciertos, CuentaValor todas) {
    Cuentas cuentas(aciertos.Pasan.size());
    cuentas[0] = todas;
    for (size_t h = 1; h < cuentas.size(); ++h) {
        const auto pasan = static_cast<int32_t>(aciertos.Pasan[h]);
        cuentas[h] = {pasan + static_cast<int32_t>(aciertos.Rechazadas[h]), pasan};
        cuentas[0].Apuestas -= cuentas[h].Apuestas;
        cuentas[0].Pasan -= pasan;
    }
    return cuentas;
}

} // namespace

CuentasDeClases ContarClases(EstadoTrabajo& trabajo, Entorno& entorno, TablasClases tablas) {
    tablas.Pasa = PorCodigoDeFigura([](size_t f) { return f; });
    const auto clases = static_cast<size_t>(tablas.Clases);
    const FilasDeTramo<7> filas; // figure, sum and the counts by twos
    CuentaPalabras sumaYFigura;
    std::array<CuentaAciertos, 10> aciertos;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        FilasClases(tramo, tablas, filas.Todas());
        NucleoContarBytes(tramo, filas[1], filas[0], sumaYFigura);
        for (size_t c = 0; c < clases; ++c) NucleoContarAciertos(tramo, filas[2 + c / 2], c % 2 == 1, aciertos[c]);
    });
    CuentasDeClases cuentas;
    cuentas.PorFigura = PorAlta(sumaYFigura, NombresFiguras.size());
    cuentas.PorSuma = PorBaja(sumaYFigura, 64);
    CuentaValor todas;
    for (const CuentaValor& figura : cuentas.PorFigura) todas.Sumar(figura);
    for (size_t c = 0; c < clases; ++c) cuentas.PorClase[c] = ConLosDeCero(aciertos[c], todas);
    return cuentas;
}
