// The guarantees at full size, in units of one reading of the 84 MB of the largest table, measured in the
// same run.
//
//     garantias [rounds [text]]    at least 3 rounds, 5 unless said; the works whose name holds the text
//
// Rounds are interleaved and minima of the thread's processor time are compared. Ends with 1 if an answer is
// wrong or a work takes too long.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <numeric>
#include <string>

#include "Boleto.h"
#include "GenerarApuestas.h"
#include "Lectura.h"
#include "LogicaGarantias.h"
#include "Rnd.h"
#include "Sesiones.h"
#include "Supervivientes.h"
#include "modCSN.h"

namespace {

constexpr int64_t BytesDeLectura = 6 * int64_t{ApuestasMaximas};
constexpr int32_t DiezMillones = 10'000'000;

double Segundos(const std::function<void()>& hacer) {
    const auto ahora = [] {
        timespec t{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
    };
    const double antes = ahora();
    hacer();
    return ahora() - antes;
}

// The whole ticket with ten million conditioned bets, and a final system of other sizes.
struct Escena {
    Sesion sesion;
    Entorno entorno;
    std::vector<int32_t> azar; ///< all sequence numbers, shuffled

    Escena() : azar(ApuestasMaximas) {
        IniciarSesion(sesion, entorno);
        entorno.CarpetaInformes = std::filesystem::temp_directory_path().string();
        EstadoTrabajo& trabajo = sesion.trabajo;
        trabajo.lblNumero.fill(true);
        ActualizarContadores(trabajo);
        LeerBase(trabajo);
        std::iota(azar.begin(), azar.end(), 1);
        Azar dado;
        dado.Sembrar(49);
        for (int32_t i = 0; i < ApuestasMaximas; ++i) std::swap(azar[i], azar[i + dado.Entero(ApuestasMaximas - i)]);
        GenerarApuestas(trabajo, entorno, 6, 6);
        trabajo.ApuestasEnTabla = ApuestasMaximas;
        PrepararEliminadas(trabajo);
        for (int32_t i = DiezMillones; i < ApuestasMaximas; ++i) trabajo.ApuestaEliminada(1, azar[i]) = 1;
        trabajo.Contador.Condicionadas = DiezMillones;
        CopiarSupervivientes(trabajo);
    }

    void PonerSistema(int32_t apuestas) {
        EstadoTrabajo& trabajo = sesion.trabajo;
        trabajo.ApuestasReducidas.Dimensionar(7, apuestas);
        for (int32_t i = 1; i <= apuestas; ++i) {
            std::array<uint8_t, 6> bet;
            CSNaCombinacion(azar[i - 1], 6, 49, bet.data());
            for (int r = 1; r <= 6; ++r) trabajo.ApuestasReducidas(r, i) = bet[r - 1];
        }
        trabajo.Contador.Reducidas = apuestas;
    }
};

struct Trabajo {
    const char* nombre;
    int32_t apuestas; ///< of the final system
    double permitido; ///< readings
    std::function<bool(LogicaGarantias&)> hacer;
    double mejor = 1e9;
};

// All different bets: as many draws have a bet of six hits, of those that count.
bool Midio(LogicaGarantias& logica, int tipo, int aciertos, int32_t candidatas) {
    logica.CambiarTipo(tipo);
    logica.CambiarAciertos(aciertos);
    if (!logica.Calcular()) return false;
    const auto& casos = logica.resultados.tabla.CasosClase;
    return std::accumulate(casos.begin(), casos.end(), 0) == candidatas &&
           casos[6] == logica.sesion.trabajo.Contador.Reducidas;
}

std::vector<Trabajo> Trabajos() {
    const auto boleto = [](LogicaGarantias& l) { return Midio(l, SobreElTotal, SeisAciertos, ApuestasMaximas); };
    const auto todas = [](LogicaGarantias& l) { return Midio(l, SobreElTotal, TodasLasGarantias, ApuestasMaximas); };
    const auto condicionado = [](LogicaGarantias& l) {
        return Midio(l, SobreLoCondicionado, SeisAciertos, DiezMillones);
    };
    const auto extendidas = [](LogicaGarantias& l) {
        return l.GarantiasExtendidas() && l.txtMiniGarantias.find("% 6 si 6 (1000 Apu.)") != std::string::npos;
    };
    return {{"boleto entero, k = 6, 1.000 apuestas", 1000, 100, boleto},
            {"boleto entero, k = 6, 100.000 apuestas", 100000, 270, boleto},
            {"boleto entero, Todas, 1.000 apuestas", 1000, 150, todas},
            {"diez millones condicionadas, 1.000 apuestas", 1000, 150, condicionado},
            {"extendidas, 49 números, 1.000 apuestas", 1000, 60, extendidas}};
}

} // namespace

int main(int argc, char** argv) {
    const int rondas = std::max(3, argc > 1 ? std::atoi(argv[1]) : 5);
    const std::string texto = argc > 2 ? argv[2] : "";
    Escena escena;
    std::vector<Trabajo> trabajos = Trabajos();
    std::erase_if(trabajos, [&](const Trabajo& t) { return std::string(t.nombre).find(texto) == std::string::npos; });
    const std::vector<uint8_t> memoria(BytesDeLectura, 1);
    double lectura = 1e9;
    uint64_t suma = 0;
    bool bien = true;
    for (int ronda = 0; ronda < rondas; ++ronda)
        for (Trabajo& trabajo : trabajos) {
            lectura = std::min(lectura, Segundos([&] { suma += SumarBytes(memoria.data(), BytesDeLectura); }));
            escena.PonerSistema(trabajo.apuestas);
            LogicaGarantias logica(escena.sesion, escena.entorno);
            bool acierta = false;
            trabajo.mejor = std::min(trabajo.mejor, Segundos([&] { acierta = trabajo.hacer(logica); }));
            if (!acierta) std::printf("%s: wrong answer\n", trabajo.nombre);
            bien &= acierta && suma > 0;
        }
    std::printf("one reading of 84 MB: %.2f ms\n", lectura * 1e3);
    for (const Trabajo& trabajo : trabajos) {
        const double veces = trabajo.mejor / lectura;
        const bool cabe = veces <= trabajo.permitido;
        std::printf("%-46s %9.2f ms %8.2f readings, allowed %6.0f%s\n", trabajo.nombre, trabajo.mejor * 1e3, veces,
                    trabajo.permitido, cabe ? "" : "  EXCEEDED");
        bien &= cabe;
    }
    return bien ? 0 : 1;
}
