#include "ComandosFichero.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>

#include "Bloqueo.h"
#include "FicheroAtomico.h"
#include "Ficheros.h"
#include "TextoApuestas.h"
#include "modGeneral.h"

namespace {

constexpr int32_t ApuestasSinPreguntar = 3000000;

bool EscribirSistema(const std::string& ruta, EstadoTrabajo& trabajo, Entorno& entorno, std::string& fallo) {
    const Bloqueo bloqueo(trabajo);
    const Tabla& apuestas = trabajo.ApuestasReducidas;
    const int64_t cantidad = std::min<int64_t>(trabajo.Contador.Reducidas, apuestas.Apuestas());
    try {
        FicheroAtomico fichero;
        const bool escrito =
            fichero.Abrir(ruta) && EscribirTextoApuestas(fichero, apuestas, cantidad, entorno) && fichero.Confirmar();
        fallo = fichero.Fallo();
        return escrito;
    } catch (const std::bad_alloc&) {
        fallo = DescripcionFallo(ENOMEM);
        return false;
    }
}

} // namespace

bool VerApuestas(Sesion& sesion, Entorno& entorno) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    if (trabajo.Contador.Reducidas == 0) return Fallo(entorno, "ERROR: No hay apuestas generadas");
    if (trabajo.Contador.Reducidas > ApuestasSinPreguntar &&
        !entorno.Preguntar("Se han generado más de 3.000.000 de apuestas, ¿ desea continuar ?"))
        return false;
    const std::string ruta = entorno.CarpetaInformes + "/TOMBOLERA_TEMP.txt";
    std::string fallo;
    if (!EscribirSistema(ruta, trabajo, entorno, fallo)) return FalloAlGuardar(entorno, fallo);
    entorno.VerInforme(ruta);
    return true;
}

bool ValidarOnLine(const Sesion& sesion, Entorno& entorno) {
    static constexpr std::array<const char*, 3> Caminos{"/primitiva/archivos", "/bonoloto/archivos",
                                                        "/eurodreams/archivos"};
    if (entorno.Sitio.empty()) return Fallo(entorno, "ERROR: No hay ningún sitio de validación configurado");
    std::string direccion = entorno.Sitio;
    while (direccion.ends_with('/')) direccion.pop_back();
    // Whether the page opens is the browser's business.
    entorno.AbrirDireccion(direccion + Caminos[static_cast<size_t>(sesion.trabajo.cboTipoJuego)]);
    return true;
}
