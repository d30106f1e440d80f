// base: opens a base file and saves it again.
#include "Argumentos.h"
#include "GuardarCombinacion.h"
#include "Ordenes.h"
#include "modXML.h"

namespace {

struct ArgumentosBase {
    std::string Base, Guardar;
};

bool Base(Lote& lote, const ArgumentosBase& argumentos) {
    if (!AbrirFicheroBase(argumentos.Base, lote.sesion, lote.entorno)) return false;
    lote.entorno.PedirGuardar = Responder(argumentos.Guardar);
    return GuardarBaseXML(lote.sesion, lote.entorno);
}

} // namespace

void DeclararBase(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosBase>();
    CLI::App* orden = NuevaOrden(programa, lote, "base", "Abre un fichero base y lo vuelve a guardar",
                                 [argumentos](Lote& l) { return Base(l, *argumentos); });
    Fichero(orden, "BASE.xml", argumentos->Base, "Fichero base que se abre");
    Fichero(orden, "--guardar", argumentos->Guardar, "Fichero base que se escribe").Obligatoria();
}
