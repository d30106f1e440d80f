// estadisticas: one statistic over a slice of a draw file.
#include "Argumentos.h"
#include "LogicaEstadisticas.h"
#include "Ordenes.h"

namespace {

struct ArgumentosEstadisticas {
    std::string Sorteos;
    int Tipo = 0, Dia = 0;
    std::string AnioDesde, AnioHasta, SorteoDesde, SorteoHasta; ///< empty for the window's own values
};

void PonerCampo(std::string& campo, const std::string& texto) {
    if (!texto.empty()) campo = texto;
}

bool Estadisticas(Lote& lote, const ArgumentosEstadisticas& argumentos) {
    LogicaEstadisticas logica(lote.sesion.trabajo, lote.entorno);
    if (!logica.CargarFicheroSorteos(argumentos.Sorteos)) return false;
    PonerCampo(logica.txtTemporadaDESDE, argumentos.AnioDesde);
    PonerCampo(logica.txtTemporadaHASTA, argumentos.AnioHasta);
    PonerCampo(logica.txtSorteoDESDE, argumentos.SorteoDesde);
    PonerCampo(logica.txtSorteoHASTA, argumentos.SorteoHasta);
    logica.cboDia = argumentos.Dia;
    logica.ElegirEstadistica(argumentos.Tipo);
    if (!logica.cmdConsultar()) return false;
    lote.salida.Escribir(logica.lblDatos + "\n" + logica.txtDatos);
    if (!logica.txtDatos.empty() && logica.txtDatos.back() != '\n') lote.salida.Escribir("\n");
    lote.salida.Escribir("Sorteos consultados: " + logica.lblSorteosConsultados + "\n");
    return true;
}

} // namespace

void DeclararEstadisticas(CLI::App& programa, Lote& lote) {
    const auto argumentos = std::make_shared<ArgumentosEstadisticas>();
    CLI::App* orden = NuevaOrden(programa, lote, "estadisticas", "Escribe una estadística de un fichero de sorteos",
                                 [argumentos](Lote& l) { return Estadisticas(l, *argumentos); });
    Fichero(orden, "SORTEOS.txt", argumentos->Sorteos, "Fichero de sorteos");
    std::string tipos = "Estadística:";
    for (int tipo = 0; tipo < NEstadisticas; ++tipo)
        tipos += (tipo == 0   ? " "
                  : tipo == 5 ? ",\n"
                              : ", ") +
                 std::to_string(tipo) + " " + std::string(NombreEstadistica(tipo));
    EnteroEntre(orden, "--tipo", argumentos->Tipo, 0, NEstadisticas - 1, tipos).Obligatoria();
    OpcionIntervalo(orden, "--anios", argumentos->AnioDesde, argumentos->AnioHasta,
                    "Años, los dos incluidos; si falta, desde 1985 hasta el actual");
    OpcionIntervalo(orden, "--sorteo", argumentos->SorteoDesde, argumentos->SorteoHasta,
                    "Números de sorteo dentro de cada año; si falta, del 1 al 999");
    EnteroEntre(orden, "--dia", argumentos->Dia, 0, 6, "Día: 0 todos (si falta), 1 lunes a 6 sábado");
}
