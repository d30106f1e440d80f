#include "Reparto.h"

#include <cstring>

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
        Cambiar([](uint64_t flags) { return flags >> 1 & UnoEnCada; });
    }
    MuertasAparte(const MuertasAparte&) = delete;
    MuertasAparte& operator=(const MuertasAparte&) = delete;

    int32_t Vivas() const { return vivas_; }

  private:
    static constexpr uint64_t UnoEnCada = 0x0101010101010101u;

    // Eight flags at a time; those behind the last bet become 1, whatever they were.
    template <class Cambio>
    void Cambiar(Cambio cambio) {
        const auto n = static_cast<size_t>(trabajo_.ApuestasEnTabla);
        if (n == 0) return;
        uint8_t* flags = trabajo_.ApuestaEliminada.Fila(1);
        std::memset(flags + n, 0, 8);
        for (size_t i = 0; i < n; i += 8) {
            uint64_t ocho;
            std::memcpy(&ocho, flags + i, 8);
            ocho = cambio(ocho);
            std::memcpy(flags + i, &ocho, 8);
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
