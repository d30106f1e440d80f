#include "Informes.h"

#include "FicheroAtomico.h"
#include "Texto8bits.h"

namespace {

std::string ConFinesDeLinea(std::string_view texto) {
    std::string lineas;
    lineas.reserve(texto.size() + texto.size() / 16);
    for (const char c : texto) {
        if (c == '\n') lineas += '\r';
        lineas += c;
    }
    return lineas;
}

} // namespace

std::string RutaInforme(const Entorno& entorno, std::string_view nombre) {
    return entorno.CarpetaInformes + "/" + std::string(nombre);
}

bool EscribirInforme(const std::string& ruta, std::string_view texto, std::string& fallo) {
    FicheroAtomico fichero;
    if (fichero.Abrir(ruta) && fichero.Escribir(Utf8ACodigo8(ConFinesDeLinea(texto))) && fichero.Confirmar())
        return true;
    fallo = fichero.Fallo();
    return false;
}

bool MostrarInforme(Entorno& entorno, std::string_view nombre, std::string_view texto) {
    const std::string ruta = RutaInforme(entorno, nombre);
    std::string fallo;
    if (!EscribirInforme(ruta, texto, fallo)) return FalloAlGenerarInforme(entorno, fallo);
    entorno.VerInforme(ruta);
    return true;
}

bool FalloAlGenerarInforme(Entorno& entorno, const std::string& descripcion) {
    return Fallo(entorno, "ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (" + descripcion + ")");
}
