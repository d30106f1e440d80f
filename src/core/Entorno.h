// The outside world, as the logic sees it: boxes, choosers, the event loop, the clock.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

enum class Icono { Informacion, Exclamacion, Critico };

/// What a file chooser is asked for. `Filtros` are "description|pattern" pairs.
struct PeticionFichero {
    std::string Titulo;
    std::vector<std::pair<std::string, std::string>> Filtros; ///< description, pattern such as "*.TOM"
    std::string Nombre;                                       ///< proposed name, may be empty
    size_t FiltroElegido = 0;                                 ///< the one that stands chosen at first
};

struct LogicaVentanaProceso;

struct FechaHora {
    int Anio = 2000, Mes = 1, Dia = 1, Hora = 0, Minuto = 0, Segundo = 0;
};

/// Filled by each front end and by the tests. No member is ever empty: a default one is silent,
/// answers "no" and cancels.
struct Entorno {
    std::function<void(Icono, const std::string&)> Mensaje = [](Icono, const std::string&) {};
    /// Yes/no box with "no" preselected.
    std::function<bool(const std::string&)> Preguntar = [](const std::string&) { return false; };
    /// The path chosen, empty when cancelled.
    std::function<std::string(const PeticionFichero&)> PedirAbrir = [](const PeticionFichero&) {
        return std::string();
    };
    std::function<std::string(const PeticionFichero&)> PedirGuardar = [](const PeticionFichero&) {
        return std::string();
    };
    std::function<std::vector<std::string>(const PeticionFichero&)> PedirVarios = [](const PeticionFichero&) {
        return std::vector<std::string>();
    };
    /// One turn of the event loop, called by long loops at their cadence. Cheap when called often.
    std::function<void()> CederTurno = [] {};
    /// Shows the process window of a reduction until it closes. Showing nothing runs nothing: the
    /// calculation ends without a reduced system.
    std::function<void(LogicaVentanaProceso&)> MostrarVentanaProceso = [](LogicaVentanaProceso&) {};
    /// Shows a report file in a text editor.
    std::function<void(const std::string& ruta)> VerInforme = [](const std::string&) {};
    /// Opens an address in the browser; false when that is not possible.
    std::function<bool(const std::string& direccion)> AbrirDireccion = [](const std::string&) { return false; };
    /// GET of an address: the body on success, otherwise false and the description of the failure.
    std::function<bool(const std::string& url, std::string& cuerpo, std::string& fallo)> PedirHttp =
        [](const std::string&, std::string&, std::string&) { return false; };
    /// The local date and time.
    std::function<FechaHora()> Ahora = [] { return FechaHora{}; };
    std::function<void()> Pitar = [] {};

    std::string CarpetaInformes = "."; ///< where the report files go
    std::string Servicio;              ///< base address of the draw-data service, empty when none is set
    std::string Sitio;                 ///< address of the outside site, empty when none is set
    std::string Manual;                ///< address of the installed manual, empty when there is none
    char SeparadorMiles = '.';
    char SeparadorDecimal = ',';
};

/// Shows the box of a failure, critical for a text that begins "ERROR" and exclamation for the rest.
/// Always false, so that a check is one line: `if (vacío) return Fallo(entorno, "ERROR: ...");`
bool Fallo(Entorno& entorno, const std::string& texto);

/// The machine's local date and time.
FechaHora AhoraDelSistema();
