#include "AjustarApuestasExactas.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "Rnd.h"
#include "modCSN.h"

namespace {

constexpr int32_t TodosLosCSN = 13983816;
constexpr int32_t PasosPorTurno = 52000;

using Numeros = std::array<uint8_t, 6>;

Numeros Leer(const Tabla& tabla, int64_t i) {
    Numeros numeros;
    for (int r = 1; r <= 6; ++r) numeros[r - 1] = tabla(r, i);
    return numeros;
}

void Escribir(Tabla& tabla, int64_t i, const Numeros& numeros) {
    for (int r = 1; r <= 6; ++r) tabla(r, i) = numeros[r - 1];
}

int32_t CSNDe(Numeros numeros) {
    std::sort(numeros.begin(), numeros.end());
    return CombinacionaCSN(6, 49, numeros.data());
}

// Sequence numbers of the conditioned bets that the reduced system does not hold.
std::vector<int32_t> Disponibles(const EstadoTrabajo& trabajo, const std::function<void(double)>& progreso) {
    std::vector<bool> elegida(TodosLosCSN + 1);
    for (int64_t i = 1; i <= trabajo.ApuestasReducidas.Apuestas(); ++i)
        elegida[CSNDe(Leer(trabajo.ApuestasReducidas, i))] = true;
    const int64_t n = trabajo.ApuestasCondicionadas.Apuestas();
    std::vector<int32_t> libres;
    for (int64_t i = 1; i <= n; ++i) {
        if (i % PasosPorTurno == 0) progreso(static_cast<double>(i) / static_cast<double>(n) / 2);
        Numeros numeros = Leer(trabajo.ApuestasCondicionadas, i);
        for (uint8_t& x : numeros) x = trabajo.BaseNumeros[x];
        const int32_t csn = CSNDe(numeros);
        if (!elegida[csn]) libres.push_back(csn);
        elegida[csn] = true;
    }
    return libres;
}

// A partial shuffle: each place draws among the bets that no place before it has drawn.
void Agregar(EstadoTrabajo& trabajo, int32_t e, const std::function<void(double)>& progreso) {
    std::vector<int32_t> libres = Disponibles(trabajo, progreso);
    const int64_t r = trabajo.ApuestasReducidas.Apuestas();
    const auto nuevas = static_cast<int32_t>(std::min<int64_t>(e - r, static_cast<int64_t>(libres.size())));
    Tabla ajustadas(7, r + nuevas);
    for (int64_t i = 1; i <= r; ++i) Escribir(ajustadas, i, Leer(trabajo.ApuestasReducidas, i));
    Azar azar;
    if (trabajo.Reduccion.Aleatorio != 0)
        azar.SembrarReloj();
    else
        azar.Sembrar(1);
    for (int32_t k = 0; k < nuevas; ++k) {
        if (k % PasosPorTurno == 0) progreso(0.5 + 0.5 * k / nuevas);
        std::swap(libres[k], libres[k + azar.Entero(static_cast<int32_t>(libres.size()) - k)]);
        Numeros numeros;
        CSNaCombinacion(libres[k], 6, 49, numeros.data());
        Escribir(ajustadas, r + k + 1, numeros);
    }
    trabajo.ApuestasReducidas = std::move(ajustadas);
}

void Quitar(EstadoTrabajo& trabajo, int32_t e) {
    const auto r = static_cast<int32_t>(trabajo.ApuestasReducidas.Apuestas());
    std::vector<int32_t> orden(r);
    std::iota(orden.begin(), orden.end(), 1);
    if (trabajo.Reduccion.Aleatorio != 0) {
        Azar azar;
        azar.SembrarReloj();
        for (int32_t& actual : orden) std::swap(actual, orden[azar.Entero(r)]);
    }
    Tabla ajustadas(7, e);
    for (int32_t i = 1; i <= e; ++i) Escribir(ajustadas, i, Leer(trabajo.ApuestasReducidas, orden[i - 1]));
    trabajo.ApuestasReducidas = std::move(ajustadas);
}

} // namespace

void AjustarApuestasExactas(EstadoTrabajo& trabajo, const std::function<void(double)>& progreso) {
    const int64_t r = trabajo.ApuestasReducidas.Apuestas();
    const int32_t e = trabajo.Reduccion.NApuestasExactas;
    if (r < e)
        Agregar(trabajo, e, progreso);
    else if (r > e)
        Quitar(trabajo, e);
}
