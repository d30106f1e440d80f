// Prints how many readings of the whole ticket each work of the scrutiny takes, and how many it may:
//
//     escrutinio [rondas [procesador]]    at least 7 rounds, 9 unless said; the vector code of that
//                                         processor ("AVX2", "SSSE3") in place of the best one
//
// Rounds are interleaved and minima of the thread's processor time are compared. Ends with 1 if an answer is
// wrong or a work takes too long.
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <numeric>

#include <fmt/format.h>

#include "Escrutinio.h"
#include "Juegos.h"
#include "Lectura.h"
#include "Procesador.h"
#include "TablasCSN.h"

namespace {

template <class Hacer>
double Segundos(Hacer hacer) {
    const auto reloj = [] {
        timespec t{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
    };
    const double antes = reloj();
    hacer();
    return reloj() - antes;
}

Tabla BoletoEntero() {
    std::vector<int32_t> csn(ApuestasMaximas);
    std::iota(csn.begin(), csn.end(), 1);
    Tabla boleto(7, ApuestasMaximas);
    CSNaCombinaciones(csn.data(), ApuestasMaximas, boleto, 1);
    for (int64_t i = 1; i <= ApuestasMaximas; ++i) boleto(7, i) = static_cast<uint8_t>(i % 10);
    return boleto;
}

uint64_t LeerTabla(const Tabla& boleto) {
    uint64_t suma = 0;
    for (int r = 1; r <= 6; ++r) suma += SumarBytes(boleto.Fila(r), boleto.Apuestas());
    return suma;
}

} // namespace

int main(int argc, char** argv) {
    const int rondas = std::max(7, argc > 1 ? std::atoi(argv[1]) : 9);
    if (argc > 2) UsarProcesador(argv[2]);
    const Tabla boleto = BoletoEntero();
    std::vector<TrabajoEscrutinio> trabajos;
    AnotarUnSorteo(boleto, trabajos);
    AnotarVariosSorteos(boleto, trabajos);
    double lectura = 1e9;
    std::vector<double> minimos(trabajos.size(), 1e9);
    bool bien = true;
    uint64_t suma = 0;
    for (int ronda = 0; ronda < rondas; ++ronda) {
        lectura = std::min(lectura, Segundos([&] { suma += LeerTabla(boleto); }));
        for (size_t i = 0; i < trabajos.size(); ++i) {
            int64_t respuesta = 0;
            minimos[i] = std::min(minimos[i], Segundos([&] { respuesta = trabajos[i].hacer(); }));
            if (respuesta == trabajos[i].esperado) continue;
            fmt::print("{}: {} instead of {}\n", trabajos[i].nombre, respuesta, trabajos[i].esperado);
            bien = false;
        }
    }
    fmt::print("read the table once        {:8.2f} ms   (sum {})\n\n", lectura * 1e3, suma);
    fmt::print("{:<46}{:>10}{:>8}{:>10}\n", "work", "ms", "ratio", "allowed");
    for (size_t i = 0; i < trabajos.size(); ++i) {
        const double razon = minimos[i] / lectura;
        const bool cabe = razon <= trabajos[i].permitido;
        fmt::print("{:<46}{:>10.2f}{:>8.2f}{:>10.1f}{}\n", trabajos[i].nombre, minimos[i] * 1e3, razon,
                   trabajos[i].permitido, cabe ? "" : "  EXCEEDED");
        bien &= cabe;
    }
    return bien ? 0 : 1;
}
