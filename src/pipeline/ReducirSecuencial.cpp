#include "ReducirSecuencial.h"

#include <algorithm>

#include "Alcance.h"
#include "Barrida.h"
#include "LogicaVentanaProceso.h"

namespace {

// Runs one sweep. True when it found a system smaller than the best; `vp.detener` tells a stop.
template <int T>
bool UnaBarrida(LogicaVentanaProceso& vp, const Conjunto& conjunto, Barrida<T>& barrida) {
    const bool hastaNumero = vp.PorNumero && !vp.Ciclos;
    const int32_t queGanan = vp.MejorApuestas - 1;
    const int32_t tope = hastaNumero ? std::min(vp.NApuestas, queGanan) : queGanan;
    if (!barrida.Barrer(vp.OrdenApuestas(), tope,
                        [&](int32_t i) { return vp.Turno(static_cast<double>(i) / vp.NApuestasReduccion); }))
        return false;
    std::vector<int32_t>& elegidas = barrida.Elegidas();
    if (vp.PorNumero || vp.Porcentaje >= 100)
        return !barrida.Excedida() || (hastaNumero && static_cast<int32_t>(elegidas.size()) == vp.NApuestas);
    const int32_t bastan =
        BastanPrimeras<T>(conjunto, elegidas, vp.CubiertasParaElegir(vp.Porcentaje), [&] { return vp.Turno(1); });
    elegidas.resize(bastan);
    return bastan > 0;
}

template <int T>
void Repetir(LogicaVentanaProceso& vp) {
    Conjunto conjunto(vp.sesion.trabajo);
    Barrida<T> barrida(conjunto);
    while (vp.Turno(0)) {
        const bool mejora = UnaBarrida(vp, conjunto, barrida);
        if (vp.detener) return;
        if (mejora) vp.TomarMejor(barrida.Elegidas(), vp.CicloActual + 1, false);
        if ((!vp.PorNumero && !vp.Ciclos) || vp.BastaElMejor()) return;
        vp.ContarCiclo();
        if (!vp.Turno(0)) return;
        vp.BarajarOrden();
        conjunto.Compactar();
    }
}

} // namespace

void ReducirSecuencial(LogicaVentanaProceso& vp) {
    vp.MejorApuestas = vp.NApuestasReduccion + 1;
    if (vp.RadioBits == 2) Repetir<4>(vp);
    if (vp.RadioBits == 3) Repetir<3>(vp);
    if (vp.RadioBits == 4) Repetir<2>(vp);
}
