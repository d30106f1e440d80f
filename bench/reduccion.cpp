// First cycles and further cycles of the reduction, in units of one reading of the 84 MB of the largest
// table, measured in the same run.
//
//     reduccion [text]        the rows whose name holds the text
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>

#include "Boleto.h"
#include "GenerarApuestas.h"
#include "Lectura.h"
#include "LogicaVentanaProceso.h"
#include "Sesiones.h"
#include "Supervivientes.h"

namespace {

constexpr int64_t BytesDeLectura = 6 * int64_t{13983816};

// Processor time of the thread: what else the machine does counts less.
double Ahora() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

// The shortest of some readings, in seconds.
double Lectura() {
    static const std::vector<uint8_t> memoria(BytesDeLectura, 1);
    double mejor = 1;
    uint64_t suma = 0;
    for (int vuelta = 0; vuelta < 7; ++vuelta) {
        const double antes = Ahora();
        suma += SumarBytes(memoria.data(), BytesDeLectura);
        mejor = std::min(mejor, Ahora() - antes);
    }
    return suma == 0 ? 0 : mejor;
}

struct Caso {
    const char* nombre;
    int n, tipo, porcentaje;
    int ciclos;       // 1: the first cycle; more: the mean of those behind the first
    double permitido; // readings a cycle
};

constexpr Caso Casos[] = {
    {"22 al 4", 22, 2, 100, 1, 50},
    {"22 al 5", 22, 1, 100, 1, 8},
    {"30 al 5", 30, 1, 100, 1, 50},
    {"49 al 5", 49, 1, 100, 1, 1100},
    {"49 al 4", 49, 2, 100, 1, 10},
    {"49 al 3", 49, 3, 100, 1, 10},
    {"49 al 2", 49, 4, 100, 1, 10},
    {"49 al 4 80%", 49, 2, 80, 1, 300},
    {"49 al 3 80%", 49, 3, 80, 1, 300},
    {"49 al 2 80%", 49, 4, 80, 1, 300},
    {"ciclos 12 al 4", 12, 2, 100, 2000, 1.0 / 40},
    {"ciclos 15 al 4", 15, 2, 100, 300, 1.0 / 4},
    {"ciclos 20 al 5", 20, 1, 100, 60, 4},
};

void Expandir(Sesion& sesion, Entorno& entorno, int n) {
    IniciarSesion(sesion, entorno);
    EstadoTrabajo& trabajo = sesion.trabajo;
    for (int x = 1; x <= n; ++x) trabajo.lblNumero[x] = true;
    ActualizarContadores(trabajo);
    LeerBase(trabajo);
    GenerarApuestas(trabajo, entorno, 6, 6);
    trabajo.ApuestasEnTabla = trabajo.Contador.Iniciales;
    PrepararEliminadas(trabajo);
    trabajo.SinEliminadas = true;
    CopiarSupervivientes(trabajo);
}

void Medir(const Caso& caso, double lectura) {
    Entorno entorno;
    Sesion sesion;
    Expandir(sesion, entorno, caso.n);
    sesion.trabajo.Reduccion.TipoReduccion = static_cast<int16_t>(caso.tipo);
    sesion.trabajo.Reduccion.PorcentajeReduccion = static_cast<int16_t>(caso.porcentaje);
    double mejor = 1e9;
    int32_t halladas = 0;
    for (int vuelta = 0; vuelta < (caso.n == 49 && caso.tipo == 1 ? 1 : 5); ++vuelta) {
        LogicaVentanaProceso ventana(sesion, entorno);
        ventana.TopeCiclos = caso.ciclos;
        double primero = 0;
        if (caso.ciclos > 1)
            entorno.CederTurno = [&] {
                if (primero == 0 && ventana.CicloActual > 0) primero = Ahora();
            };
        const double antes = Ahora();
        ventana.Activar();
        mejor = std::min(mejor, caso.ciclos > 1 ? (Ahora() - primero) / (caso.ciclos - 1) : Ahora() - antes);
        halladas = ventana.MejorApuestas;
    }
    const double veces = mejor / lectura;
    std::printf("%-15s %9d bets, %7d chosen %10.3f ms %9.3f readings, allowed %8.3f %s\n", caso.nombre,
                sesion.trabajo.ApuestasEnTabla, halladas, mejor * 1e3, veces, caso.permitido,
                veces <= caso.permitido ? "" : "OVER");
}

} // namespace

int main(int argc, char** argv) {
    const std::string texto = argc > 1 ? argv[1] : "";
    const double lectura = Lectura();
    std::printf("one reading of 84 MB: %.2f ms\n", lectura * 1e3);
    for (const Caso& caso : Casos)
        if (std::string(caso.nombre).find(texto) != std::string::npos) Medir(caso, lectura);
}
