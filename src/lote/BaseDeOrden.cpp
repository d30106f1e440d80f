#include "BaseDeOrden.h"

#include "ImportarCombinacion.h"
#include "LogicaFiltroSORTEOSANTERIORES.h"
#include "RespuestaGuardada.h"
#include "modXML.h"

namespace {

bool CargarSorteos(Lote& lote, const std::string& respuesta) {
    ResponderConFichero(lote.entorno, respuesta);
    LogicaFiltroSORTEOSANTERIORES dialogo{lote.sesion, lote.entorno};
    dialogo.Abrir();
    return dialogo.cmdCargar();
}

} // namespace

void DeclararArgumentosBase(CLI::App* orden, ArgumentosBase& argumentos) {
    Fichero(orden, "BASE.xml", argumentos.Base, "Fichero base que se abre");
    const Opcion importar =
        Fichero(orden, "--importar", argumentos.Importar,
                "Parte de las apuestas de este fichero; el fichero base sólo da condiciones y reducción");
    Bandera(orden, "--reintegros", argumentos.Reintegros, "Carga también sus reintegros o sus sueños").VaCon(importar);
    Fichero(orden, "--sorteos", argumentos.Sorteos,
            "Carga de esta respuesta del servicio los sorteos de «Sorteos Anteriores»");
}

bool AbrirBase(Lote& lote, const ArgumentosBase& argumentos) {
    if (!AbrirFicheroBase(argumentos.Base, lote.sesion, lote.entorno)) return false;
    if (!argumentos.Importar.empty()) {
        lote.sesion.trabajo.chkReintegros = argumentos.Reintegros;
        if (!ImportarFichero(argumentos.Importar, lote.sesion, lote.entorno)) return false;
    }
    return argumentos.Sorteos.empty() || CargarSorteos(lote, argumentos.Sorteos);
}
