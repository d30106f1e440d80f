// multiescrutinio: a bet file against a slice of the history, with its prizes.
#include <fmt/format.h>

#include "Argumentos.h"
#include "LogicaMultiEscrutinioEstadistico.h"
#include "Ordenes.h"
#include "Parada.h"
#include "RespuestaGuardada.h"
#include "Sesiones.h"

namespace {

struct ArgumentosMulti {
    std::string Fichero, Sorteos;
    int Juego = PRIMITIVA, Dia = 0;
    std::string AnioDesde, AnioHasta, SorteoDesde, SorteoHasta; ///< empty for the window's own values
};

void PonerCampo(std::string& campo, const std::string& texto) {
    if (!texto.empty()) campo = texto;
}

bool Multiescrutinio(Lote& lote, const ArgumentosMulti& argumentos) {
    CambiarJuego(lote.sesion, argumentos.Juego);
    if (!argumentos.Sorteos.empty()) ResponderConFichero(lote.entorno, argumentos.Sorteos);
    LogicaMultiEscrutinioEstadistico logica(lote.sesion, lote.entorno);
    if (!logica.cmdCargar() || !logica.CargarApuestas(argumentos.Fichero)) return false;
    PonerCampo(logica.txtTemporadaDESDE, argumentos.AnioDesde);
    PonerCampo(logica.txtTemporadaHASTA, argumentos.AnioHasta);
    PonerCampo(logica.txtSorteoDESDE, argumentos.SorteoDesde);
    PonerCampo(logica.txtSorteoHASTA, argumentos.SorteoHasta);
    logica.cboDia = argumentos.Dia;
    lote.entorno.CederTurno = [&] {
        lote.consola.Progreso([&] { return fmt::format("Escrutando {:.0f} %", 100 * logica.lblProgressBar); });
        if (ParadaPedida()) logica.cmdStop();
    };
    const bool hecho = logica.imgVerInforme();
    lote.salida.Escribir(logica.Informe);
    return hecho;
}

std::string NoEurodreams(const std::string& juego) {
    return juego == Juegos[EURODREAMS].Nombre ? "se espera PRIMITIVA o BONOLOTO, no " + juego : "";
}

} // namespace

void DeclararMultiescrutinio(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosMulti>();
    CLI::App* orden = NuevaOrden(programa, lote, "multiescrutinio",
                                 "Lo que un fichero de apuestas habría ganado en los sorteos de la historia",
                                 [argumentos](Lote& l) { return Multiescrutinio(l, *argumentos); });
    Fichero(orden, "F", argumentos->Fichero, "Fichero de apuestas");
    OpcionJuego(orden, argumentos->Juego).Descripcion("PRIMITIVA (si falta) o BONOLOTO").Comprobar(NoEurodreams);
    Fichero(orden, "--sorteos", argumentos->Sorteos,
            "Respuesta guardada del servicio de sorteos; si falta, se le pregunta");
    OpcionIntervalo(orden, "--anios", argumentos->AnioDesde, argumentos->AnioHasta,
                    "Años, los dos incluidos; si falta, desde 1985 hasta el actual");
    OpcionIntervalo(orden, "--sorteo", argumentos->SorteoDesde, argumentos->SorteoHasta,
                    "Números de sorteo dentro de cada año; si falta, del 1 al 999");
    EnteroEntre(orden, "--dia", argumentos->Dia, 0, 6, "Día: 0 todos (si falta), 1 lunes a 6 sábado");
}
