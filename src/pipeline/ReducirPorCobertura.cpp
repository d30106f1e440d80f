#include "ReducirPorCobertura.h"

#include <algorithm>

#include "Conjunto.h"
#include "Eleccion.h"
#include "LogicaVentanaProceso.h"

namespace {

// When a cycle has what it was asked for.
struct Meta {
    explicit Meta(const LogicaVentanaProceso& vp)
        : soloNumero(vp.PorNumero && vp.sesion.trabajo.Reduccion.ApuestasExactas == 0),
          cubiertas(vp.CubiertasParaElegir(soloNumero ? 100 : vp.Porcentaje)),
          apuestas(soloNumero && !vp.Ciclos ? vp.NApuestas : 0) {}

    bool soloNumero;
    int32_t cubiertas; // covered bets that end the cycle
    int32_t apuestas;  // bets taken that end it, 0 for none
};

// Gains only fall: whether `faltan` more bets can still be covered with fewer than `huecos` choices.
bool PuedeGanar(int32_t faltan, int32_t ganancia, int32_t huecos) {
    return faltan <= 0 || (faltan + ganancia - 1) / ganancia < huecos;
}

// One cycle. True when it ended with fewer bets than the best; `vp.detener` tells a stop.
template <class Eleccion>
bool UnCiclo(LogicaVentanaProceso& vp, const Meta& meta, Eleccion& eleccion, std::vector<int32_t>& elegidas) {
    elegidas.clear();
    eleccion.Comenzar(vp.OrdenApuestas());
    int64_t cubiertas = 0;
    while (true) {
        const int32_t elegida = eleccion.Elegir();
        if (elegida < 0) return !elegidas.empty();
        elegidas.push_back(elegida);
        cubiertas += eleccion.Ganancia();
        const auto cuenta = static_cast<int32_t>(elegidas.size());
        const auto faltan = static_cast<int32_t>(meta.cubiertas - cubiertas);
        if (cuenta >= vp.MejorApuestas || !PuedeGanar(faltan, eleccion.Ganancia(), vp.MejorApuestas - cuenta))
            return false;
        if (!vp.Turno(static_cast<double>(cubiertas) / vp.NApuestasReduccion)) return false;
        if (faltan <= 0 || cuenta == meta.apuestas) return true;
    }
}

template <class Eleccion>
void Repetir(LogicaVentanaProceso& vp, Conjunto& conjunto, Eleccion& eleccion) {
    const Meta meta(vp);
    std::vector<int32_t> elegidas;
    do {
        const bool mejora = UnCiclo(vp, meta, eleccion, elegidas);
        if (vp.detener) return;
        vp.ContarCiclo();
        if (mejora) vp.TomarMejor(elegidas, vp.CicloActual, true);
        if (!vp.Ciclos || vp.BastaElMejor() || !vp.Turno(0)) return;
        vp.BarajarOrden();
        conjunto.Compactar();
    } while (true);
}

// PrepararCobertura: counts what each bet would cover, with the window saying so while it is counted.
template <class Cuentas>
bool Contar(LogicaVentanaProceso& vp, Cuentas& cuentas) {
    if (!vp.sesion.trabajo.SinEliminadas) vp.lblCiclos = "Analizando ...";
    const bool contadas = vp.Turno(0) && cuentas.Contar([&](int32_t i) {
        return vp.Turno(static_cast<double>(i) / vp.NApuestasReduccion);
    });
    vp.lblCiclos = "0";
    vp.lblProgressBar = 0;
    return contadas;
}

template <class Cuentas, class Eleccion>
void ReducirContando(LogicaVentanaProceso& vp, Conjunto& conjunto) {
    Cuentas cuentas(conjunto);
    if (!Contar(vp, cuentas)) return;
    Eleccion eleccion(conjunto, cuentas);
    Repetir(vp, conjunto, eleccion);
}

} // namespace

void ReducirPorCobertura(LogicaVentanaProceso& vp) {
    vp.MejorApuestas = vp.NApuestasReduccion + 1;
    Conjunto conjunto(vp.sesion.trabajo);
    if (vp.RadioBits == 2) return ReducirContando<CuentasAl5, EleccionAl5>(vp, conjunto);
    if (vp.RadioBits == 4) return ReducirContando<CuentasAl4, EleccionAl4>(vp, conjunto);
    EleccionDirecta eleccion(conjunto);
    Repetir(vp, conjunto, eleccion);
}
