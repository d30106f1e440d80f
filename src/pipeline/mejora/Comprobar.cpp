#include "Comprobar.h"

#include <algorithm>
#include <bit>

namespace {

uint64_t MascaraDe(const Tabla& apuestas, int64_t i) {
    uint64_t mascara = 0;
    for (int r = 1; r <= 6; ++r) mascara |= uint64_t{1} << (apuestas(r, i) - 1);
    return mascara;
}

} // namespace

int64_t ContarCubiertas(const Tabla& condicionadas, const std::vector<uint64_t>& sistema, int t, const Vigia& vigia) {
    int64_t cubiertas = 0;
    uint64_t ultima = 0; // who covered the bet before often covers the next one too
    for (int64_t i = 1; i <= condicionadas.Apuestas(); ++i) {
        const uint64_t apuesta = MascaraDe(condicionadas, i);
        vigia.Contar(1);
        const auto cubre = [&](uint64_t otra) { return std::popcount(apuesta & otra) >= t; };
        if (!cubre(ultima)) {
            vigia.Contar(static_cast<int64_t>(sistema.size()) / 2);
            const auto quien = std::find_if(sistema.begin(), sistema.end(), cubre);
            if (quien == sistema.end()) continue;
            ultima = *quien;
        }
        ++cubiertas;
    }
    return cubiertas;
}

bool SonCondicionadas(const Tabla& condicionadas, std::vector<uint64_t> sistema, const Vigia& vigia) {
    std::sort(sistema.begin(), sistema.end());
    if (std::adjacent_find(sistema.begin(), sistema.end()) != sistema.end()) return false;
    std::vector<bool> esta(sistema.size());
    for (int64_t i = 1; i <= condicionadas.Apuestas(); ++i) {
        vigia.Contar(4);
        const auto sitio = std::lower_bound(sistema.begin(), sistema.end(), MascaraDe(condicionadas, i));
        if (sitio != sistema.end() && *sitio == MascaraDe(condicionadas, i)) esta[sitio - sistema.begin()] = true;
    }
    return std::find(esta.begin(), esta.end(), false) == esta.end();
}
