// The spread of the filters that sort the numbers of a bet into classes and look at their counts and at
// their figure.
#pragma once

#include "Apartados.h"
#include "CodigosFigura.h"

/// Classes of numbers whose counts give the code of the bet's figure; every sum of classes passes.
template <class Clase>
TablasClases TablasDeFigura(const EstadoTrabajo& trabajo, size_t clases, Clase clase) {
    TablasClases tablas;
    tablas.Clases = static_cast<int>(clases);
    tablas.Clase = DeCadaPosicion(trabajo, clase);
    tablas.SumaPasa.fill(0xFF);
    for (size_t c = 0; c < clases; ++c) tablas.Codigo[c] = CodigosDeClase(TablaAciertos{});
    return tablas;
}

/// `valor(f)` by the code of figure f of the list.
template <class Valor>
PorCuenta PorCodigoDeFigura(Valor valor) {
    PorCuenta tabla{};
    for (size_t f = 0; f < TamanosFigura.size(); ++f)
        tabla[CodigoFigura(TamanosFigura[f])] = static_cast<uint8_t>(valor(f));
    return tabla;
}

/// Live bets by class and count, and by the place of the figure in the list.
struct CuentasDeClases {
    std::array<Cuentas, 10> PorClase; ///< 0 to 6 of each
    Cuentas PorFigura;
};

/// `tablas` as `TablasDeFigura` gives them.
CuentasDeClases ContarClases(EstadoTrabajo& trabajo, Entorno& entorno, TablasClases tablas);
