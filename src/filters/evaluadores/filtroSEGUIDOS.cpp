#include <algorithm>

#include "CodigosFigura.h"
#include "Evaluadores.h"
#include "Preparar.h"

namespace {

// Lengths of the runs of consecutive numbers; bit k of the pattern joins the numbers k + 1 and k + 2.
std::array<uint8_t, 6> Rachas(size_t patron) {
    std::array<uint8_t, 6> rachas{1};
    for (size_t k = 0, r = 0; k < 5; ++k) {
        if ((patron >> k & 1) == 0) ++r;
        ++rachas[r];
    }
    return rachas;
}

} // namespace

int32_t FiltrarSEGUIDOS(Sesion& sesion, Entorno& entorno) {
    const RegistroSEGUIDOS& registro = sesion.condiciones.SEGUIDOS;
    if (!EnVigor(registro.NumerosSeguidos) && !EnVigor(registro.FigurasSeguidos)) return 0;
    const PorCuenta largas = AciertosQuePasan(registro.NumerosSeguidos);
    const PorCuenta figuras = FigurasQuePasan(registro.FigurasSeguidos, 0);
    TablasSeguidos tablas;
    tablas.Numero = NumeroDeCadaPosicion(sesion.trabajo);
    for (size_t patron = 0; patron < 32; ++patron) {
        const auto rachas = Rachas(patron);
        tablas.Pasa[patron] = largas[*std::max_element(rachas.begin(), rachas.end())] & figuras[CodigoFigura(rachas)];
    }
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoSeguidos(tramo, tablas); });
}
