#include "RepartirPorCR.h"

#include <algorithm>

#include "CuentaBytes.h"
#include "PrepararCoeficiente.h"

namespace {

constexpr int64_t Tanda = 4096; // bets between two turns, a multiple of 64

TablasCoeficiente Preparar(const PorcentajesPorNumero& apostados, const PorcentajesPorNumero& reales) {
    TablasCoeficiente tablas;
    std::copy(apostados.begin(), apostados.end(), tablas.Apostado.begin());
    std::copy(reales.begin(), reales.end(), tablas.Real.begin());
    PrepararCoeficiente(tablas, apostados.size() - 1, LaMismaClase);
    return tablas;
}

} // namespace

bool RepartirPorCR(const Tabla& apuestas, const PorcentajesPorNumero& apostados, const PorcentajesPorNumero& reales,
                   Tabla& valores, std::array<int32_t, ValoresCR>& cuantas, const Turno& turno) {
    const TablasCoeficiente tablas = Preparar(apostados, reales);
    valores.DimensionarSinLimpiar(1, apuestas.Apuestas());
    CuentaBytes cuentas;
    for (int64_t desde = 0; desde < apuestas.Apuestas(); desde += Tanda) {
        Tramo tramo{};
        for (int r = 0; r < 6; ++r) tramo.fila[r] = apuestas.Fila(r + 1) + desde;
        tramo.n = std::min(Tanda, apuestas.Apuestas() - desde);
        uint8_t* destino = valores.Fila(1) + desde;
        NucleoRespuestas(tramo, tablas, destino);
        cuentas.Contar(destino, tramo.n);
        if (!turno()) return false;
    }
    for (size_t i = 0; i < ValoresCR; ++i) cuantas[i] = cuentas.De(i);
    return true;
}
