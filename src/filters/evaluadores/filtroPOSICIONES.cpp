#include "Apartados.h"
#include "Evaluadores.h"
#include "NucleosGrupos.h"
#include "Repartidores.h"

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

// The rows of the table are the values themselves; the bars are those of the base's numbers.
Apartados RepartirPOSICIONES(Sesion& sesion, Entorno& entorno) {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    std::array<CuentaPalabras, 3> cuentas; // each of two balls together
    BarrerContando(sesion.trabajo, entorno, [&](const Tramo& tramo) {
        for (size_t c = 0; c < 3; ++c) NucleoContarBytes(tramo, tramo.fila[2 * c + 1], tramo.fila[2 * c], cuentas[c]);
    });
    const size_t posiciones = static_cast<size_t>(trabajo.NumerosBase) + 1;
    Apartados apartados;
    for (size_t k = 0; k < 6; ++k) {
        const Cuentas suyas = k % 2 == 1 ? PorBaja(cuentas[k / 2], posiciones) : PorAlta(cuentas[k / 2], posiciones);
        ApartadoReparto bola = ApartadoRecortado("Bola " + std::to_string(k + 1), suyas);
        for (BarraReparto& barra : bola.Barras) {
            barra.Valor = trabajo.BaseNumeros[static_cast<size_t>(barra.Valor)];
            barra.Etiqueta = std::to_string(barra.Valor);
        }
        apartados.push_back(std::move(bola));
    }
    return apartados;
}
