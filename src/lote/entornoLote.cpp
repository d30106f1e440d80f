#include "entornoLote.h"

#include <fmt/format.h>

namespace {

std::string TextoProgreso(const EstadoTrabajo& trabajo) {
    if (trabajo.picVentanaEspera.Visible)
        return fmt::format("Grabando {:.0f} %", 100 * trabajo.picVentanaEspera.Fraccion);
    return trabajo.Contador.Progreso.empty() ? "Calculando" : trabajo.Contador.Progreso;
}

} // namespace

Entorno CrearEntornoLote(const OpcionesLote& opciones, const Sesion& sesion, Consola& consola) {
    Entorno entorno;
    entorno.Mensaje = [&consola](Icono, const std::string& texto) { consola.Linea(texto); };
    entorno.Preguntar = [&consola, si = opciones.Si](const std::string& texto) {
        consola.Linea(texto + (si ? " -> sí" : " -> no"));
        return si;
    };
    entorno.CederTurno = [&consola, &sesion] { consola.Progreso([&sesion] { return TextoProgreso(sesion.trabajo); }); };
    entorno.Ahora = AhoraDelSistema;
    entorno.CarpetaInformes = opciones.Carpeta;
    return entorno;
}

std::function<std::string(const PeticionFichero&)> Responder(const std::string& ruta) {
    return [ruta](const PeticionFichero&) { return ruta; };
}
