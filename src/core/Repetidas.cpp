#include "Repetidas.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "TablasCSN.h"

namespace {

constexpr int64_t ApuestasPorTurno = 5000;

// Moves the bets of [desde, desde + n) whose flag is set to the place `hasta`, which is never behind them.
void Compactar(Tabla& apuestas, int64_t desde, int64_t n, const uint8_t* queda, int64_t hasta) {
    for (int r = 1; r <= apuestas.Filas(); ++r) {
        const uint8_t* de = apuestas.Fila(r) + desde;
        uint8_t* a = apuestas.Fila(r) + hasta;
        for (int64_t i = 0; i < n; ++i) {
            *a = de[i];
            a += queda[i];
        }
    }
}

} // namespace

int32_t QuitarRepetidas(Tabla& apuestas, Entorno& entorno) {
    ConjuntoCSN vistas;
    std::array<int32_t, ApuestasPorTurno> csn;
    std::array<uint8_t, ApuestasPorTurno> queda;
    const int64_t total = apuestas.Apuestas();
    int64_t quedan = 0;
    for (int64_t desde = 0; desde < total; desde += ApuestasPorTurno) {
        const int64_t n = std::min(ApuestasPorTurno, total - desde);
        CombinacionesaCSN(apuestas, desde + 1, n, csn.data());
        int64_t nuevas = 0;
        for (size_t i = 0; i < static_cast<size_t>(n); ++i) {
            queda[i] = vistas.Insertar(csn[i]);
            nuevas += queda[i];
        }
        if (quedan < desde || nuevas < n) Compactar(apuestas, desde, n, queda.data(), quedan);
        quedan += nuevas;
        if (n == ApuestasPorTurno) entorno.CederTurno();
    }
    apuestas.Acortar(quedan);
    return static_cast<int32_t>(total - quedan);
}
