#include <new>

#include "Bloqueo.h"
#include "FicheroSorteos.h"
#include "LogicaEstadisticas.h"
#include "modGeneral.h"

namespace {

// Reads the file into the fields of the window. False with the description of the failure.
bool Leer(LogicaEstadisticas& l, std::string& fallo) {
    LectorLineas lineas;
    if (!lineas.Abrir(l.txtFicheroASCII)) {
        fallo = lineas.Fallo();
        return false;
    }
    l.trabajo.NApuestasImportadas = 0;
    ContenidoSorteos contenido;
    const auto progreso = [&](size_t leidos) {
        l.lblSorteosCargados = std::to_string(leidos);
        l.entorno.CederTurno();
    };
    if (!LeerFicheroSorteos(lineas, contenido, fallo, progreso)) return false;
    if (contenido.lleno)
        l.entorno.Mensaje(Icono::Exclamacion,
                          "SOLO SE PUEDEN IMPORTAR " + std::to_string(ApuestasMaximas) + " APUESTAS");
    l.SorteosCargados = std::move(contenido.sorteos);
    l.lblTemporadaDESDE = contenido.anioPrimero;
    l.lblSorteoDESDE = contenido.sorteoPrimero;
    l.lblTemporadaHASTA = contenido.anioUltimo;
    l.lblSorteoHASTA = contenido.sorteoUltimo;
    l.lblSorteosCargados = std::to_string(l.SorteosCargados.size());
    // The count of imported bets follows the draws, on purpose.
    l.trabajo.NApuestasImportadas = static_cast<int32_t>(l.SorteosCargados.size());
    return true;
}

} // namespace

void LogicaEstadisticas::InicializarDatosSorteos() {
    lblSorteosCargados = "0";
    lblTemporadaDESDE = lblSorteoDESDE = lblTemporadaHASTA = lblSorteoHASTA = "-";
    txtDatos.clear();
    Figuras.clear();
    lblSorteosConsultados.clear();
    SorteosCargados = {};
}

void LogicaEstadisticas::cmdAbrirEstadisticas() {
    if (Ocupado()) return;
    const std::string ruta =
        entorno.PedirAbrir({"Abrir Fichero",
                            {{"Ficheros de Estadísticas (*.TXT)", "*.TXT"}, {"todos los archivos (*.*)", "*.*"}},
                            std::string(FicheroEstadisticas)});
    if (!Recortar(ruta).empty()) Soltar(ruta);
}

void LogicaEstadisticas::Soltar(const std::string& ruta) {
    if (Ocupado()) return;
    const Bloqueo bloqueo(trabajo);
    CargarFicheroSorteos(ruta);
}

bool LogicaEstadisticas::CargarFicheroSorteos(const std::string& ruta) {
    InicializarDatosSorteos();
    txtFicheroASCII = ruta;
    std::string fallo;
    try {
        if (Leer(*this, fallo)) return true;
    } catch (const std::bad_alloc&) {
        fallo = "no hay memoria suficiente";
    }
    Fallo(entorno, "ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (" + fallo + ")");
    InicializarDatosSorteos();
    return false;
}

void LogicaEstadisticas::imgINIFichero() {
    if (Ocupado()) return;
    InicializarDatosSorteos();
    txtFicheroASCII.clear();
    trabajo.NApuestasImportadas = 0;
}
