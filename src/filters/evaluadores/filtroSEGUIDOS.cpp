#include <algorithm>

#include "Evaluadores.h"
#include "FigurasDeClases.h"
#include "Repartidores.h"

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

// `valor(rachas)` for the runs of each pattern.
template <class Valor>
TablasSeguidos Preparar(const EstadoTrabajo& trabajo, Valor valor) {
    TablasSeguidos tablas;
    tablas.Numero = NumeroDeCadaPosicion(trabajo);
    for (size_t patron = 0; patron < 32; ++patron) tablas.Pasa[patron] = valor(Rachas(patron));
    return tablas;
}

} // namespace

int32_t FiltrarSEGUIDOS(Sesion& sesion, Entorno& entorno) {
    const RegistroSEGUIDOS& registro = sesion.condiciones.SEGUIDOS;
    if (!EnVigor(registro.NumerosSeguidos) && !EnVigor(registro.FigurasSeguidos)) return 0;
    const PorCuenta largas = AciertosQuePasan(registro.NumerosSeguidos);
    const PorCuenta figuras = FigurasQuePasan(registro.FigurasSeguidos, 0);
    const TablasSeguidos tablas = Preparar(sesion.trabajo, [&](const std::array<uint8_t, 6>& rachas) -> uint8_t {
        return largas[*std::max_element(rachas.begin(), rachas.end())] & figuras[CodigoFigura(rachas)];
    });
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoSeguidos(tramo, tablas); });
}

// The longest run is the first size of the figure.
Apartados RepartirSEGUIDOS(Sesion& sesion, Entorno& entorno) {
    const PorCuenta figura = PorCodigoDeFigura([](size_t f) { return f; });
    const TablasSeguidos tablas =
        Preparar(sesion.trabajo, [&](const std::array<uint8_t, 6>& rachas) { return figura[CodigoFigura(rachas)]; });
    const Cuentas figuras =
        ContarRespuestas(sesion.trabajo, entorno, NombresFiguras.size(), [&](const Tramo& tramo, uint8_t* respuestas) {
            RespuestasSeguidos(tramo, tablas, respuestas);
        });
    Cuentas largas(6);
    for (size_t f = 0; f < figuras.size(); ++f) largas[TamanosFigura[f][0] - size_t{1}].Sumar(figuras[f]);
    return {Apartado("Racha más larga", largas, 1), ApartadoFiguras(figuras, 0, figuras.size())};
}
