#include "Evaluadores.h"
#include "NucleosGrupos.h"
#include "Preparar.h"

int32_t FiltrarPOSICIONES(Sesion& sesion, Entorno& entorno) {
    const auto& bola = sesion.condiciones.POSICIONES.Bola;
    TablasPosiciones tablas;
    bool alguna = false;
    for (size_t k = 0; k < bola.size(); ++k) {
        const bool enVigor = EnVigor(bola[k]);
        alguna |= enVigor;
        tablas.Pasa[k] =
            DeCadaPosicion(sesion.trabajo, [&](int n) { return !enVigor || bola[k][static_cast<size_t>(n)] == 1; });
    }
    if (!alguna) return 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoPosiciones(tramo, tablas); });
}
