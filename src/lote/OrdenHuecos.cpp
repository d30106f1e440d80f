// huecos: the conditioned bets that a system does not cover.
#include <fmt/format.h>

#include "Argumentos.h"
#include "CalcularFichero.h"
#include "Huecos.h"
#include "Ordenes.h"
#include "Parada.h"

namespace {

struct ArgumentosHuecos {
    std::string Base, Sistema;
    int Aciertos = 5;
};

bool Huecos(Lote& lote, const ArgumentosHuecos& argumentos) {
    if (!CalcularFichero(lote, argumentos.Base, argumentos.Sistema)) return false;
    const EstadoTrabajo& trabajo = lote.sesion.trabajo;
    std::vector<int32_t> huecos;
    const auto turno = [&lote] {
        lote.entorno.CederTurno();
        return !ParadaPedida();
    };
    if (!HallarHuecos(trabajo, trabajo.ApuestasReducidas, argumentos.Aciertos, turno, huecos)) return false;
    for (const int32_t apuesta : huecos) {
        if (!lote.salida.Abierta()) return false;
        lote.salida.Escribir(DoceCifras(trabajo, apuesta) + "\n");
    }
    lote.salida.Escribir("Huecos: " +
                         TextoHuecos(static_cast<int64_t>(huecos.size()), trabajo.ApuestasCondicionadas.Apuestas(),
                                     lote.entorno.SeparadorDecimal) +
                         "\n");
    return true;
}

} // namespace

void DeclararHuecos(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosHuecos>();
    CLI::App* orden = NuevaOrden(programa, lote, "huecos", "Apuestas condicionadas que un sistema deja sin cubrir",
                                 [argumentos](Lote& l) { return Huecos(l, *argumentos); });
    Fichero(orden, "BASE.xml", argumentos->Base, "Fichero base que se calcula");
    Fichero(orden, "--sistema", argumentos->Sistema, "Apuestas que se miran en lugar del sistema final");
    EnteroEntre(orden, "--aciertos", argumentos->Aciertos, 1, 6, "Aciertos que cubren una apuesta; si falta, 5");
}
