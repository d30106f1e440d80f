// Many bets against many draws, by category.
#include <memory>
#include <random>

#include "Objetivos.h"

#include <hwy/targets.h>

#include "Escrutinio.h"
#include "RecorrerSorteos.h"

namespace {

std::vector<Sorteado> Sortear(size_t cuantos) {
    std::mt19937 azar(1);
    std::vector<Sorteado> sorteos(cuantos);
    for (Sorteado& sorteo : sorteos) {
        const auto nuevo = [&] { return Numeros64{2} << azar() % 49; };
        while (std::popcount(sorteo.Ganadores) < 6) sorteo.Ganadores |= nuevo();
        do sorteo.Complementario = nuevo();
        while ((sorteo.Complementario & sorteo.Ganadores) != 0);
    }
    return sorteos;
}

// Bets from the whole ticket at equal distances.
Tabla Muestra(const Tabla& boleto, int64_t apuestas) {
    Tabla muestra(7, apuestas);
    const int64_t paso = boleto.Apuestas() / apuestas;
    for (int64_t i = 1; i <= apuestas; ++i)
        for (int r = 1; r <= 6; ++r) muestra(r, i) = boleto(r, i * paso);
    return muestra;
}

// A number that depends on every count of every draw.
int64_t Recorrer(const Tabla& apuestas, const std::vector<Sorteado>& sorteos) {
    uint64_t suma = 0;
    RecorrerSorteos(apuestas, sorteos,
                    {[](double) { return true; },
                     [&suma](size_t, const CuentaAciertos& cuenta) {
                         for (const int32_t n : cuenta.Aciertos) suma = 31 * suma + static_cast<uint64_t>(n);
                         suma = 31 * suma + static_cast<uint64_t>(cuenta.CincoC);
                         return true;
                     }});
    return static_cast<int64_t>(suma);
}

} // namespace

void AnotarVariosSorteos(const Tabla& boleto, std::vector<TrabajoEscrutinio>& trabajos) {
    const auto muestra = std::make_shared<Tabla>(Muestra(boleto, 100000));
    const std::vector<Sorteado> tresMil = Sortear(3000), trescientos = Sortear(300);
    hwy::SetSupportedTargetsForTest(HWY_SCALAR);
    const int64_t deMuestra = Recorrer(*muestra, tresMil), deBoleto = Recorrer(boleto, trescientos);
    hwy::SetSupportedTargetsForTest(0);
    trabajos.push_back(
        {"100.000 apuestas, 3.000 sorteos", 5, [muestra, tresMil] { return Recorrer(*muestra, tresMil); }, deMuestra});
    trabajos.push_back({"13.983.816 apuestas, 300 sorteos", 130,
                        [&boleto, trescientos] { return Recorrer(boleto, trescientos); }, deBoleto});
}
