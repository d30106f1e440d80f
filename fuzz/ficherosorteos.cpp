// The reader of draw files: whatever is in one, what was loaded is fit for every statistic, and a failure
// leaves nothing loaded.
#include "Difusion.h"
#include "LogicaEstadisticas.h"

namespace {

void ExigirVacia(const LogicaEstadisticas& l, int errores) {
    Exigir(errores == 1, "one critical box");
    Exigir(l.SorteosCargados.empty() && l.lblSorteosCargados == "0", "nothing is loaded");
    Exigir(l.lblTemporadaDESDE == "-" && l.lblSorteoHASTA == "-", "no first and no last draw");
}

void ExigirEstadisticas(LogicaEstadisticas& l) {
    const auto sorteos = static_cast<int64_t>(l.SorteosCargados.size());
    l.txtTemporadaDESDE = "-32768";
    l.txtTemporadaHASTA = "32767";
    l.txtSorteoDESDE = "0";
    l.txtSorteoHASTA = "32767";
    for (int tipo = 0; tipo < NEstadisticas; ++tipo) {
        l.ElegirEstadistica(tipo);
        Exigir(l.cmdConsultar(), "the query runs");
        int64_t veces = 0;
        for (const BarraEstadistica& figura : l.Figuras) veces += figura.veces;
        const int64_t consultados = std::stoll(l.lblSorteosConsultados);
        Exigir(consultados <= sorteos, "no more draws than there are");
        const bool porNumero = tipo == 0 || tipo == 2 || tipo == 7;
        const bool porSorteo = tipo == 1 || tipo == 4 || tipo == 5 || tipo == 8 || tipo == 9;
        if (porNumero) Exigir(veces == 6 * consultados, "six numbers of each draw");
        if (porSorteo) Exigir(veces == consultados, "each draw once");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    const FicheroEnMemoria fichero({reinterpret_cast<const char*>(datos), largo});
    int errores = 0;
    Entorno entorno;
    entorno.Mensaje = [&](Icono icono, const std::string&) { errores += icono == Icono::Critico ? 1 : 0; };
    EstadoTrabajo trabajo;
    LogicaEstadisticas l(trabajo, entorno);
    if (!l.CargarFicheroSorteos(fichero.Ruta())) {
        ExigirVacia(l, errores);
        return 0;
    }
    Exigir(errores == 0 && !l.SorteosCargados.empty(), "a load without a box holds draws");
    Exigir(trabajo.NApuestasImportadas == static_cast<int32_t>(l.SorteosCargados.size()), "the count follows");
    ExigirEstadisticas(l);
    return 0;
}
