#include <algorithm>

#include "Apartados.h"
#include "Evaluadores.h"
#include "Grupos.h"
#include "Repartidores.h"

namespace {

// A place left over in the last eight allows no count, so it is never satisfied.
std::vector<OchoGrupos> Preparar(const EstadoTrabajo& trabajo, const RegistroGRUPOSENTRELIMITES& registro) {
    std::vector<OchoGrupos> tablas;
    size_t usados = 0;
    for (const GrupoLimites& grupo : registro.grupo) {
        if (!EnVigor(grupo.numeros)) continue;
        const size_t g = usados++ % 8;
        if (g == 0) tablas.emplace_back();
        AnadirMiembros(trabajo, grupo.numeros, g, tablas.back().Miembro);
        AnadirAciertos(grupo.aciertos, g, tablas.back().Permite);
    }
    return tablas;
}

} // namespace

// The limits are tested also when no group is defined. A base file may hold any limits: counts go from
// 0 to 210, so what lies outside says no more than its nearest neighbour from -1 to 211.
int32_t FiltrarGRUPOSENTRELIMITES(Sesion& sesion, Entorno& entorno) {
    const RegistroGRUPOSENTRELIMITES& registro = sesion.condiciones.GRUPOSENTRELIMITES;
    constexpr int32_t imposible = RegistroGRUPOSENTRELIMITES::Grupos + 1;
    int32_t minimo = std::clamp(registro.aciertosMinimoGRUPOSENTRELIMITES, 0, imposible);
    const int32_t maximo = std::clamp(registro.aciertosMaximoGRUPOSENTRELIMITES, -1, imposible);
    if (maximo < 0) minimo = imposible;
    const TablasLimites tablas{Preparar(sesion.trabajo, registro), static_cast<uint8_t>(minimo),
                               static_cast<uint8_t>(std::max(maximo, 0))};
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoLimites(tramo, tablas); });
}

Apartados RepartirGRUPOSENTRELIMITES(Sesion& sesion, Entorno& entorno) {
    const auto& grupos = sesion.condiciones.GRUPOSENTRELIMITES.grupo;
    const auto usados = std::count_if(grupos.begin(), grupos.end(), [](auto& g) { return EnVigor(g.numeros); });
    const TablasLimites tablas{Preparar(sesion.trabajo, sesion.condiciones.GRUPOSENTRELIMITES)};
    return RepartirGrupos(
        sesion.trabajo, entorno, static_cast<size_t>(usados),
        [&](const Tramo& tramo, uint8_t* respuestas) { RespuestasLimites(tramo, tablas, respuestas); });
}
