#include <filesystem>
#include <new>

#include "Bloqueo.h"
#include "ConsultarServicioSorteos.h"
#include "FicheroSorteos.h"
#include "Ficheros.h"
#include "Juegos.h"
#include "LogicaEstadisticas.h"
#include "modGeneral.h"

namespace {

const std::string Titulo = "ERROR AL ABRIR EL FICHERO DE ACTUALIZACION";

// The wait panel, shown and with the main window locked while it lives.
class EsperaActualizacion {
  public:
    explicit EsperaActualizacion(LogicaEstadisticas& l) : l_(l), bloqueo_(l.trabajo) { l_.Actualizando = true; }
    ~EsperaActualizacion() { l_.Actualizando = false; }
    EsperaActualizacion(const EsperaActualizacion&) = delete;
    EsperaActualizacion& operator=(const EsperaActualizacion&) = delete;

  private:
    LogicaEstadisticas& l_;
    Bloqueo bloqueo_;
};

bool Existe(const std::string& ruta) {
    std::error_code ignorado;
    return std::filesystem::exists(ruta, ignorado);
}

std::string CarpetaDe(const std::string& ruta) {
    const std::string carpeta = std::filesystem::path(ruta).parent_path().string();
    return carpeta.empty() ? "." : carpeta;
}

// The file that is to be replaced, as the user agrees: the loaded one, else the proposed one. Empty for
// "no".
std::string ElegirDestino(LogicaEstadisticas& l) {
    if (!l.SorteosCargados.empty()) {
        const bool si = l.entorno.Preguntar(
            "Se van actualizar los datos del fichero '" + std::string(Recortar(l.txtFicheroASCII)) +
            "' con los del fichero de INTERNET del juego " +
            std::string(Juegos[static_cast<size_t>(l.cboTipoJuego)].Nombre) + "\n¿ Desea continuar ?");
        return si ? l.txtFicheroASCII : "";
    }
    // One that is there is replaced without a question, on purpose, also when it does not load.
    if (Existe(l.RutaFicheroNuevo)) {
        l.CargarFicheroSorteos(l.RutaFicheroNuevo);
        return l.RutaFicheroNuevo;
    }
    const bool si =
        l.entorno.Preguntar("No hay ningún fichero de sorteos cargado, se va a proceder a crear uno nuevo llamado '" +
                            NombreSinCarpeta(l.RutaFicheroNuevo) + "'\nEn la ruta: '" + CarpetaDe(l.RutaFicheroNuevo) +
                            "', ¿ Desea continuar ?");
    return si ? l.RutaFicheroNuevo : "";
}

bool Actualizar(LogicaEstadisticas& l) {
    const auto fallar = [&](const std::string& motivo) { return Fallo(l.entorno, Titulo + " (" + motivo + ")"); };
    const std::string juego(Juegos[static_cast<size_t>(l.cboTipoJuego)].Nombre);
    RespuestaServicio respuesta;
    if (!ConsultarServicioSorteos(respuesta, "temporada=todas&juego=" + juego, l.entorno))
        return fallar(respuesta.Fallo());
    if (!respuesta.Legible()) return Fallo(l.entorno, Titulo + " - " + respuesta.Motivo());

    const std::string destino = ElegirDestino(l);
    if (destino.empty()) return false;

    Sorteos sorteos;
    if (!respuesta.LeerCombinaciones(juego, sorteos)) return fallar(respuesta.Fallo());
    if (sorteos.empty()) return Fallo(l.entorno, "ERROR AL TRATAR EL FICHERO DE ACTUALIZACION DESDE INTERNET");
    std::string fallo;
    if (!EscribirFicheroSorteos(destino, sorteos, fallo)) return fallar(fallo);
    l.entorno.Mensaje(Icono::Exclamacion, "SE HAN ACTUALIZADO " + std::to_string(sorteos.size()) +
                                              " COMBINACIONES EN EL FICHERO: " + destino);
    return l.CargarFicheroSorteos(destino);
}

} // namespace

bool LogicaEstadisticas::ActualizarDesdeInternet() {
    if (Ocupado()) return false;
    const EsperaActualizacion espera(*this);
    try {
        return Actualizar(*this);
    } catch (const std::bad_alloc&) {
        return Fallo(entorno, Titulo + " (no hay memoria suficiente)");
    }
}
