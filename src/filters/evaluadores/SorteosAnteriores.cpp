#include "SorteosAnteriores.h"

#include <bit>
#include <cstring>
#include <limits>
#include <type_traits>

#include "Apartados.h"
#include "Escalares.h"
#include "SumasPorSubconjunto.h"
#include "TablasCSN.h"
#include "modGeneral.h"

namespace {

constexpr size_t SorteosPorTurno = 500;

// Draws as sets of positions. The hits of a draw with repeated numbers are those in the set of its
// numbers, plus those in the set of what comes a second time, and so on.
struct SorteosComoConjuntos {
    std::vector<uint64_t> normales;
    std::vector<std::array<uint64_t, 6>> repetidos;

    explicit SorteosComoConjuntos(const std::vector<SorteoEnBase>& sorteos) {
        for (const SorteoEnBase& sorteo : sorteos) {
            std::array<uint64_t, 6> capas{};
            for (const uint8_t p : sorteo) {
                if (p == 0) continue;
                const uint64_t bit = uint64_t{1} << p;
                size_t capa = 0;
                while ((capas[capa] & bit) != 0) ++capa;
                capas[capa] |= bit;
            }
            if (capas[1] == 0)
                normales.push_back(capas[0]);
            else
                repetidos.push_back(capas);
        }
    }
};

uint64_t ConjuntoDe(const Tramo& tramo, int64_t i) {
    uint64_t conjunto = 0;
    for (const uint8_t* fila : tramo.fila) conjunto |= uint64_t{1} << (fila[i] & 63u);
    return conjunto;
}

class Comparacion {
  public:
    Comparacion(const PreguntaSorteos& pregunta, Entorno& entorno)
        : sorteos_(pregunta.Sorteos), pregunta_(pregunta), entorno_(entorno) {
        for (size_t h = 0; h < pregunta.Acertar.size(); ++h) permitidos_ |= unsigned{pregunta.Acertar[h] == 1} << h;
    }

    bool Pasa(uint64_t apuesta) const {
        const int32_t cuenta = Contar(apuesta);
        return cuenta >= pregunta_.Minimo && cuenta <= pregunta_.Maximo;
    }

    /// At most a block of draws beyond the maximum.
    int32_t Contar(uint64_t apuesta) const {
        const auto normal = [&](uint64_t sorteo) { return std::popcount(apuesta & sorteo); };
        const auto repetido = [&](const std::array<uint64_t, 6>& capas) {
            int aciertos = 0;
            for (const uint64_t capa : capas) aciertos += std::popcount(apuesta & capa);
            return aciertos;
        };
        int32_t cuenta = 0;
        Contar(sorteos_.normales, normal, cuenta);
        Contar(sorteos_.repetidos, repetido, cuenta);
        return cuenta;
    }

  private:
    // Stops, at the end of a block, when the outcome is known.
    template <class Sorteos, class Aciertos>
    void Contar(const Sorteos& sorteos, Aciertos aciertos, int32_t& cuenta) const {
        for (size_t t = 0; t < sorteos.size() && cuenta <= pregunta_.Maximo; t += SorteosPorTurno) {
            const size_t fin = std::min(t + SorteosPorTurno, sorteos.size());
            for (size_t i = t; i < fin; ++i) cuenta += static_cast<int32_t>(permitidos_ >> aciertos(sorteos[i]) & 1u);
            if (fin == t + SorteosPorTurno) entorno_.CederTurno();
        }
    }

    SorteosComoConjuntos sorteos_;
    const PreguntaSorteos& pregunta_;
    Entorno& entorno_;
    unsigned permitidos_ = 0; // bit h: h hits count
};

// The answers of consecutive bets in pieces of any length: 1 to pass as uint8_t, otherwise their values.
template <class Suma, class Respuesta>
class Respuestas {
  public:
    Respuestas(size_t n, const PreguntaSorteos& pregunta, Entorno& entorno)
        : sumas_(n, pregunta, entorno), recorrido_(sumas_, static_cast<Suma>(pregunta.Maximo - pregunta.Minimo)) {}

    /// The next `n` answers; behind them stand at least `HolguraSumas` that may be read.
    const Respuesta* Tomar(size_t n) {
        if (hasta_ - desde_ < n) {
            respuestas_.resize(std::max(respuestas_.size(), n + Distancia(46, 3) + 2 * HolguraSumas));
            std::memmove(respuestas_.data(), respuestas_.data() + desde_, (hasta_ - desde_) * sizeof(Respuesta));
            hasta_ -= desde_;
            desde_ = 0;
            while (hasta_ < n) {
                const size_t nuevas = recorrido_.Siguiente(respuestas_.data() + hasta_);
                if (nuevas == 0) break;
                hasta_ += nuevas;
            }
        }
        const Respuesta* tomadas = respuestas_.data() + desde_;
        desde_ += n;
        return tomadas;
    }

  private:
    SumasPorSubconjunto<Suma> sumas_;
    RecorridoDeApuestas<Suma> recorrido_;
    std::vector<Respuesta> respuestas_;
    size_t desde_ = 0, hasta_ = 0;
};

// Calls `usar` with the answers over `n` positions; sums of 16 bits do for all but huge histories.
template <class Usar>
auto ConRespuestas(size_t n, const PreguntaSorteos& pregunta, Entorno& entorno, Usar usar) {
    if (pregunta.Sorteos.size() <= std::numeric_limits<uint16_t>::max()) {
        Respuestas<uint16_t, uint8_t> respuestas(n, pregunta, entorno);
        return usar(respuestas);
    }
    Respuestas<uint32_t, uint8_t> respuestas(n, pregunta, entorno);
    return usar(respuestas);
}

// A bit or a value for each bet of the ticket, by its sequence number less 1.
constexpr size_t PorVuelta = 4096;
static_assert(ApuestasMaximas % 8 == 0);

class MapaRespuestas {
  public:
    template <class Suma>
    explicit MapaRespuestas(Respuestas<Suma, uint8_t>& respuestas) : bits_(ApuestasMaximas / 8) {
        for (size_t i = 0; i < bits_.size(); i += PorVuelta / 8) {
            const size_t cuantos = std::min(PorVuelta / 8, bits_.size() - i);
            const uint8_t* pasa = respuestas.Tomar(8 * cuantos);
            for (size_t j = 0; j < cuantos; ++j) bits_[i + j] = Juntar(pasa + 8 * j);
        }
    }

    uint8_t Pasa(int32_t csn) const {
        const auto lugar = static_cast<uint32_t>(csn) - 1;
        if (lugar >= uint32_t{ApuestasMaximas}) return 0; // of no bet
        return static_cast<uint8_t>(bits_[lugar / 8] >> lugar % 8 & 1);
    }

  private:
    // Eight bytes of 0 or 1, the first as the lowest bit.
    static uint8_t Juntar(const uint8_t* pasa) {
        unsigned byte = 0;
        for (unsigned b = 0; b < 8; ++b) byte |= unsigned{pasa[b]} << b;
        return static_cast<uint8_t>(byte);
    }

    std::vector<uint8_t> bits_;
};

template <class Suma>
class MapaValores {
  public:
    explicit MapaValores(Respuestas<Suma, Suma>& respuestas) : valores_(ApuestasMaximas) {
        for (size_t i = 0; i < valores_.size(); i += PorVuelta) {
            const size_t cuantos = std::min(PorVuelta, valores_.size() - i);
            std::copy_n(respuestas.Tomar(cuantos), cuantos, valores_.data() + i);
        }
    }

    Suma Valor(int32_t csn) const {
        const auto lugar = static_cast<uint32_t>(csn) - 1;
        return lugar < valores_.size() ? valores_[lugar] : Suma{0};
    }

  private:
    std::vector<Suma> valores_;
};

int64_t LugarDe(const EstadoTrabajo& trabajo, const Tramo& tramo) {
    return tramo.fila[0] - trabajo.TablaApuestas.Fila(1) + 1;
}

int32_t FiltrarComparando(EstadoTrabajo& trabajo, Entorno& entorno, const PreguntaSorteos& pregunta) {
    const Comparacion comparacion(pregunta, entorno);
    return Barrer(trabajo, entorno, [&](const Tramo& tramo) {
        return RecorrerUnaAUna(tramo, [&](int64_t i) { return comparacion.Pasa(ConjuntoDe(tramo, i)); });
    });
}

int32_t FiltrarExpansion(EstadoTrabajo& trabajo, Entorno& entorno, const PreguntaSorteos& pregunta) {
    return ConRespuestas(static_cast<size_t>(trabajo.NumerosBase), pregunta, entorno, [&](auto& respuestas) {
        return Barrer(trabajo, entorno, [&](const Tramo& tramo) {
            return NucleoVeredictos(tramo, respuestas.Tomar(static_cast<size_t>(tramo.n)));
        });
    });
}

// The sequence numbers of a stretch's bets. The positions of the base stand in for the numbers of the
// ticket.
class Numeradas {
  public:
    const std::vector<int32_t>& De(const EstadoTrabajo& trabajo, const Tramo& tramo) {
        CombinacionesaCSN(trabajo.TablaApuestas, LugarDe(trabajo, tramo), tramo.n, csn_.data());
        return csn_;
    }

  private:
    std::vector<int32_t> csn_ = std::vector<int32_t>(static_cast<size_t>(ApuestasPorTurno) + 64);
};

int32_t FiltrarConsultando(EstadoTrabajo& trabajo, Entorno& entorno, const PreguntaSorteos& pregunta) {
    const MapaRespuestas mapa = ConRespuestas(NumeroMaximoBoleto, pregunta, entorno,
                                              [](auto& respuestas) { return MapaRespuestas(respuestas); });
    Numeradas numeradas;
    std::vector<uint8_t> pasa(static_cast<size_t>(ApuestasPorTurno) + 64 + HolguraSumas);
    return Barrer(trabajo, entorno, [&](const Tramo& tramo) {
        const auto& csn = numeradas.De(trabajo, tramo);
        for (size_t i = 0; i < static_cast<size_t>(tramo.n); ++i) pasa[i] = mapa.Pasa(csn[i]);
        return NucleoVeredictos(tramo, pasa.data());
    });
}

// Few draws are counted in words; the counts of more go one at a time.
template <class Suma>
class CuentaDeSorteos {
  public:
    explicit CuentaDeSorteos(size_t sorteos) : cuentas_(sorteos + 1) {}

    void Contar(const Tramo& tramo, const Suma* valores) {
        if constexpr (std::is_same_v<Suma, uint16_t>) {
            NucleoContarPalabras(tramo, valores, palabras_);
        } else {
            for (int64_t i = 0; i < tramo.n; ++i)
                if (tramo.eliminada[i] != ApuestaMuerta)
                    cuentas_[valores[i]].Sumar({1, tramo.eliminada[i] == ApuestaPasa});
        }
    }
    Cuentas Todas() {
        if constexpr (std::is_same_v<Suma, uint16_t>)
            for (size_t v = 0; v < cuentas_.size(); ++v) cuentas_[v] = palabras_.De(v);
        return std::move(cuentas_);
    }

  private:
    Cuentas cuentas_;
    CuentaPalabras palabras_;
};

template <class Suma>
Cuentas RepartirExpansion(EstadoTrabajo& trabajo, Entorno& entorno, const PreguntaSorteos& pregunta) {
    Respuestas<Suma, Suma> respuestas(static_cast<size_t>(trabajo.NumerosBase), pregunta, entorno);
    CuentaDeSorteos<Suma> cuenta(pregunta.Sorteos.size());
    BarrerContando(trabajo, entorno,
                   [&](const Tramo& tramo) { cuenta.Contar(tramo, respuestas.Tomar(static_cast<size_t>(tramo.n))); });
    return cuenta.Todas();
}

template <class Suma>
Cuentas RepartirConsultando(EstadoTrabajo& trabajo, Entorno& entorno, const PreguntaSorteos& pregunta) {
    Respuestas<Suma, Suma> respuestas(NumeroMaximoBoleto, pregunta, entorno);
    const MapaValores<Suma> mapa(respuestas);
    CuentaDeSorteos<Suma> cuenta(pregunta.Sorteos.size());
    Numeradas numeradas;
    std::vector<Suma> valores(static_cast<size_t>(ApuestasPorTurno) + 64 + HolguraSumas);
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        const auto& csn = numeradas.De(trabajo, tramo);
        for (size_t i = 0; i < static_cast<size_t>(tramo.n); ++i) valores[i] = mapa.Valor(csn[i]);
        cuenta.Contar(tramo, valores.data());
    });
    return cuenta.Todas();
}

Cuentas RepartirComparando(EstadoTrabajo& trabajo, Entorno& entorno, const PreguntaSorteos& pregunta) {
    const Comparacion comparacion(pregunta, entorno);
    return ContarUnaAUna(trabajo, entorno, pregunta.Sorteos.size() + 1,
                         [&](const Tramo& tramo, int64_t i) { return comparacion.Contar(ConjuntoDe(tramo, i)); });
}

} // namespace

int32_t FiltrarSorteos(ManeraSorteos manera, EstadoTrabajo& trabajo, Entorno& entorno,
                       const PreguntaSorteos& pregunta) {
    switch (manera) {
    case ManeraSorteos::Comparando:
        return FiltrarComparando(trabajo, entorno, pregunta);
    case ManeraSorteos::Expansion:
        return FiltrarExpansion(trabajo, entorno, pregunta);
    default:
        return FiltrarConsultando(trabajo, entorno, pregunta);
    }
}

Cuentas RepartirSorteos(ManeraSorteos manera, EstadoTrabajo& trabajo, Entorno& entorno, PreguntaSorteos pregunta) {
    pregunta.Minimo = 0;
    pregunta.Maximo = static_cast<int32_t>(pregunta.Sorteos.size());
    const bool pocos = pregunta.Sorteos.size() < CuentaPalabras::Valores;
    switch (manera) {
    case ManeraSorteos::Comparando:
        return RepartirComparando(trabajo, entorno, pregunta);
    case ManeraSorteos::Expansion:
        return pocos ? RepartirExpansion<uint16_t>(trabajo, entorno, pregunta)
                     : RepartirExpansion<uint32_t>(trabajo, entorno, pregunta);
    default:
        return pocos ? RepartirConsultando<uint16_t>(trabajo, entorno, pregunta)
                     : RepartirConsultando<uint32_t>(trabajo, entorno, pregunta);
    }
}
