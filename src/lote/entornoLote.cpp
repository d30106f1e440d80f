#include "entornoLote.h"

#include <fmt/format.h>

#include "ClienteHttp.h"
#include "ConsultarServicioSorteos.h"
#include "Parada.h"

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
    entorno.PedirHttp = [&consola](const std::string& url, std::string& cuerpo, std::string& fallo) {
        const auto seguir = [&consola] {
            consola.Progreso([] { return std::string("Esperando al servicio de sorteos"); });
            return !ParadaPedida();
        };
        return PedirHttp(url, cuerpo, fallo, seguir);
    };
    entorno.Servicio = opciones.Servicio.empty() ? ServicioConfigurado() : opciones.Servicio;
    entorno.Ahora = AhoraDelSistema;
    entorno.CarpetaInformes = opciones.Carpeta;
    return entorno;
}

std::function<std::string(const PeticionFichero&)> Responder(const std::string& ruta) {
    return [ruta](const PeticionFichero&) { return ruta; };
}
