#include "AsignarReintegros.h"

#include <cstring>

#include "Rnd.h"

void AsignarReintegros(EstadoTrabajo& trabajo) {
    std::array<uint8_t, 10> L{};
    int m = 0;
    for (uint8_t d = 0; d < 10; ++d)
        if (trabajo.lblReintegro[d]) L[static_cast<size_t>(m++)] = d;
    const int32_t n = trabajo.Contador.Reducidas;
    if (m == 0 || n == 0) return;

    const int modo = trabajo.cboTipoCombinacion == PronosticoDesdeArchivo ? Aleatorios : trabajo.cboTipoReintegro;
    uint8_t* fila = trabajo.ApuestasReducidas.Fila(7);
    if (modo == AlDirecto || m == 1) {
        std::memset(fila, L[0], static_cast<size_t>(n));
    } else if (modo == Secuenciales) {
        for (int32_t i = 0; i < n; ++i) fila[i] = L[static_cast<size_t>(i % m)];
    } else {
        // A seed for every bet, so that a bet's digit depends on its place alone.
        Azar azar;
        for (int32_t i = 1; i <= n; ++i) {
            azar.Sembrar(static_cast<uint64_t>(i));
            const int32_t x = azar.Entero(m);
            fila[i - 1] = L[static_cast<size_t>(x == 0 ? m - 1 : x - 1)];
        }
    }
}
