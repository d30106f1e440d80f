#include "Reduccion.h"

#include <fmt/format.h>

#include "Parada.h"

namespace {

// The ends of the reduction are not those of what follows it.
void Mejorar(LogicaVentanaProceso& ventana, Lote& lote, FinesMejora fines) {
    ventana.TopeCiclos = ventana.TopeSegundos = 0;
    ventana.finesMejora = fines;
    lote.entorno.CederTurno = [&] {
        lote.consola.Progreso(
            [&] { return fmt::format("Mejora {:.0f} s, {} apuestas", ventana.SegundosMejora, ventana.lblApuestasVP); });
        if (ParadaPedida()) ventana.Detener();
    };
    ventana.Mejorar();
}

void Correr(LogicaVentanaProceso& ventana, Lote& lote, FinesReduccion fines) {
    ventana.TopeSegundos = fines.Segundos;
    ventana.TopeCiclos = fines.Ciclos == 0 && fines.Segundos == 0 ? 1 : fines.Ciclos;
    const auto cederTurno = lote.entorno.CederTurno;
    lote.entorno.CederTurno = [&] {
        lote.consola.Progreso([&] {
            return fmt::format("Ciclo {}, {:.0f} %, {} apuestas", ventana.lblCiclos, 100 * ventana.lblProgressBar,
                               ventana.lblApuestasVP);
        });
        if (ParadaPedida()) ventana.Detener();
    };
    ventana.Activar();
    if (fines.Mejorar && !ParadaPedida()) Mejorar(ventana, lote, fines.Mejora);
    lote.entorno.CederTurno = cederTurno;
}

} // namespace

void PrepararReduccion(Lote& lote, FinesReduccion fines) {
    lote.entorno.MostrarVentanaProceso = [&lote, fines](LogicaVentanaProceso& ventana) {
        Correr(ventana, lote, fines);
        lote.Ciclos = static_cast<int64_t>(ventana.CicloActual);
        lote.Cota = ventana.Cota;
    };
}
