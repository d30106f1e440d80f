#include "Evaluadores.h"
#include "Grupos.h"

namespace {

// The last eight may have places left over, which any bet satisfies.
std::vector<OchoGruposPorFila> Preparar(const EstadoTrabajo& trabajo, const RegistroGRUPOS& registro) {
    std::vector<OchoGruposPorFila> tablas;
    size_t usados = 0;
    for (const GrupoNumeros& grupo : registro.grupo) {
        if (!EnVigor(grupo.numeros)) continue;
        const size_t g = usados++ % 8;
        if (g == 0) tablas.emplace_back();
        for (size_t k = 0; k < grupo.posiciones.size(); ++k)
            if (grupo.posiciones[k] == 1) AnadirMiembros(trabajo, grupo.numeros, g, tablas.back().Miembro[k]);
        AnadirAciertos(grupo.aciertos, g, tablas.back().Permite);
    }
    if (usados % 8 != 0)
        for (uint8_t& permite : tablas.back().Permite) permite = static_cast<uint8_t>(permite | 0xFFu << usados % 8);
    return tablas;
}

} // namespace

int32_t FiltrarGRUPOS(Sesion& sesion, Entorno& entorno) {
    const auto tablas = Preparar(sesion.trabajo, sesion.condiciones.GRUPOS);
    if (tablas.empty()) return 0;
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoGrupos(tramo, tablas); });
}
