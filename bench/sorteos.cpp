// The filter of earlier draws on the whole ticket, in order and shuffled, and on few imported bets:
//
//     sorteos [rondas]    at least 5 rounds, 7 unless said
//
// Rounds are interleaved and minima of the thread's processor time are compared. Each answer is checked
// on a sample of the bets against the literal loop. Ends with 1 if one is wrong or takes too long.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <numeric>
#include <random>

#include <fmt/format.h>

#include "Boleto.h"
#include "Evaluadores.h"
#include "FiltroSorteosLiteral.h"
#include "GenerarApuestas.h"
#include "Lectura.h"
#include "Sesiones.h"
#include "Supervivientes.h"
#include "TablasCSN.h"

namespace {

Sorteos Historia(size_t cuantos) {
    std::mt19937 azar(1);
    std::array<uint8_t, 49> bombo;
    std::iota(bombo.begin(), bombo.end(), uint8_t{1});
    Sorteos sorteos(cuantos);
    for (size_t i = 0; i < cuantos; ++i) {
        for (size_t k = 0; k < 6; ++k) std::swap(bombo[k], bombo[k + azar() % (49 - k)]);
        std::copy_n(bombo.begin(), 6, sorteos[i].numeros.begin());
        sorteos[i].anio = static_cast<int16_t>(1985 + i / 300);
        sorteos[i].sorteo = static_cast<uint16_t>(i % 300 + 1);
    }
    return sorteos;
}

// 3 to 6 hits in about the middle half of the counts to be expected of so many draws.
void Condicionar(Sesion& sesion, size_t sorteos) {
    sesion.condiciones.SorteosFiltro = Historia(sorteos);
    const double esperados = static_cast<double>(sorteos) * 0.01864, margen = std::sqrt(esperados) * 0.67;
    const auto minimo = static_cast<int32_t>(std::max(1.0, esperados - margen));
    const auto maximo = static_cast<int32_t>(std::max(1.0, esperados + margen));
    sesion.condiciones.SORTEOSANTERIORES.grupo[0] = {{-32768, 1}, {32767, 1}, 0, minimo, maximo, {0, 0, 0, 1, 1, 1, 1}};
}

void PrepararBoleto(Sesion& sesion, Entorno& entorno) {
    IniciarSesion(sesion, entorno);
    sesion.trabajo.lblNumero.fill(true);
    ActualizarContadores(sesion.trabajo);
    LeerBase(sesion.trabajo);
}

void Expandir(Sesion& sesion, Entorno& entorno) {
    PrepararBoleto(sesion, entorno);
    GenerarApuestas(sesion.trabajo, entorno, 6, 6);
    sesion.trabajo.ApuestasEnTabla = ApuestasMaximas;
}

void Barajar(Sesion& sesion, Entorno& entorno, int32_t apuestas) {
    PrepararBoleto(sesion, entorno);
    std::vector<int32_t> csn(ApuestasMaximas);
    std::iota(csn.begin(), csn.end(), 1);
    std::mt19937 azar(2);
    std::shuffle(csn.begin(), csn.end(), azar);
    EstadoTrabajo& trabajo = sesion.trabajo;
    trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    trabajo.TablaApuestas.Dimensionar(6, apuestas);
    CSNaCombinaciones(csn.data(), apuestas, trabajo.TablaApuestas, 1);
    trabajo.ApuestasEnTabla = apuestas;
}

// Whether some thousand bets, spread over the table, have the verdicts of the literal loop.
bool ComoElLiteral(const Sesion& sesion) {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    constexpr int32_t muestra = 1000;
    Sesion literal;
    literal.condiciones = sesion.condiciones;
    literal.trabajo.BaseNumeros = trabajo.BaseNumeros;
    literal.trabajo.ApuestasEnTabla = muestra;
    literal.trabajo.TablaApuestas.Dimensionar(6, muestra);
    literal.trabajo.ApuestaEliminada.Dimensionar(1, muestra);
    const auto lugar = [&](int32_t i) { return 1 + int64_t{i - 1} * (trabajo.ApuestasEnTabla - 1) / (muestra - 1); };
    for (int32_t i = 1; i <= muestra; ++i)
        for (int r = 1; r <= 6; ++r) literal.trabajo.TablaApuestas(r, i) = trabajo.TablaApuestas(r, lugar(i));
    LiteralSORTEOSANTERIORES(literal);
    for (int32_t i = 1; i <= muestra; ++i)
        if (literal.trabajo.ApuestaEliminada(1, i) != trabajo.ApuestaEliminada(1, lugar(i))) return false;
    return true;
}

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

enum : size_t { Lectura, Dos, Uno, Muchos, DiezMil, Desorden, Literal, Pocas, NFilas_ };

struct Fila {
    const char* nombre;
    Sesion* sesion;
    size_t sorteos;
    size_t patron; ///< row it is compared with
    double permitido;
    double minimo = 1e9;
    int32_t quedan = 0;
};

} // namespace

int main(int argc, char** argv) {
    const int rondas = std::max(5, argc > 1 ? std::atoi(argv[1]) : 7);
    Entorno entorno;
    Sesion entera, desorden, pocas;
    Expandir(entera, entorno);
    Barajar(desorden, entorno, ApuestasMaximas);
    Barajar(pocas, entorno, 2000);
    std::array<Fila, NFilas_> filas{{
        {"read the table once", nullptr, 0, Lectura, 1},
        {"whole expansion, 2 draws", &entera, 2, Lectura, 10},
        {"whole expansion, 1 draw", &entera, 1, Lectura, 10},
        {"whole expansion, 2,768 draws", &entera, 2768, Lectura, 10},
        {"whole expansion, 10,000 draws", &entera, 10000, Uno, 2},
        {"all bets shuffled, 2,768 draws", &desorden, 2768, Lectura, 40},
        {"2,000 bets, 9,361 draws, literal", &pocas, 9361, Literal, 1},
        {"2,000 bets, 9,361 draws", &pocas, 9361, Literal, 0.1},
    }};
    bool bien = true;
    uint64_t bytes = 0;
    for (int ronda = 0; ronda < rondas; ++ronda)
        for (size_t i = 0; i < filas.size(); ++i) {
            Fila& fila = filas[i];
            if (i == Lectura) {
                const Tabla& tabla = entera.trabajo.TablaApuestas;
                const double t = Segundos([&] {
                    for (int r = 1; r <= 6; ++r) bytes += SumarBytes(tabla.Fila(r), tabla.Apuestas());
                });
                fila.minimo = std::min(fila.minimo, t);
                continue;
            }
            Condicionar(*fila.sesion, fila.sorteos);
            PrepararEliminadas(fila.sesion->trabajo);
            int32_t eliminadas = 0;
            const double t = Segundos([&] {
                eliminadas = i == Literal ? LiteralSORTEOSANTERIORES(*fila.sesion)
                                          : FiltrarSORTEOSANTERIORES(*fila.sesion, entorno);
            });
            fila.minimo = std::min(fila.minimo, t);
            fila.quedan = fila.sesion->trabajo.ApuestasEnTabla - eliminadas;
            if (ronda == 0) bien &= ComoElLiteral(*fila.sesion);
        }
    bien &= bytes > 0 && filas[Muchos].quedan == filas[Desorden].quedan && filas[Literal].quedan == filas[Pocas].quedan;
    if (!bien) fmt::print("WRONG ANSWER\n");
    fmt::print("{:<36}{:>12}{:>10}{:>10}{:>10}\n", "work", "bets left", "ms", "ratio", "allowed");
    for (const Fila& fila : filas) {
        const double razon = fila.minimo / filas[fila.patron].minimo;
        fmt::print("{:<36}{:>12}{:>10.2f}{:>10.3f}{:>10.1f}{}\n", fila.nombre, fila.quedan, fila.minimo * 1e3, razon,
                   fila.permitido, razon <= fila.permitido ? "" : "  EXCEEDED");
        bien &= razon <= fila.permitido;
    }
    return bien ? 0 : 1;
}
