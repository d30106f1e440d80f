#include "MejorarReduccion.h"

#include <chrono>

#include "Comprobar.h"
#include "LogicaVentanaProceso.h"
#include "Mejora.h"
#include "modGeneral.h"

namespace {

constexpr int64_t PasosPorTurno = 16;

// The reduced system as masks of positions of the base.
std::vector<uint64_t> EnPosiciones(const EstadoTrabajo& trabajo) {
    std::array<uint8_t, 256> posicion{};
    for (int p = 1; p <= trabajo.NumerosBase; ++p) posicion[trabajo.BaseNumeros[p]] = static_cast<uint8_t>(p);
    std::vector<uint64_t> sistema;
    for (int64_t i = 1; i <= trabajo.ApuestasReducidas.Apuestas(); ++i) {
        uint64_t mascara = 0;
        for (int r = 1; r <= 6; ++r) mascara |= uint64_t{1} << posicion[trabajo.ApuestasReducidas(r, i)] >> 1;
        sistema.push_back(mascara);
    }
    return sistema;
}

Garantia LaPedida(const LogicaVentanaProceso& vp, const std::vector<uint64_t>& sistema, const Vigia& vigia) {
    Garantia garantia;
    garantia.Aciertos = 6 - vp.sesion.trabajo.Reduccion.TipoReduccion;
    garantia.Exigido = vp.PorNumero
                           ? ContarCubiertas(vp.sesion.trabajo.ApuestasCondicionadas, sistema, garantia.Aciertos, vigia)
                           : vp.CubiertasParaElegir(vp.Porcentaje);
    return garantia;
}

void MostrarCota(LogicaVentanaProceso& vp, int32_t cota) {
    vp.Cota = cota;
    vp.lblCota = FormatoMiles(cota, vp.entorno.SeparadorMiles);
}

void Buscar(LogicaVentanaProceso& vp, const Vigia& vigia) {
    const EstadoTrabajo& trabajo = vp.sesion.trabajo;
    const FinesMejora& fines = vp.finesMejora;
    const std::vector<uint64_t> sistema = EnPosiciones(trabajo);
    const Garantia garantia = LaPedida(vp, sistema, vigia);
    Mejora mejora(trabajo.ApuestasCondicionadas, trabajo.NumerosBase, garantia, fines.Semilla, vigia);
    if (!mejora.PartirDe(sistema)) return;
    if (garantia.Exigido < vp.NApuestasReduccion && vp.PorNumero && !mejora.FijarApuestas(vp.NApuestas)) return;
    MostrarCota(vp, mejora.Cota());
    if (mejora.Sistema() != sistema) vp.TomarMejorado(mejora.Sistema());
    for (vp.PasosMejora = 0; !mejora.Terminada(); vp.PasosMejora += PasosPorTurno) {
        vigia.Preguntar();
        if (fines.Pasos > 0 && vp.PasosMejora >= fines.Pasos) break;
        if (mejora.Apuestas() <= fines.Apuestas) break;
        if (mejora.Pasos(PasosPorTurno)) vp.TomarMejorado(mejora.Sistema());
        if (mejora.Cota() > vp.Cota) MostrarCota(vp, mejora.Cota());
    }
}

} // namespace

bool ReduccionMejorable(const Sesion& sesion, Entorno& entorno) {
    const AjustesReduccion& ajustes = sesion.trabajo.Reduccion;
    const bool activa = sesion.condiciones.lstFiltros[FilaReduccion].Activo;
    if (!activa || ajustes.TipoReduccion < 1 || ajustes.TipoReduccion > 4)
        return Fallo(entorno, "ERROR: No hay ninguna reducción que mejorar");
    if (ajustes.ApuestasExactas == 1)
        return Fallo(entorno, "ERROR: No se puede mejorar un sistema con un número exacto de apuestas");
    return true;
}

void MejorarReduccion(LogicaVentanaProceso& vp) {
    using Reloj = std::chrono::steady_clock;
    const Reloj::time_point comienzo = Reloj::now();
    const double tope = vp.finesMejora.Segundos;
    const Vigia vigia([&] {
        vp.SegundosMejora = std::chrono::duration<double>(Reloj::now() - comienzo).count();
        return vp.Turno(0) && (tope <= 0 || vp.SegundosMejora < tope);
    });
    try {
        Buscar(vp, vigia);
    } catch (const Interrumpida&) { // the best one stands in the window
    }
}
