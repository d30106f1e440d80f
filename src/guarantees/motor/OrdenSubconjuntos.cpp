#include "OrdenSubconjuntos.h"

#include "modGeneral.h"

OrdenSubconjuntos::OrdenSubconjuntos(int n) : n_(n) {
    for (size_t m = 0; m < cola_.size(); ++m)
        for (int p = 0; p <= n; ++p)
            cola_[m][static_cast<size_t>(p)] =
                static_cast<int32_t>(Combinaciones(static_cast<int16_t>(n - p), static_cast<int16_t>(m)));
}

std::vector<Mascara> MascarasDelSistema(const Tabla& tabla, int64_t apuestas, int filas,
                                        const std::array<uint8_t, NumeroMaximoBoleto + 1>& base, int numerosBase) {
    std::array<Mascara, 256> bit{};
    for (int p = 1; p <= numerosBase; ++p) bit[base[static_cast<size_t>(p)]] = Mascara{1} << (p - 1);
    std::vector<Mascara> mascaras(static_cast<size_t>(apuestas));
    for (int r = 1; r <= filas && apuestas > 0; ++r) {
        const uint8_t* fila = tabla.Fila(r);
        for (size_t i = 0; i < mascaras.size(); ++i) mascaras[i] |= bit[fila[i]];
    }
    return mascaras;
}
