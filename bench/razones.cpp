// Prints how many times its reference each work takes, and how many it may:
//
//     razones [rondas [procesador]]    at least 7 rounds, 9 unless said; the vector code of that
//                                      processor ("AVX2", "SSSE3") in place of the best one
//
// Rounds are interleaved, all works in each, and minima of the thread's processor time are compared, so
// that a disturbance of the machine falls on all alike. Ends with 1 if an answer is wrong or a work
// takes too long.
#include <algorithm>
#include <cstdlib>

#include <fmt/format.h>

#include "Escenario.h"
#include "Procesador.h"
#include "Reloj.h"

namespace {

struct Minimos {
    double lectura = 1e9, fresca = 1e9;
    std::vector<double> trabajos;
};

bool Ronda(Escenario& escenario, Minimos& minimos) {
    int64_t suma = 0;
    minimos.lectura = std::min(minimos.lectura, Segundos([&] { suma += escenario.LeerTabla(); }));
    escenario.SoltarMemoria();
    minimos.fresca = std::min(minimos.fresca, Segundos([&] { suma += escenario.LlenarMemoriaFresca(); }));
    escenario.SoltarMemoria();
    bool bien = suma > 0;
    for (size_t i = 0; i < escenario.Trabajos().size(); ++i) {
        const Trabajo& trabajo = escenario.Trabajos()[i];
        int64_t respuesta = 0;
        trabajo.preparar();
        minimos.trabajos[i] = std::min(minimos.trabajos[i], Segundos([&] { respuesta = trabajo.hacer(); }));
        if (respuesta == trabajo.esperado) continue;
        fmt::print("{}: {} instead of {}\n", trabajo.nombre, respuesta, trabajo.esperado);
        bien = false;
    }
    return bien;
}

} // namespace

int main(int argc, char** argv) {
    const int rondas = std::max(7, argc > 1 ? std::atoi(argv[1]) : 9);
    if (argc > 2) UsarProcesador(argv[2]);
    Escenario escenario;
    Minimos minimos;
    minimos.trabajos.assign(escenario.Trabajos().size(), 1e9);
    bool bien = true;
    for (int r = 0; r < rondas; ++r) bien &= Ronda(escenario, minimos);

    fmt::print("read the table once        {:8.2f} ms\n", minimos.lectura * 1e3);
    fmt::print("fill fresh memory          {:8.2f} ms\n\n", minimos.fresca * 1e3);
    fmt::print("{:<42}{:>10}{:>8}{:>10}\n", "work", "ms", "ratio", "allowed");
    for (size_t i = 0; i < minimos.trabajos.size(); ++i) {
        const Trabajo& trabajo = escenario.Trabajos()[i];
        const double patron = trabajo.patron == Patron::Lectura ? minimos.lectura : minimos.fresca;
        const double razon = minimos.trabajos[i] / patron;
        const bool cabe = razon <= trabajo.permitido;
        fmt::print("{:<42}{:>10.2f}{:>8.2f}{:>10.1f}{}\n", trabajo.nombre, minimos.trabajos[i] * 1e3, razon,
                   trabajo.permitido, cabe ? "" : "  EXCEEDED");
        bien &= cabe;
    }
    return bien ? 0 : 1;
}
