#include "Sobrantes.h"

#include <algorithm>

#include "Vecindad.h"

bool QuitarSobrantes(const Familia& familia, int t, int64_t exigido, std::vector<int32_t>& sistema,
                     const Vigia& vigia) {
    std::vector<int32_t> veces(familia.Cuantas());
    int64_t cubierto = 0;
    const int64_t visitas = 16 * TamanioVecindad(familia.n(), 6, 6, t); // far from each other in memory
    for (const int32_t apuesta : sistema) {
        vigia.Contar(visitas);
        CadaVecina(familia, familia.Mascara(apuesta), t, [&](int32_t vecina) {
            if (veces[vecina]++ == 0) cubierto += familia.Veces(vecina);
        });
    }
    if (cubierto < exigido) return false;
    std::vector<int32_t> quedan;
    for (size_t i = sistema.size(); i-- > 0;) {
        int64_t sola = 0; // what it alone covers
        vigia.Contar(2 * visitas);
        CadaVecina(familia, familia.Mascara(sistema[i]), t, [&](int32_t vecina) {
            if (veces[vecina] == 1) sola += familia.Veces(vecina);
        });
        if (cubierto - sola < exigido) {
            quedan.push_back(sistema[i]);
            continue;
        }
        cubierto -= sola;
        CadaVecina(familia, familia.Mascara(sistema[i]), t, [&](int32_t vecina) { --veces[vecina]; });
    }
    std::reverse(quedan.begin(), quedan.end());
    sistema = std::move(quedan);
    return true;
}

int32_t CotaInferior(const Familia& familia, int t, int64_t exigido, const Vigia& vigia) {
    constexpr int64_t MaximoTrabajo = 400'000'000;
    const int64_t bola = TamanioVecindad(familia.n(), 6, 6, t);
    const bool contar =
        !familia.Completa() && familia.Cuantas() * std::min<int64_t>(bola, familia.Cuantas()) <= MaximoTrabajo;
    if (!contar) {
        int64_t veces = 1;
        for (int32_t i = 0; i < familia.Cuantas(); ++i) veces = std::max<int64_t>(veces, familia.Veces(i));
        return static_cast<int32_t>((exigido + bola * veces - 1) / (bola * veces));
    }
    std::vector<int64_t> cubre(familia.Cuantas());
    for (int32_t i = 0; i < familia.Cuantas(); ++i) {
        vigia.Contar(std::min<int64_t>(bola, familia.Cuantas()));
        CadaVecina(familia, familia.Mascara(i), t, [&](int32_t vecina) { cubre[i] += familia.Veces(vecina); });
    }
    std::sort(cubre.rbegin(), cubre.rend());
    int64_t suma = 0;
    int32_t cota = 0;
    while (suma < exigido) suma += cubre[cota++];
    return cota;
}
