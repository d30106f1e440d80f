// The count on the fly of the whole ticket, from the marks to the figures of five conditions, in readings of the
// table, and the memory it takes at its most.
//
//     alvuelo [rounds]
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>

#include <fmt/format.h>
#include <sys/resource.h>

#include "AlVuelo.h"
#include "CondicionesEjemplo.h"
#include "Lectura.h"

namespace {

constexpr int64_t Apuestas = 13983816;
constexpr double Permitido = 40, MegasPermitidos = 120;

double Segundos(const std::function<void()>& hacer) {
    const auto antes = std::chrono::steady_clock::now();
    hacer();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
}

double MegasMaximos() {
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return static_cast<double>(uso.ru_maxrss) / 1024;
}

} // namespace

int main(int argc, char** argv) {
    const int rondas = std::max(7, argc > 1 ? std::atoi(argv[1]) : 9);
    Sesion sesion;
    Entorno entorno;
    std::fill(sesion.trabajo.lblNumero.begin() + 1, sesion.trabajo.lblNumero.end(), true);
    ElegirCondicionesEjemplo(sesion.condiciones);
    for (const int k : {kDECENAS, kDISTANCIAS, kSUMAS, kTERMINACIONES, kCOLINDANTES})
        sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo = true;
    const double antes = MegasMaximos();
    CuentaAlVuelo cuenta;
    double vuelo = 1e9, lectura = 1e9;
    const auto contar = [&] {
        const auto aparte = ApartarBase(sesion);
        ExpandirBase(*aparte, entorno);
        cuenta = ContarAlVuelo(*aparte, entorno);
    };
    contar();
    const double megas = MegasMaximos() - antes;
    Tabla tabla(6, Apuestas);
    for (int fila = 1; fila <= 6; ++fila) std::memset(tabla.Fila(fila), fila, Apuestas); // else it has no memory yet
    uint64_t suma = 0;
    for (int r = 0; r < rondas; ++r) {
        lectura = std::min(lectura, Segundos([&] { suma += SumarBytes(tabla.Fila(1), 6 * Apuestas); }));
        vuelo = std::min(vuelo, Segundos(contar));
    }
    const double razon = vuelo / lectura;
    fmt::print("read the table once   {:8.2f} ms\n", lectura * 1e3);
    fmt::print("count on the fly      {:8.2f} ms  {:.1f} readings, {:.0f} allowed; {} of {} pass\n", vuelo * 1e3, razon,
               Permitido, cuenta.Pasan, cuenta.Total);
    fmt::print("memory                {:8.1f} MB, {:.0f} allowed\n", megas, MegasPermitidos);
    return suma != 0 && razon <= Permitido && megas <= MegasPermitidos ? 0 : 1;
}
