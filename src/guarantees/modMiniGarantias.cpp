#include "modMiniGarantias.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "ExpansionMaximos.h"

// Fifteen significant digits, as many as a double always keeps, decide what is a half.
std::string Formato000(double porcentaje) {
    const int64_t milesimas = (std::llround(porcentaje * 1e12) + 500'000'000) / 1'000'000'000;
    return fmt::format("{:03}.{:03}", milesimas / 1000, milesimas % 1000);
}

namespace {

std::string Bloque(int y, const ContadorMini& contador, int64_t subconjuntos) {
    std::string bloque;
    for (int x = y; x >= 2; --x) {
        const int32_t casos = contador[static_cast<size_t>(x)];
        const double porcentaje =
            subconjuntos == 0 ? 0 : static_cast<double>(int64_t{casos} * 100) / static_cast<double>(subconjuntos);
        bloque += fmt::format("{}% {} si {} ({} Apu.)\r\n", Formato000(porcentaje), x, y, casos);
    }
    return bloque + "\r\n";
}

} // namespace

std::string MiniGarantias(int NumerosPorApuesta, const EstadoTrabajo& trabajo,
                          const std::function<bool(int y, double fraccion)>& turno) {
    const int hasta = std::min(NumerosPorApuesta, SubconjuntoMaximo);
    const int64_t NApuestasMini = std::min<int64_t>(trabajo.Contador.Reducidas, trabajo.ApuestasReducidas.Apuestas());
    const std::vector<Mascara> sistema =
        MascarasDelSistema(trabajo.ApuestasReducidas, NApuestasMini, hasta, trabajo.BaseNumeros, trabajo.NumerosBase);
    const OrdenSubconjuntos orden(trabajo.NumerosBase);
    std::string DetalleMiniGarantias = "DETALLE DE MINI GARANTIAS\r\n";
    for (int y = 2; y <= hasta; ++y) {
        ContadorMini contador{};
        const Turno cederTurno = [&](double fraccion) { return turno(y, fraccion); };
        if (!cederTurno(orden.Cuantos(0, y) == 1 ? 1 : 0) || !ExpandirMaximos(orden, sistema, y, contador, cederTurno))
            return "Proceso de cálculo de mini garantías detenido";
        DetalleMiniGarantias += Bloque(y, contador, orden.Cuantos(0, y));
    }
    return DetalleMiniGarantias;
}
