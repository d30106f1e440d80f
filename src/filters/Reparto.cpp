#include "Reparto.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <numeric>
#include <span>

#include "NucleosReparto.h"
#include "TablaFiltros.h"

namespace {

// While it lives the flags are those of EstadoApuesta, so that the bets that a filter rejects stand apart
// from those that were dead before.
class MuertasAparte {
  public:
    explicit MuertasAparte(EstadoTrabajo& trabajo) : trabajo_(trabajo), vivas_(trabajo.ApuestasEnTabla) {
        static_assert(ApuestaPasa == 0 && ApuestaMuerta == 1 << 1);
        Cambiar([this](uint64_t flags) {
            vivas_ -= static_cast<int32_t>(flags * UnoEnCada >> 56); // the sum of the eight
            return flags << 1;
        });
    }
    // Rejected bets come back to life.
    ~MuertasAparte() {
        const auto n = static_cast<size_t>(trabajo_.ApuestasEnTabla);
        if (n > 0 && vivas_ == trabajo_.ApuestasEnTabla)
            std::memset(trabajo_.ApuestaEliminada.Fila(1), 0, n);
        else
            Cambiar([](uint64_t flags) { return flags >> 1 & UnoEnCada; });
    }
    MuertasAparte(const MuertasAparte&) = delete;
    MuertasAparte& operator=(const MuertasAparte&) = delete;

    int32_t Vivas() const { return vivas_; }

  private:
    static constexpr uint64_t UnoEnCada = 0x0101010101010101u;

    // Eight flags at a time, in pieces; those where all are 0 are only read. The flags behind the last bet
    // become 1, whatever they were.
    template <class Cambio>
    void Cambiar(Cambio cambio) {
        const auto n = static_cast<size_t>(trabajo_.ApuestasEnTabla);
        if (n == 0) return;
        uint8_t* flags = trabajo_.ApuestaEliminada.Fila(1);
        std::memset(flags + n, 0, 64);
        std::array<uint64_t, 512> copia;
        for (size_t desde = 0; desde < n; desde += sizeof copia) {
            const size_t bytes = std::min(sizeof copia, (n - desde + 63) / 64 * 64);
            const std::span<uint64_t> pieza(copia.data(), bytes / 8);
            std::memcpy(pieza.data(), flags + desde, bytes);
            if (std::accumulate(pieza.begin(), pieza.end(), uint64_t{0}, std::bit_or<>()) == 0) continue;
            for (uint64_t& ocho : pieza) ocho = cambio(ocho);
            std::memcpy(flags + desde, pieza.data(), bytes);
        }
        std::memset(flags + n, 1, 64);
    }

    EstadoTrabajo& trabajo_;
    int32_t vivas_;
};

} // namespace

Reparto RepartirFiltro(int k, Sesion& sesion, Entorno& entorno) {
    const DescripcionFiltro& filtro = TablaFiltros[static_cast<size_t>(k)];
    const MuertasAparte aparte(sesion.trabajo);
    Reparto reparto;
    reparto.Total = aparte.Vivas();
    reparto.Pasan = reparto.Total - filtro.Filtrar(sesion, entorno);
    reparto.Apartados = filtro.Repartir(sesion, entorno);
    return reparto;
}
