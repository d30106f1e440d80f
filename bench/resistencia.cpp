// The main operations on the whole ticket, one after the other in one process, and the memory that each one
// holds before, at its most and afterwards:
//
//     resistencia FOLDER [rounds]      3 rounds unless said; FOLDER takes files of 310 MB, all removed at the end
//
// Afterwards is behind "Nuevo", which frees the tables of the working state: what is left then, and what is
// left once the C library has been asked for what it keeps to itself (malloc_trim, which the programs do
// not call: it keeps freed blocks below 32 MB for the next request, 64 MB of them at most). Ends with 1 if
// an answer is wrong or the second figure is above that of the start by more than the margin.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include <fmt/format.h>
#include <malloc.h>

#include "Obrador.h"
#include "Sesiones.h"

namespace {

constexpr double Margen = 16; // MB

double Megas(const char* campo) {
    std::ifstream estado("/proc/self/status");
    for (std::string palabra; estado >> palabra;)
        if (palabra == campo) return estado >> palabra, std::atof(palabra.c_str()) / 1024;
    return 0;
}

double Residente() {
    return Megas("VmRSS:");
}

void OlvidarMaximo() {
    std::ofstream("/proc/self/clear_refs") << 5;
}

double MedirOperacion(Obrador& obrador, const OperacionEntera& operacion, double comienzo) {
    const double antes = Residente();
    OlvidarMaximo();
    const auto reloj = std::chrono::steady_clock::now();
    const bool bien = operacion.hacer(obrador);
    const double segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - reloj).count();
    const double maximo = Megas("VmHWM:");
    obrador.Nuevo();
    const double despues = Residente();
    malloc_trim(0);
    const double devuelta = Residente();
    fmt::print("{:<42}{:>8.2f}{:>9.1f}{:>9.1f}{:>9.1f}{:>9.1f}{}{}\n", operacion.nombre, segundos, antes, maximo,
               despues, devuelta, bien ? "" : "  WRONG", devuelta > comienzo + Margen ? "  KEPT" : "");
    std::fflush(stdout);
    if (!bien) throw std::runtime_error(operacion.nombre);
    return devuelta;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return std::fputs("resistencia FOLDER [rounds]\n", stderr), 2;
    const int rondas = argc > 2 ? std::max(1, std::atoi(argv[2])) : 3;
    const std::string carpeta = std::string(argv[1]) + "/resistencia-bench";
    std::filesystem::create_directories(carpeta);
    double comienzo = 0, peor = 0;
    int estado = 0;
    try {
        Obrador obrador(carpeta);
        malloc_trim(0);
        comienzo = Residente();
        fmt::print("{:<42}{:>8}{:>9}{:>9}{:>9}{:>9}\n", "operation (memory in MB)", "s", "before", "at most", "after",
                   "trimmed");
        for (int ronda = 0; ronda < rondas; ++ronda)
            for (const OperacionEntera& operacion : OperacionesEnteras())
                peor = std::max(peor, MedirOperacion(obrador, operacion, comienzo));
    } catch (const std::exception& error) {
        fmt::print("{}\n", error.what());
        estado = 1;
    }
    std::filesystem::remove_all(carpeta);
    fmt::print("start {:.1f} MB, at worst {:.1f} MB afterwards, {:.0f} MB more allowed\n", comienzo, peor, Margen);
    return peor > comienzo + Margen ? 1 : estado;
}
