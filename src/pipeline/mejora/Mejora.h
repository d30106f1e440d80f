// The search for a smaller system with the same guarantee.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Demostracion.h"
#include "Particion.h"
#include "Restriccion.h"

/// What a system has to keep.
struct Garantia {
    int Aciertos = 5;    ///< numbers in common with a covered bet, 2 to 6
    int64_t Exigido = 0; ///< conditioned bets to be covered
};

/// From a system that stands it looks for a smaller one among the conditioned bets: by exchanging bets,
/// among the systems that a symmetry of the base leaves as they are, and by splitting a whole base; meanwhile it tries
/// to prove that there is none. The same seed and the same number of steps give the same system. Each better system has
/// been proved bet by bet before it stands here.
///
///     Mejora mejora(condicionadas, n, garantia, 1);
///     mejora.PartirDe(sistema);
///     while (seguir()) if (mejora.Pasos(16)) ensenar(mejora.Sistema());
///
/// Memory: up to 560 MB for the exchange of bets, which is left out where it would need more, up to
/// 200 MB for each of the other searches that applies, and 24 bytes a conditioned bet.
class Mejora {
  public:
    /// `condicionadas` outlives it: positions 1 to n in rows 1 to 6. What the watcher stops, here or later, throws
    /// Interrumpida; the object is then of no more use.
    Mejora(const Tabla& condicionadas, int n, Garantia garantia, uint64_t semilla, Vigia vigia = {});
    Mejora(const Mejora&) = delete;
    Mejora& operator=(const Mejora&) = delete;

    /// The start: masks of conditioned bets, bit p - 1 for position p. What it does not need is left out.
    /// False when it is no system with that guarantee.
    bool PartirDe(const std::vector<uint64_t>& sistema);

    /// Turns to the other question: from the system that stands, the most conditioned bets that `cuantas`
    /// bets can cover; the guarantee is what they cover. False where there is no room for the exchange.
    bool FijarApuestas(int32_t cuantas);

    /// So many exchanges. True when they gave a smaller system, or one that covers more.
    bool Pasos(int64_t cuantos);

    const std::vector<uint64_t>& Sistema() const { return sistema_; }
    int32_t Apuestas() const { return static_cast<int32_t>(sistema_.size()); }

    /// Conditioned bets that the system covers, where the number of bets is fixed.
    int64_t Cubiertas() const { return cubiertas_; }

    /// No system is smaller than this. It may grow with the steps.
    int32_t Cota() const { return demostracion_ ? demostracion_->Cota() : cota_; }

    /// Whether nothing is left to look for.
    bool Terminada() const;

  private:
    enum class Fuente { Directa, Simetrica, Restringida, Partida, Exacta };

    bool Aceptar(const std::vector<int32_t>& apuestas);
    bool HaySimetrias() const { return cartera_ && !cartera_->Agotada(); }
    bool Hay(Fuente fuente) const;
    int64_t Trabajo(Fuente fuente) const;
    void ElegirTurno();
    bool Paso();
    bool PasoFijo();
    void Avanzar();
    size_t CuantasHalladas() const;
    std::vector<int32_t> Halladas() const;

    Vigia vigia_;
    const Tabla& condicionadas_;
    Garantia garantia_;
    Familia familia_;
    std::optional<Recubrimiento> problema_;
    std::optional<BusquedaLocal> directa_;
    std::optional<Cartera> cartera_;
    std::optional<Restriccion> restriccion_;
    std::optional<Particion> particion_;
    std::optional<Demostracion> demostracion_;
    std::vector<int32_t> apuestas_; // of the family
    std::vector<uint64_t> sistema_;
    Fuente turno_ = Fuente::Directa;
    bool atrasada_ = false; // the direct search has not started from the best system
    int64_t finTurno_ = 0;
    int32_t cota_ = 0;
    int64_t cubiertas_ = -1; // below 0 while the number of bets is free
};
