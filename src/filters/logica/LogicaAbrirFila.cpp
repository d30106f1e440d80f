#include "LogicaAbrirFila.h"

#include "Sesiones.h"
#include "TablaFiltros.h"

bool AbrirFila(Sesion& sesion, Entorno& entorno, int k, const std::function<void()>& mostrar) {
    sesion.trabajo.CombinacionGuardada = false;
    if (!DisponibleEnJuego(k, sesion.trabajo))
        return Fallo(entorno, "AVISO: FILTRO NO PERMITIDO PARA EL JUEGO EURODREAMS");
    mostrar();
    ActualizarFila(sesion, k);
    if (k == FilaReduccion) {
        sesion.condiciones.lstFiltros[FilaReduccion].Activo = sesion.trabajo.Reduccion.TipoReduccion != 0;
    } else if (!TablaFiltros[static_cast<size_t>(k)].Bloques.empty()) {
        ReiniciarEliminados(sesion);
    }
    return true;
}
