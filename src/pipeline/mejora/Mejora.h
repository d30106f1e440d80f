// The search for a smaller system with the same guarantee.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Cartera.h"

/// What a system has to keep.
struct Garantia {
    int Aciertos = 5;    ///< numbers in common with a covered bet, 2 to 6
    int64_t Exigido = 0; ///< conditioned bets to be covered
};

/// From a system that stands it looks for a smaller one among the conditioned bets, exchanging bets, and
/// among the systems that a symmetry of the base leaves as they are. The same seed and the same number of
/// steps give the same system. Each better system has been proved bet by bet before it stands here.
///
///     Mejora mejora(condicionadas, n, garantia, 1);
///     mejora.PartirDe(sistema);
///     while (seguir()) if (mejora.Pasos(16)) ensenar(mejora.Sistema());
///
/// Memory: up to 256 MB for the exchange of bets, which is left out where it would need more, up to
/// 192 MB for the symmetric systems, and 24 bytes a conditioned bet.
class Mejora {
  public:
    /// `condicionadas` outlives it: positions 1 to n in rows 1 to 6.
    Mejora(const Tabla& condicionadas, int n, Garantia garantia, uint64_t semilla);

    /// The start: masks of conditioned bets, bit p - 1 for position p. What it does not need is left out.
    /// False when it is no system with that guarantee.
    bool PartirDe(const std::vector<uint64_t>& sistema);

    /// So many exchanges. True when they gave a smaller system.
    bool Pasos(int64_t cuantos);

    const std::vector<uint64_t>& Sistema() const { return sistema_; }
    int32_t Apuestas() const { return static_cast<int32_t>(sistema_.size()); }

    /// No system is smaller than this.
    int32_t Cota() const { return cota_; }

    /// Whether nothing is left to look for.
    bool Terminada() const { return Apuestas() <= cota_ || (!directa_ && Agotada()); }

  private:
    bool Aceptar(const std::vector<int32_t>& apuestas);
    bool Agotada() const { return !cartera_ || cartera_->Agotada(); }
    void ElegirTurno();
    bool PasoDirecto();

    const Tabla& condicionadas_;
    Garantia garantia_;
    Familia familia_;
    std::optional<Recubrimiento> problema_;
    std::optional<BusquedaLocal> directa_;
    std::optional<Cartera> cartera_;
    std::vector<int32_t> apuestas_; // of the family
    std::vector<uint64_t> sistema_;
    bool turnoDirecto_ = true, atrasada_ = false; // the exchange does not start from the best system
    int64_t finTurno_ = 0;
    int32_t cota_ = 0;
};
