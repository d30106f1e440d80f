// How many times its filter's own sweep each spread takes on the whole ticket, and how many it may:
//
//     repartos [rondas [procesador [filtro]]]    at least 5 rounds, 7 unless said; the vector code of that
//                                                processor, - for the best; the works whose name begins so
//
// Rounds are interleaved and minima of the thread's processor time are compared. The bars of each spread are
// checked against the bets and against what the sweep left. Ends with 1 if they are wrong or take too long.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <random>

#include <fmt/format.h>

#include "Boleto.h"
#include "CasosBloques.h"
#include "CondicionesEjemplo.h"
#include "GenerarApuestas.h"
#include "Procesador.h"
#include "Reloj.h"
#include "Sesiones.h"
#include "Supervivientes.h"

namespace {

constexpr double Permitido = 4;

struct Caso {
    std::string nombre;
    FilaDe k;
    void (*elegir)(Condiciones&);
    double barrido = 1e9, reparto = 1e9;
};

Sorteos Historia(size_t cuantos) {
    std::mt19937 azar(1);
    std::array<uint8_t, 49> bombo;
    std::iota(bombo.begin(), bombo.end(), uint8_t{1});
    Sorteos sorteos(cuantos);
    for (Sorteo& sorteo : sorteos) {
        for (size_t k = 0; k < 6; ++k) std::swap(bombo[k], bombo[k + azar() % (49 - k)]);
        std::copy_n(bombo.begin(), 6, sorteo.numeros.begin());
        sorteo.anio = 2000;
        sorteo.sorteo = 1;
    }
    return sorteos;
}

// 3 to 6 hits in about the middle half of the counts to be expected.
void ElegirSorteos(Condiciones& c) {
    const double esperados = static_cast<double>(c.SorteosFiltro.size()) * 0.01864,
                 margen = std::sqrt(esperados) * 0.67;
    c.SORTEOSANTERIORES.grupo[0] = {{-32768, 1},
                                    {32767, 1},
                                    0,
                                    static_cast<int32_t>(esperados - margen),
                                    static_cast<int32_t>(esperados + margen),
                                    {0, 0, 0, 1, 1, 1, 1}};
}

std::vector<Caso> Casos() {
    std::vector<Caso> casos;
    for (const FilaDe k : FiltrosEjemplo)
        casos.push_back({std::string(TablaFiltros[k].nombre), k, ElegirCondicionesEjemplo});
    for (const CasoBloques& caso : CasosBloques()) casos.push_back({caso.nombre, caso.k, caso.elegir});
    casos.push_back({"SORTEOSANTERIORES, 2768", kSORTEOSANTERIORES, ElegirSorteos});
    return casos;
}

bool Cuadra(const Reparto& reparto, int32_t eliminadas) {
    bool bien = reparto.Total == ApuestasMaximas && reparto.Pasan == reparto.Total - eliminadas;
    for (const ApartadoReparto& apartado : reparto.Apartados) {
        int64_t apuestas = 0, pasan = 0;
        for (const BarraReparto& barra : apartado.Barras) {
            apuestas += barra.Apuestas;
            pasan += barra.Pasan;
        }
        bien &= apuestas == reparto.Total && pasan == reparto.Pasan;
    }
    return bien && !reparto.Apartados.empty();
}

bool Medir(Sesion& sesion, Entorno& entorno, Caso& caso) {
    caso.elegir(sesion.condiciones);
    PrepararEliminadas(sesion.trabajo);
    int32_t eliminadas = 0;
    caso.barrido =
        std::min(caso.barrido, Segundos([&] { eliminadas = TablaFiltros[caso.k].Filtrar(sesion, entorno); }));
    PrepararEliminadas(sesion.trabajo);
    Reparto reparto;
    caso.reparto = std::min(caso.reparto, Segundos([&] { reparto = RepartirFiltro(caso.k, sesion, entorno); }));
    return Cuadra(reparto, eliminadas);
}

} // namespace

int main(int argc, char** argv) {
    const int rondas = std::max(5, argc > 1 ? std::atoi(argv[1]) : 7);
    if (argc > 2 && argv[2] != std::string_view("-")) UsarProcesador(argv[2]);
    Sesion sesion;
    Entorno entorno;
    IniciarSesion(sesion, entorno);
    sesion.trabajo.lblNumero.fill(true);
    LeerBase(sesion.trabajo);
    GenerarApuestas(sesion.trabajo, entorno, 6, 6);
    sesion.trabajo.ApuestasEnTabla = ApuestasMaximas;
    sesion.condiciones.SorteosFiltro = Historia(2768);
    std::vector<Caso> casos = Casos();
    if (argc > 3) std::erase_if(casos, [&](const Caso& caso) { return !caso.nombre.starts_with(argv[3]); });
    bool bien = true;
    for (int ronda = 0; ronda < rondas; ++ronda)
        for (Caso& caso : casos) {
            if (Medir(sesion, entorno, caso)) continue;
            fmt::print("{}: WRONG BARS\n", caso.nombre);
            bien = false;
        }
    fmt::print("{:<42}{:>12}{:>12}{:>8}\n", "work", "sweep ms", "spread ms", "ratio");
    for (const Caso& caso : casos) {
        const double razon = caso.reparto / caso.barrido;
        fmt::print("{:<42}{:>12.2f}{:>12.2f}{:>8.2f}{}\n", caso.nombre, caso.barrido * 1e3, caso.reparto * 1e3, razon,
                   razon <= Permitido ? "" : "  EXCEEDED");
        bien &= razon <= Permitido;
    }
    return bien ? 0 : 1;
}
