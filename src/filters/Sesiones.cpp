#include "Sesiones.h"

#include "Boleto.h"
#include "TablaFiltros.h"

namespace {

FilaFiltro& Fila(Sesion& sesion, int k) {
    return sesion.condiciones.lstFiltros[static_cast<size_t>(k)];
}

void ColorearFilas(Sesion& sesion) {
    for (int k = 0; k < NFilas; ++k)
        Fila(sesion, k).Color = !DisponibleEnJuego(k, sesion.trabajo) ? ColorFila::NoDisponible
                                : k % 2 == 0                          ? ColorFila::Clara
                                                                      : ColorFila::Oscura;
}

// Without marks nothing stands in them, and those of the whole ticket hold hundreds of megabytes.
void SoltarTablas(EstadoTrabajo& trabajo) {
    for (Tabla* tabla : {&trabajo.TablaApuestas, &trabajo.ApuestaEliminada, &trabajo.ApuestasCondicionadas,
                         &trabajo.ApuestasReducidas, &trabajo.ApuestasImportadas})
        tabla->Vaciar();
}

} // namespace

void InicializarFiltros(Sesion& sesion, Entorno& entorno) {
    sesion.trabajo.Reduccion = {};
    const ListaFiltros filas = sesion.condiciones.lstFiltros;
    sesion.condiciones = {};
    sesion.condiciones.lstFiltros = filas;
    const auto anio = static_cast<int16_t>(entorno.Ahora().Anio);
    for (auto& bloque : sesion.condiciones.SORTEOSANTERIORES.grupo) bloque.DESDE.anio = bloque.HASTA.anio = anio;
}

void IniciarSesion(Sesion& sesion, Entorno& entorno) {
    sesion = {};
    InicializarFiltros(sesion, entorno);
    for (int k = 0; k < NFilas; ++k) ActualizarFila(sesion, k);
    CambiarJuego(sesion, PRIMITIVA);
}

void ReiniciarSesion(Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    if (trabajo.cboTipoCombinacion != PronosticoDesdeArchivo) {
        LimpiarMarcas(trabajo);
        SoltarTablas(trabajo);
        trabajo.txtFicheroASCII.clear();
    }
    InicializarFiltros(sesion, entorno);
    for (int k = 0; k < NFilas; ++k) {
        Fila(sesion, k).Activo = false;
        ActualizarFila(sesion, k);
    }
    ReiniciarEliminados(sesion);
    trabajo.Titulo = std::string(PrefijoTitulo) + "Sin guardar.xml";
    trabajo.CombinacionGuardada = true;
}

void CambiarJuego(Sesion& sesion, int juego) {
    sesion.trabajo.cboTipoJuego = juego;
    sesion.trabajo.chkReintegros = sesion.trabajo.JuegoActual().TieneDigito();
    LimpiarMarcas(sesion.trabajo);
    ColorearFilas(sesion);
}

void ActualizarFila(Sesion& sesion, int k) {
    if (k == FilaReduccion) {
        Fila(sesion, k).NumeroActivos = TextoReduccion(sesion.trabajo.Reduccion.TipoReduccion);
    } else if (const auto bloques = TablaFiltros[static_cast<size_t>(k)].Bloques; !bloques.empty()) {
        Fila(sesion, k).NumeroActivos = TextoBloquesUsados(sesion.condiciones, bloques);
    }
}

void ReiniciarEliminados(Sesion& sesion) {
    Condiciones& condiciones = sesion.condiciones;
    for (size_t k = 0; k < NFilas; ++k) {
        FilaFiltro& fila = condiciones.lstFiltros[k];
        fila.Eliminadas.reset();
        if (fila.Activo && k < NFiltros) fila.Eliminadas = condiciones.EliminadasPorFiltro[k];
    }
}

void AlternarFila(Sesion& sesion, int k) {
    FilaFiltro& fila = Fila(sesion, k);
    fila.Activo = !fila.Activo;
}
