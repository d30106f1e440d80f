// The answer of the draw-data service: any body is read or refused with a reason, and what was read
// before a failure is sound.
#include <cmath>

#include "ConsultarServicioSorteos.h"
#include "Difusion.h"

namespace {

void ExigirSorteos(RespuestaServicio& respuesta, const char* juego) {
    Sorteos sorteos;
    const bool bien = respuesta.LeerCombinaciones(juego, sorteos);
    Exigir(bien || !respuesta.Fallo().empty(), "a failure is told");
    for (const Sorteo& sorteo : sorteos) Exigir(sorteo.dia <= LetrasDia.size(), "a day of the table, or none");
}

void ExigirPremios(RespuestaServicio& respuesta, const char* juego) {
    std::vector<SorteoConPremios> sorteos;
    const bool bien = respuesta.LeerSorteos(juego, sorteos);
    Exigir(bien || !respuesta.Fallo().empty(), "a failure is told");
    for (const SorteoConPremios& sorteo : sorteos) {
        Exigir(std::isfinite(sorteo.recaudacion) && std::isfinite(sorteo.bote), "amounts are numbers");
        for (const PremioServicio& premio : sorteo.categoria) Exigir(std::isfinite(premio.premio), "so are prizes");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    RespuestaServicio respuesta;
    const bool legible = respuesta.Analizar({reinterpret_cast<const char*>(datos), largo});
    Exigir(legible == respuesta.Motivo().empty(), "no XML is told why");
    if (!legible) return 0;
    for (const char* juego : {"PRIMITIVA", "BONOLOTO", "EURODREAMS"}) {
        ExigirSorteos(respuesta, juego);
        ExigirPremios(respuesta, juego);
    }
    return 0;
}
