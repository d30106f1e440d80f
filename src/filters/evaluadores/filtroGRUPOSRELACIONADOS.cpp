#include <algorithm>

#include "Apartados.h"
#include "Evaluadores.h"
#include "Grupos.h"
#include "Repartidores.h"

namespace {

constexpr size_t PorGrupo = RegistroGRUPOSRELACIONADOS::PorGrupo;

using Subgrupos = std::span<const MarcasNumeros, PorGrupo>;
using Condiciones6 = std::span<const TablaAciertos, PorGrupo>;

// With S subgroups in use the rows looked at are 1 to S: the dialog leaves no gap before them.
TablasRelacionados Preparar(const EstadoTrabajo& trabajo, Subgrupos subgrupos, Condiciones6 condiciones, size_t s) {
    TablasRelacionados tablas;
    for (size_t i = 0; i < s; ++i) AnadirMiembros(trabajo, subgrupos[i], i, tablas.Miembro);
    for (const TablaAciertos& condicion : condiciones) {
        if (!EnVigor(condicion)) continue;
        AciertosDeOcho& permite = tablas.Permite[static_cast<size_t>(tablas.Condiciones++)];
        for (size_t i = 0; i < s; ++i) AnadirAciertos(condicion, i, permite);
    }
    // Subgroups without a condition let no bet pass: a condition that nothing satisfies says so.
    if (tablas.Condiciones == 0) tablas.Condiciones = 1;
    return tablas;
}

// A table for each group in use.
std::vector<TablasRelacionados> PrepararTodos(const EstadoTrabajo& trabajo,
                                              const RegistroGRUPOSRELACIONADOS& registro) {
    std::vector<TablasRelacionados> tablas;
    for (size_t b = 0; b < registro.subgrupos.size(); b += PorGrupo) {
        const Subgrupos subgrupos(&registro.subgrupos[b], PorGrupo);
        const auto s = std::count_if(subgrupos.begin(), subgrupos.end(), EnVigor<MarcasNumeros>);
        if (s == 0) continue;
        tablas.push_back(
            Preparar(trabajo, subgrupos, Condiciones6(&registro.condiciones[b], PorGrupo), static_cast<size_t>(s)));
    }
    return tablas;
}

} // namespace

int32_t FiltrarGRUPOSRELACIONADOS(Sesion& sesion, Entorno& entorno) {
    const auto tablas = PrepararTodos(sesion.trabajo, sesion.condiciones.GRUPOSRELACIONADOS);
    if (tablas.empty()) return 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoRelacionados(tramo, tablas); });
}

Apartados RepartirGRUPOSRELACIONADOS(Sesion& sesion, Entorno& entorno) {
    const auto tablas = PrepararTodos(sesion.trabajo, sesion.condiciones.GRUPOSRELACIONADOS);
    return RepartirGrupos(sesion.trabajo, entorno, tablas.size(), [&](const Tramo& tramo, uint8_t* respuestas) {
        RespuestasRelacionados(tramo, tablas, respuestas);
    });
}
