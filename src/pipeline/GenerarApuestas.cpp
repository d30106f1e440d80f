#include "GenerarApuestas.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "modGeneral.h"

namespace {

constexpr int64_t ApuestasPorTurno = 500;
constexpr uint8_t Relleno = 99;

// Writes the bets in runs: all bets that share the first k - 1 positions stand together and their
// last positions count up to n, so a run is five fills and one copy of 1, 2, 3, ...
class Expansion {
  public:
    Expansion(EstadoTrabajo& trabajo, Entorno& entorno, int k)
        : tabla_(trabajo.TablaApuestas), entorno_(entorno), n_(trabajo.NumerosBase), k_(k) {
        for (size_t i = 0; i < cuenta_.size(); ++i) cuenta_[i] = static_cast<uint8_t>(i + 1);
    }

    void Nivel(int nivel, int desde) {
        if (nivel == k_) {
            Racha(desde);
            return;
        }
        for (int p = desde; p <= n_ - k_ + nivel; ++p) {
            prefijo_[static_cast<size_t>(nivel - 1)] = static_cast<uint8_t>(p);
            Nivel(nivel + 1, p + 1);
        }
    }

  private:
    void Racha(int desde) {
        const int64_t largo = n_ - desde + 1;
        for (int r = 1; r < k_; ++r) Llenar(tabla_.Fila(r) + escritas_, prefijo_[static_cast<size_t>(r - 1)], largo);
        std::memcpy(tabla_.Fila(k_) + escritas_, &cuenta_[static_cast<size_t>(desde - 1)], 64);
        escritas_ += largo;
        while (escritas_ >= turno_) {
            turno_ += ApuestasPorTurno;
            entorno_.CederTurno();
        }
    }

    // A run has at most 49 bets and each row ends in 64 spare bytes: one fixed-size store serves any
    // run, and what it writes too much the next run overwrites.
    static void Llenar(uint8_t* destino, uint8_t valor, int64_t) { std::memset(destino, valor, 64); }

    Tabla& tabla_;
    Entorno& entorno_;
    int n_, k_;
    int64_t escritas_ = 0, turno_ = ApuestasPorTurno;
    std::array<uint8_t, 5> prefijo_{};
    std::array<uint8_t, 128> cuenta_{};
};

} // namespace

void GenerarApuestas(EstadoTrabajo& trabajo, Entorno& entorno, int k, int filas) {
    if (k < 1 || k > 6) return;
    const int64_t apuestas = Combinaciones(trabajo.NumerosBase, static_cast<int16_t>(k));
    trabajo.TablaApuestas.DimensionarSinLimpiar(filas, apuestas);
    if (apuestas > 0) Expansion(trabajo, entorno, k).Nivel(1, 1);
    for (int r = k + 1; r <= 6; ++r) std::memset(trabajo.TablaApuestas.Fila(r), Relleno, static_cast<size_t>(apuestas));
}
