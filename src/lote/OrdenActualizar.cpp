// actualizar: replaces a draw file by the history that the service has.
#include <filesystem>

#include "Argumentos.h"
#include "LogicaEstadisticas.h"
#include "Ordenes.h"

namespace {

struct ArgumentosActualizar {
    std::string Sorteos;
    int Juego = PRIMITIVA;
};

bool Actualizar(Lote& lote, const ArgumentosActualizar& argumentos) {
    LogicaEstadisticas logica(lote.sesion.trabajo, lote.entorno);
    logica.ElegirJuego(argumentos.Juego);
    logica.RutaFicheroNuevo = argumentos.Sorteos;
    std::error_code ignorado;
    const bool existe = std::filesystem::exists(argumentos.Sorteos, ignorado);
    // Something else under that name is left alone.
    if (existe && !logica.CargarFicheroSorteos(argumentos.Sorteos)) return false;
    return logica.ActualizarDesdeInternet();
}

} // namespace

void DeclararActualizar(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosActualizar>();
    CLI::App* orden =
        NuevaOrden(programa, lote, "actualizar", "Cambia un fichero de sorteos por la historia que da el servicio",
                   [argumentos](Lote& l) { return Actualizar(l, *argumentos); });
    Fichero(orden, "SORTEOS.txt", argumentos->Sorteos, "Fichero de sorteos que se cambia, o se crea");
    OpcionJuego(orden, argumentos->Juego);
}
