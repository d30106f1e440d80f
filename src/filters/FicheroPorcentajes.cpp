#include "FicheroPorcentajes.h"

#include <vector>

#include "FicheroAtomico.h"
#include "Ficheros.h"
#include "Texto8bits.h"
#include "modGeneral.h"

namespace {

// 49 values take some 300 bytes; a line that does not end within this is no percentage file.
constexpr int64_t TamanoMaximo = 1 << 20;
constexpr std::string_view Blancos = " \t\r";
constexpr std::string_view MarcaUtf8 = "\xEF\xBB\xBF";

PeticionFichero Peticion(const char* titulo) {
    return {titulo, {{"Ficheros de porcentajes (*.TXT)", "*.TXT"}, {"Todos los archivos (*.*)", "*.*"}}, ""};
}

std::vector<std::string> Partes(std::string_view linea) {
    std::vector<std::string> partes;
    for (size_t desde = linea.find_first_not_of(Blancos); desde != std::string_view::npos;) {
        const size_t hasta = linea.find_first_of(Blancos, desde);
        partes.emplace_back(linea.substr(desde, hasta - desde));
        desde = linea.find_first_not_of(Blancos, hasta);
    }
    return partes;
}

bool LeerPrimeraLinea(const std::string& ruta, std::vector<std::string>& partes) {
    std::string contenido, fallo;
    if (!LeerFichero(ruta, TamanoMaximo, contenido, fallo)) return false;
    std::string_view linea = contenido;
    if (linea.starts_with(MarcaUtf8)) linea.remove_prefix(MarcaUtf8.size());
    partes = Partes(linea.substr(0, linea.find('\n')));
    return true;
}

} // namespace

std::string PedirPorcentajesAbrir(Entorno& entorno) {
    return entorno.PedirAbrir(Peticion("Cargar Porcentajes"));
}

std::string PedirPorcentajesGuardar(Entorno& entorno) {
    const std::string ruta = entorno.PedirGuardar(Peticion("Guardar Porcentajes"));
    return ruta.empty() ? ruta : RutaConExtension(ruta, ".txt");
}

bool LeerPorcentajes(const std::string& ruta,
                     const std::function<bool(int n, const std::string& texto, double valor)>& poner) {
    std::vector<std::string> partes;
    if (!LeerPrimeraLinea(ruta, partes)) return false;
    constexpr size_t numeros = std::tuple_size_v<TextosPorcentajes>;
    for (size_t n = 1; n <= numeros; ++n) {
        double valor = 0;
        if (n > partes.size() || !LeerDecimal(partes[n - 1], valor)) return false;
        if (valor != 0 && !poner(static_cast<int>(n), partes[n - 1], valor)) return false;
    }
    return true;
}

bool GuardarPorcentajes(Entorno& entorno, const std::string& ruta, const TextosPorcentajes& textos) {
    std::string linea;
    for (const std::string& texto : textos) {
        double valor = 0;
        const bool vale = LeerDecimal(texto, valor) && valor != 0;
        linea += (linea.empty() ? "" : " ") + (vale ? std::string(Recortar(texto)) : "0");
    }
    FicheroAtomico fichero;
    if (fichero.Abrir(ruta) && fichero.Escribir(Utf8ACodigo8(linea + "\r\n")) && fichero.Confirmar()) return true;
    return FalloAlGuardar(entorno, fichero.Fallo());
}
