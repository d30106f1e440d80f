// sistema-propio: a system carried over to other numbers.
#include "Argumentos.h"
#include "LogicaSistemasPropios.h"
#include "Ordenes.h"

namespace {

struct ArgumentosSistemaPropio {
    std::string Fichero, Guardar;
    std::vector<int> Destino, Origen;
};

// The k-th destination takes the place of the k-th origin. A refused origin shows its box, and its
// destination is then the one that the tool finds without origin.
void ElegirOrden(LogicaSistemasPropios& sistema, const ArgumentosSistemaPropio& argumentos) {
    sistema.chkElegirOrden = true;
    const size_t parejas = std::min(argumentos.Destino.size(), argumentos.Origen.size());
    for (size_t k = 0; k < parejas; ++k) sistema.ElegirOrigen(argumentos.Destino[k], argumentos.Origen[k]);
}

bool SistemaPropio(Lote& lote, const ArgumentosSistemaPropio& argumentos) {
    lote.entorno.PedirGuardar = Responder(argumentos.Guardar);
    LogicaSistemasPropios sistema(lote.sesion.trabajo, lote.entorno);
    if (!sistema.Cargar(argumentos.Fichero)) return false;
    for (const int n : argumentos.Destino) sistema.lblNumeroFINAL[static_cast<size_t>(n)] = true;
    if (!argumentos.Origen.empty()) ElegirOrden(sistema, argumentos);
    return sistema.imgCalculoDefinitivo();
}

} // namespace

void DeclararSistemaPropio(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosSistemaPropio>();
    CLI::App* orden = NuevaOrden(programa, lote, "sistema-propio", "Pasa un sistema a otros números",
                                 [argumentos](Lote& l) { return SistemaPropio(l, *argumentos); });
    Fichero(orden, "F", argumentos->Fichero, "Fichero de apuestas");
    ListaNumeros(orden, "--destino", argumentos->Destino, "Números de destino, separados por comas").Obligatoria();
    ListaNumeros(orden, "--origen", argumentos->Origen, "Número de origen de cada uno de destino, en su orden");
    Fichero(orden, "--guardar", argumentos->Guardar, "Fichero de apuestas que se escribe").Obligatoria();
}
