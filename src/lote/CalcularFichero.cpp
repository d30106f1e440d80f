#include "CalcularFichero.h"

#include "CalcularSistema.h"
#include "Reduccion.h"
#include "modImportarASCII.h"
#include "modXML.h"

namespace {

bool SustituirSistema(Lote& lote, const std::string& fichero) {
    EstadoTrabajo& trabajo = lote.sesion.trabajo;
    Tabla apuestas;
    const int32_t cuantas = LeerApuestas(fichero, false, apuestas, nullptr, trabajo.JuegoActual(), lote.entorno);
    if (cuantas == 0) return Fallo(lote.entorno, AvisoSinApuestas);
    trabajo.ApuestasReducidas = std::move(apuestas);
    trabajo.Contador.Reducidas = cuantas;
    return true;
}

} // namespace

bool CalcularFichero(Lote& lote, const std::string& base, const std::string& sistema) {
    if (!AbrirFicheroBase(base, lote.sesion, lote.entorno)) return false;
    PrepararReduccion(lote);
    if (!CalcularSistema(lote.sesion, lote.entorno)) return false;
    return sistema.empty() || SustituirSistema(lote, sistema);
}
