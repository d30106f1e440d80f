// The works on sequence numbers: all bets of the ticket, in their order and shuffled, and an import in
// which each bet stands about once and a third of them repeat another.
#include <algorithm>
#include <numeric>
#include <random>

#include "Escenario.h"
#include "Lectura.h"
#include "Repetidas.h"
#include "TablasCSN.h"

namespace {

constexpr int32_t N = ApuestasMaximas;

std::vector<int32_t> Numeros(const std::string& orden) {
    std::vector<int32_t> csn(N);
    std::iota(csn.begin(), csn.end(), 1);
    std::mt19937 azar(1);
    if (orden == "barajadas") std::shuffle(csn.begin(), csn.end(), azar);
    if (orden == "al azar")
        for (int32_t& n : csn) n = static_cast<int32_t>(azar() % N) + 1;
    return csn;
}

} // namespace

void Escenario::AnotarNumeracion() {
    for (const std::string orden : {"en orden", "barajadas"}) {
        const auto preparar = [this, orden] {
            csn_ = Numeros(orden);
            numeradas_.DimensionarSinLimpiar(7, N);
            CSNaCombinaciones(csn_.data(), N, numeradas_, 1);
        };
        Anotar("número de cada apuesta, " + orden, 20, preparar, [this] {
            CombinacionesaCSN(numeradas_, 1, N, csn_.data());
            return static_cast<int64_t>(SumarBytes(reinterpret_cast<const uint8_t*>(csn_.data()), int64_t{4} * N));
        });
        Anotar("apuesta de cada número, " + orden, 90, preparar, [this] {
            CSNaCombinaciones(csn_.data(), N, numeradas_, 1);
            return static_cast<int64_t>(SumarBytes(numeradas_.Fila(4), N));
        });
    }
    for (const std::string orden : {"en orden", "barajadas", "al azar"})
        Anotar(
            "quitar repetidas, " + orden, 60,
            [this, orden] {
                csn_ = Numeros(orden);
                numeradas_.Dimensionar(7, N);
                CSNaCombinaciones(csn_.data(), N, numeradas_, 1);
            },
            [this] { return int64_t{QuitarRepetidas(numeradas_, entorno_)}; });
}
