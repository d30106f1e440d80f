#include "GenerarApuestas.h"

#include <algorithm>
#include <cstring>

#include "modGeneral.h"

namespace {

constexpr int64_t ApuestasPorTurno = 500;
constexpr uint8_t Relleno = 99;

// The bets that share their first positions are followed by all combinations of what lies behind the
// last of them, and those are the tail of one list: that of all subsets of 1 to n. So this list, of
// three positions at most, is written once; the table is made of copies of its tails, and of runs of
// one byte in the rows before.
class Expansion {
  public:
    Expansion(EstadoTrabajo& trabajo, Entorno& entorno, int k)
        : tabla_(trabajo.TablaApuestas), entorno_(entorno), n_(trabajo.NumerosBase), prefijo_(std::max(k - 3, 0)),
          finales_(k - prefijo_), cola_(finales_, Combinaciones(trabajo.NumerosBase, static_cast<int16_t>(finales_))) {
        EscribirCola(1, 1);
    }

    /// Writes the bets whose first `fijas` positions are already chosen, the last of them `ultima`.
    void Escribir(int fijas, int ultima) {
        if (fijas == prefijo_) {
            CopiarCola(ultima);
            return;
        }
        for (int p = ultima + 1; p <= n_ - (prefijo_ + finales_) + fijas + 1; ++p) {
            const int64_t inicio = escritas_;
            Escribir(fijas + 1, p);
            std::memset(tabla_.Fila(fijas + 1) + inicio, p, static_cast<size_t>(escritas_ - inicio));
        }
    }

  private:
    void EscribirCola(int fila, int desde) {
        for (int p = desde; p <= n_ - finales_ + fila; ++p) {
            const int64_t inicio = enCola_;
            if (fila == finales_)
                ++enCola_;
            else
                EscribirCola(fila + 1, p + 1);
            std::memset(cola_.Fila(fila) + inicio, p, static_cast<size_t>(enCola_ - inicio));
        }
    }

    void CopiarCola(int ultima) {
        const int64_t cuantas = Combinaciones(static_cast<int16_t>(n_ - ultima), static_cast<int16_t>(finales_));
        const auto bytes = static_cast<size_t>(cuantas);
        for (int r = 1; r <= finales_; ++r)
            std::memcpy(tabla_.Fila(prefijo_ + r) + escritas_, cola_.Fila(r) + cola_.Apuestas() - cuantas, bytes);
        escritas_ += cuantas;
        for (; turno_ <= escritas_; turno_ += ApuestasPorTurno) entorno_.CederTurno();
    }

    Tabla& tabla_;
    Entorno& entorno_;
    const int n_;
    const int prefijo_, finales_; // positions fixed one by one, positions copied
    Tabla cola_;
    int64_t enCola_ = 0, escritas_ = 0, turno_ = ApuestasPorTurno;
};

} // namespace

void GenerarApuestas(EstadoTrabajo& trabajo, Entorno& entorno, int k, int filas) {
    if (k < 1 || k > 6 || filas < k) return;
    const int64_t apuestas = Combinaciones(trabajo.NumerosBase, static_cast<int16_t>(k));
    trabajo.TablaApuestas.DimensionarSinLimpiar(filas, apuestas);
    if (apuestas > 0) Expansion(trabajo, entorno, k).Escribir(0, 0);
    for (int r = k + 1; r <= std::min(filas, 6); ++r)
        std::memset(trabajo.TablaApuestas.Fila(r), Relleno, static_cast<size_t>(apuestas));
}
