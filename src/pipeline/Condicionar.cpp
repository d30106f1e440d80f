#include "Condicionar.h"

#include <numeric>

#include "Sesiones.h"
#include "TablaFiltros.h"

int32_t Condicionar(Sesion& sesion, Entorno& entorno) {
    Condiciones& condiciones = sesion.condiciones;
    condiciones.EliminadasPorFiltro.fill(0);
    for (FilaFiltro& fila : condiciones.lstFiltros) fila.Eliminadas.reset();
    for (size_t k = 0; k < NFiltros; ++k) {
        if (!condiciones.lstFiltros[k].Activo) continue;
        sesion.trabajo.Contador.Progreso = TablaFiltros[k].Progreso;
        condiciones.EliminadasPorFiltro[k] = TablaFiltros[k].Filtrar(sesion, entorno);
    }
    sesion.trabajo.Contador.Progreso.clear();
    const auto& cuentas = condiciones.EliminadasPorFiltro;
    return std::accumulate(cuentas.begin(), cuentas.end(), int32_t{0});
}
