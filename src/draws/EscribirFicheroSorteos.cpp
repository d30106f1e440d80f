#include <fmt/format.h>

#include "FicheroAtomico.h"
#include "FicheroSorteos.h"

namespace {

constexpr size_t Tramo = 1 << 18; // bytes gathered before they are written

void AnadirLinea(const Sorteo& sorteo, std::string& texto) {
    for (size_t j = 0; j < sorteo.numeros.size(); ++j)
        fmt::format_to(std::back_inserter(texto), "{}{:02}", j == 0 ? "" : ",", sorteo.numeros[j]);
    fmt::format_to(std::back_inserter(texto), " {} {} {}\r\n", sorteo.anio, sorteo.sorteo,
                   LetrasDia[sorteo.dia - size_t{1}]);
}

bool EscribirLineas(FicheroAtomico& fichero, const Sorteos& sorteos) {
    std::string texto = "\r\n";
    for (const Sorteo& sorteo : sorteos) {
        AnadirLinea(sorteo, texto);
        if (texto.size() < Tramo) continue;
        if (!fichero.Escribir(texto)) return false;
        texto.clear();
    }
    return fichero.Escribir(texto);
}

} // namespace

bool EscribirFicheroSorteos(const std::string& ruta, const Sorteos& sorteos, std::string& fallo) {
    for (const Sorteo& sorteo : sorteos)
        if (sorteo.dia == 0) {
            fallo = fmt::format("el día del sorteo {} de {} no es ninguno de L, M, X, J, V, S y D", sorteo.sorteo,
                                sorteo.anio);
            return false;
        }
    FicheroAtomico fichero;
    if (fichero.Abrir(ruta) && EscribirLineas(fichero, sorteos) && fichero.Confirmar()) return true;
    fallo = fichero.Fallo();
    return false;
}
