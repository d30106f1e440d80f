#include "Apartados.h"
#include "Evaluadores.h"
#include "Grupos.h"
#include "Repartidores.h"

namespace {

struct OchosDeGrupos {
    std::vector<OchoGruposPorFila> Tablas; ///< places left over in the last eight allow no count
    size_t Usados = 0;
};

OchosDeGrupos Preparar(const EstadoTrabajo& trabajo, const RegistroGRUPOS& registro) {
    OchosDeGrupos ochos;
    for (const GrupoNumeros& grupo : registro.grupo) {
        if (!EnVigor(grupo.numeros)) continue;
        const size_t g = ochos.Usados++ % 8;
        if (g == 0) ochos.Tablas.emplace_back();
        OchoGruposPorFila& ultimo = ochos.Tablas.back();
        for (size_t k = 0; k < grupo.posiciones.size(); ++k)
            if (grupo.posiciones[k] == 1) AnadirMiembros(trabajo, grupo.numeros, g, ultimo.Miembro[k]);
        AnadirAciertos(grupo.aciertos, g, ultimo.Permite);
    }
    return ochos;
}

} // namespace

// All groups must hold: places left over are such as any bet satisfies.
int32_t FiltrarGRUPOS(Sesion& sesion, Entorno& entorno) {
    OchosDeGrupos ochos = Preparar(sesion.trabajo, sesion.condiciones.GRUPOS);
    if (ochos.Usados == 0) return 0;
    if (ochos.Usados % 8 != 0)
        for (uint8_t& permite : ochos.Tablas.back().Permite)
            permite = static_cast<uint8_t>(permite | 0xFFu << ochos.Usados % 8);
    return Barrer(sesion.trabajo, entorno, [&](const Tramo& tramo) { return NucleoGrupos(tramo, ochos.Tablas); });
}

Apartados RepartirGRUPOS(Sesion& sesion, Entorno& entorno) {
    const OchosDeGrupos ochos = Preparar(sesion.trabajo, sesion.condiciones.GRUPOS);
    return RepartirGrupos(sesion.trabajo, entorno, ochos.Usados, [&](const Tramo& tramo, uint8_t* respuestas) {
        RespuestasGrupos(tramo, ochos.Tablas, respuestas);
    });
}
