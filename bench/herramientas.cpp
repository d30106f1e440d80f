// The tools on whole systems, beside reading the 84 MB of the whole ticket once, and the coefficients beside
// the filter: herramientas [rounds].
// Rounds are interleaved and minima of the thread's processor time compared. Ends with 1 if an answer is
// wrong or a work takes too long.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "Lectura.h"
#include "OperacionesSistemas.h"
#include "PrepararCoeficiente.h"
#include "Registros.h"
#include "RepartirPorCR.h"
#include "TablasCSN.h"

namespace {

constexpr int32_t N = ApuestasMaximas, Mitad = 7000000;

double Segundos(const std::function<void()>& hacer) {
    const auto reloj = [] {
        timespec t{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
    };
    const double antes = reloj();
    hacer();
    return reloj() - antes;
}

struct Trabajo {
    std::string nombre;
    double permitido; ///< readings of the ticket, or times the filter where there is one
    std::function<int64_t()> hacer;
    int64_t esperado;
    std::function<void()> filtro{}, reponer{}; ///< the reference instead of the reading, and what it needs before
    double minimo = 1e9, referencia = 1e9;
};

Tabla Sistema(const std::vector<int32_t>& csn, int64_t desde, int64_t n) {
    Tabla tabla(7, n);
    CSNaCombinaciones(csn.data() + desde, n, tabla, 1);
    return tabla;
}

// Two systems of seven million that share some, and the whole ticket, in order and shuffled.
struct Sistemas {
    Tabla uno, otro, todo, resultado, valores, eliminada;
    explicit Sistemas(bool barajados) {
        std::vector<int32_t> csn(static_cast<size_t>(N));
        std::iota(csn.begin(), csn.end(), 1);
        if (barajados) std::shuffle(csn.begin(), csn.end(), std::mt19937(1));
        uno = Sistema(csn, 0, Mitad);
        otro = Sistema(csn, N - Mitad, Mitad);
        todo = Sistema(csn, 0, N);
    }
};

int64_t ContarCR(Sistemas& s) {
    const RegistroCOEFICIENTERENTABILIDAD tablas;
    std::array<int32_t, ValoresCR> cuantas{};
    RepartirPorCR(s.todo, tablas.PorcentajesApostados, tablas.PorcentajesReales, s.valores, cuantas,
                  [] { return true; });
    return std::accumulate(cuantas.begin(), cuantas.end(), int64_t{0});
}

// The filter's kernel on the same bets, with the coefficients 1.0 to 1.9 chosen: how many it rejects.
int64_t Filtrar(Sistemas& s) {
    const RegistroCOEFICIENTERENTABILIDAD registro;
    TablasCoeficiente tablas;
    std::copy(registro.PorcentajesApostados.begin(), registro.PorcentajesApostados.end(), tablas.Apostado.begin());
    std::copy(registro.PorcentajesReales.begin(), registro.PorcentajesReales.end(), tablas.Real.begin());
    std::array<uint8_t, ValoresCR> pasa{};
    std::fill(pasa.begin() + 10, pasa.begin() + 20, uint8_t{1});
    PrepararCoeficiente(tablas, 49, pasa);
    int64_t rechazadas = 0;
    for (int64_t desde = 0; desde < N; desde += 4096) {
        Tramo tramo{};
        for (int r = 0; r < 6; ++r) tramo.fila[r] = s.todo.Fila(r + 1) + desde;
        tramo.eliminada = s.eliminada.Fila(1) + desde;
        tramo.n = std::min<int64_t>(4096, N - desde);
        rechazadas += NucleoCoeficiente(tramo, tablas);
    }
    return rechazadas;
}

void Anotar(std::vector<Trabajo>& trabajos, Sistemas& s, const std::string& orden) {
    static const Turno seguir = [] { return true; };
    const auto anotar = [&](const char* que, double permitido, int64_t esperado, auto operar) {
        trabajos.push_back({std::string(que) + ", " + orden, permitido,
                            [&s, operar] { return operar(s), s.resultado.Apuestas(); }, esperado});
    };
    constexpr int64_t comunes = 2 * int64_t{Mitad} - N;
    anotar("sumar quitando repetidas", 30, N,
           [](Sistemas& q) { SumarSinRepetidas(q.uno, q.otro, q.resultado, seguir); });
    anotar("comunes", 65, comunes, [](Sistemas& q) { Intersecar(q.uno, q.otro, q.resultado, seguir); });
    anotar("restar", 40, Mitad - comunes, [](Sistemas& q) { Restar(q.uno, q.otro, q.resultado, seguir); });
    anotar("ordenar", 130, N, [](Sistemas& q) { OrdenarSistema(q.todo, false, q.resultado, seguir); });
    trabajos.push_back({"coeficientes, " + orden, 3, [&s] { return ContarCR(s); }, N});
    trabajos.back().filtro = [&s] { Filtrar(s); };
    trabajos.back().reponer = [&s] { s.eliminada.Dimensionar(1, N), std::memset(s.eliminada.Fila(1), 0, size_t{N}); };
}

} // namespace

int main(int argc, char** argv) {
    const int rondas = std::max(5, argc > 1 ? std::atoi(argv[1]) : 7);
    Sistemas enOrden(false), barajados(true);
    std::vector<Trabajo> trabajos;
    Anotar(trabajos, enOrden, "en orden");
    Anotar(trabajos, barajados, "barajadas");
    double lectura = 1e9;
    uint64_t suma = 0;
    bool bien = true;
    for (int r = 0; r < rondas; ++r) {
        lectura = std::min(lectura, Segundos([&] {
                               for (int f = 1; f <= 6; ++f) suma += SumarBytes(enOrden.todo.Fila(f), N);
                           }));
        for (Trabajo& t : trabajos) {
            int64_t respuesta = 0;
            t.minimo = std::min(t.minimo, Segundos([&] { respuesta = t.hacer(); }));
            if (respuesta != t.esperado) std::printf("%s: %ld\n", t.nombre.c_str(), static_cast<long>(respuesta));
            bien &= respuesta == t.esperado;
            if (t.reponer) t.reponer();
            if (t.filtro) t.referencia = std::min(t.referencia, Segundos(t.filtro));
        }
    }
    std::printf("read the table once %.2f ms (%lu)\n%-36s%10s%8s%10s\n", lectura * 1e3,
                static_cast<unsigned long>(suma), "work", "ms", "ratio", "allowed");
    for (const Trabajo& t : trabajos) {
        const double referencia = t.filtro ? t.referencia : lectura;
        const bool cabe = t.minimo <= t.permitido * referencia;
        std::printf("%-36s%10.2f%8.2f%10.1f%s\n", t.nombre.c_str(), t.minimo * 1e3, t.minimo / referencia, t.permitido,
                    cabe ? "" : "  EXCEEDED");
        bien &= cabe;
    }
    return bien ? 0 : 1;
}
