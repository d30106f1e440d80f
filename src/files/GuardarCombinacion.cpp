#include "GuardarCombinacion.h"

#include <algorithm>
#include <cerrno>
#include <new>

#include "Bloqueo.h"
#include "Boleto.h"
#include "Ficheros.h"
#include "GuardarSistema.h"
#include "modEncriptarFichero.h"
#include "modGeneral.h"
#include "modXML.h"

namespace {

constexpr int32_t ApuestasSinPreguntar = 3000000;

// The two files go together: both are on the disk before either takes its place, so that a failure
// leaves the former pair as it was.
bool EscribirPareja(const std::string& ruta, Sesion& sesion, Entorno& entorno, std::string& fallo) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    const Tabla& apuestas = trabajo.ApuestasReducidas;
    const auto cantidad = static_cast<int32_t>(std::min<int64_t>(trabajo.Contador.Reducidas, apuestas.Apuestas()));
    FicheroAtomico sistema, base;
    if (!base.Abrir(RutaConExtension(ruta, ".xml")) || !base.Escribir(GenerarXMLBase(sesion, entorno)) ||
        !base.Asentar())
        return fallo = base.Fallo(), false;
    if (!sistema.Abrir(ruta) ||
        !EscribirApuestas(sistema, CabeceraDeMarcas(trabajo.lblNumero, trabajo.NumeroMaximo()), cantidad, apuestas,
                          &trabajo.picVentanaEspera, entorno) ||
        !sistema.Confirmar())
        return fallo = sistema.Fallo(), false;
    return base.Confirmar() || (fallo = base.Fallo(), false);
}

bool PuedeGuardar(const EstadoTrabajo& trabajo, Entorno& entorno) {
    if (trabajo.Contador.Reducidas == 0) return Fallo(entorno, "ERROR: No se han generado apuestas");
    if (trabajo.JuegoActual().TieneDigito() && !ValidarReintegros(trabajo, entorno)) return false;
    return trabajo.Contador.Reducidas <= ApuestasSinPreguntar ||
           entorno.Preguntar("Se han generado más de 3.000.000 de apuestas, ¿ Desea guardar ?");
}

} // namespace

bool GuardarBaseXML(Sesion& sesion, Entorno& entorno) {
    const std::string elegida =
        entorno.PedirGuardar({"Guardar Fichero BASE en XML",
                              {{"Fichero BASE de TOMBOLERA (*.XML)", "*.XML"}, {"Todos los archivos (*.*)", "*.*"}},
                              NombreFicheroActual(sesion.trabajo)});
    if (Recortar(elegida).empty()) return false;
    const std::string ruta = RutaConExtension(elegida, ".xml");
    FicheroAtomico fichero;
    if (!fichero.Abrir(ruta) || !fichero.Escribir(GenerarXMLBase(sesion, entorno)) || !fichero.Confirmar())
        return FalloAlGuardar(entorno, fichero.Fallo());
    sesion.trabajo.Titulo = std::string(PrefijoTitulo) + NombreSinCarpeta(ruta);
    sesion.trabajo.CombinacionGuardada = true;
    return true;
}

bool GuardarCombinacion(Sesion& sesion, Entorno& entorno) {
    if (!PuedeGuardar(sesion.trabajo, entorno)) return false;
    const std::string ruta = PedirRutaSistema(NombreSistemaActual(sesion.trabajo), entorno);
    if (ruta.empty()) return false;
    std::string fallo;
    {
        const Bloqueo bloqueo(sesion.trabajo);
        const BarraVisible panel(sesion.trabajo.picVentanaEspera);
        try {
            sesion.trabajo.CombinacionGuardada = EscribirPareja(ruta, sesion, entorno, fallo);
        } catch (const std::bad_alloc&) {
            sesion.trabajo.CombinacionGuardada = false;
            fallo = DescripcionFallo(ENOMEM);
        }
    }
    return sesion.trabajo.CombinacionGuardada || FalloAlGuardar(entorno, fallo);
}
