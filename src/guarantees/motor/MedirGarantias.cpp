#include "MedirGarantias.h"

#include <algorithm>

#include "AciertosPorMascara.h"
#include "ExpansionAciertos.h"

namespace {

// Rough costs in nanoseconds.
constexpr double PorComparacion = 0.6, PorCandidata = 20, PorSumas = 150, PorExpandida = 7, PorContador = 0.5,
                 PorApuesta = 150, PorMarca = 8;

constexpr size_t BetsDe16Bits = 65535; // fewer than these

double CosteCuentas(const OrdenSubconjuntos& orden, int k, double apuestas) {
    double contadores = 0;
    for (int m = 0; m <= k; ++m) contadores += static_cast<double>(orden.Cuantos(0, m));
    return contadores * PorContador + apuestas * PorApuesta;
}

Via ElegirVia(const PedidoMedida& pedido, const OrdenSubconjuntos& orden, int k, double candidatas, bool todas) {
    if (pedido.via) return *pedido.via;
    const auto apuestas = static_cast<double>(pedido.sistema.size());
    const double mascaras = candidatas * (PorCandidata + apuestas * PorComparacion);
    const double cuentas = CosteCuentas(orden, k, apuestas);
    const double sumas = todas ? 1e300 : cuentas + candidatas * PorSumas;
    const double expansion =
        cuentas + static_cast<double>(orden.Cuantos(0, k)) * PorExpandida + (todas ? 0 : candidatas * PorMarca);
    if (mascaras <= std::min(sumas, expansion)) return Via::Mascaras;
    return sumas < expansion ? Via::Sumas : Via::Expansion;
}

// One candidate against all bets, with the turns of a big system.
class PorMascaras {
  public:
    PorMascaras(const PedidoMedida& pedido, int64_t total, TablaGarantias& tabla)
        : sistema_(pedido.sistema), total_(static_cast<double>(total)), turno_(pedido.turno), tabla_(tabla),
          cadencia_(CandidatasPorTurno, pedido.turno) {}

    bool Medir(Mascara candidata) {
        const double fraccion = static_cast<double>(++hechas_) / total_;
        if (!cadencia_.Hasta(hechas_, fraccion)) return false;
        CuentasPorAciertos cuenta{};
        const auto apuestas = static_cast<int64_t>(sistema_.size());
        for (int64_t i = 0; i < apuestas; i += ApuestasPorTurno) {
            const int64_t cuantas = std::min(ApuestasPorTurno, apuestas - i);
            ContarPorMascara(candidata, sistema_.data() + i, cuantas, cuenta);
            if (cuantas == ApuestasPorTurno && !turno_(fraccion)) return false;
        }
        tabla_.Anotar(cuenta);
        return true;
    }

  private:
    const std::vector<Mascara>& sistema_;
    const double total_;
    const Turno& turno_;
    TablaGarantias& tabla_;
    Cadencia cadencia_;
    int64_t hechas_ = 0;
};

bool TotalPorMascaras(const PedidoMedida& pedido, const OrdenSubconjuntos& orden, int k, TablaGarantias& tabla) {
    PorMascaras medida(pedido, orden.Cuantos(0, k), tabla);
    const Mascara fin = Mascara{1} << orden.N();
    for (Mascara m = (Mascara{1} << k) - 1; m < fin;) {
        if (!medida.Medir(m)) return false;
        const Mascara acarreo = m + (m & -m); // the next larger number with k bits
        m = acarreo | (((m ^ acarreo) >> 2) / (m & -m));
    }
    return true;
}

// The given candidates as sets of positions; what is no position of the base is in no bet either.
class LectorCandidatas {
  public:
    LectorCandidatas(const Tabla& tabla, int n) : bits_{} {
        for (int p = 1; p <= n; ++p) bits_[static_cast<size_t>(p)] = Mascara{1} << (p - 1);
        for (int r = 1; r <= 6; ++r) filas_[static_cast<size_t>(r - 1)] = tabla.Fila(r);
    }
    Mascara operator()(int64_t i) const {
        Mascara m = 0;
        for (const uint8_t* fila : filas_) m |= bits_[fila[i]];
        return m;
    }

  private:
    std::array<Mascara, 256> bits_;
    std::array<const uint8_t*, 6> filas_{};
};

template <class C>
bool ContarSubconjuntos(const PedidoMedida& pedido, const OrdenSubconjuntos& orden, int k, PlanosSubconjunto<C>& bets) {
    Cadencia cadencia(ApuestasPorTurno, pedido.turno);
    std::array<C*, SubconjuntoMaximo + 1> plano{};
    for (int m = 0; m <= k; ++m) plano[static_cast<size_t>(m)] = bets.Plano(m);
    int64_t hechas = 0;
    for (const Mascara apuesta : pedido.sistema) {
        orden.CadaSubconjunto(apuesta, k, [&](int m, int32_t rango) { ++plano[static_cast<size_t>(m)][rango]; });
        if (!cadencia.Hasta(++hechas, 0)) return false;
    }
    return true;
}

// Exact counts from how many bets hold each subset of the candidate: a bet with h hits stands C(h, m)
// times in the sum over subsets of m numbers.
template <class C>
CuentasPorAciertos CuentaPorSumas(const OrdenSubconjuntos& orden, PlanosSubconjunto<C>& bets, Mascara candidata) {
    static constexpr std::array<std::array<int, 7>, 7> binomio{
        {{1}, {1, 1}, {1, 2, 1}, {1, 3, 3, 1}, {1, 4, 6, 4, 1}, {1, 5, 10, 10, 5, 1}, {1, 6, 15, 20, 15, 6, 1}}};
    std::array<int64_t, 7> suma{};
    orden.CadaSubconjunto(candidata, 6, [&](int m, int32_t rango) {
        suma[static_cast<size_t>(m)] += static_cast<int64_t>(bets.Plano(m)[rango]);
    });
    CuentasPorAciertos cuenta{};
    for (size_t h = 7; h-- > 0;) {
        for (size_t mayor = h + 1; mayor < 7; ++mayor) suma[h] -= binomio[mayor][h] * int64_t{cuenta[mayor]};
        cuenta[h] = static_cast<int32_t>(suma[h]);
    }
    return cuenta;
}

// Which sets of six positions are candidates, by rank; those that stand there already, or have fewer
// positions, go to a list of their own.
class MapaCandidatas {
  public:
    explicit MapaCandidatas(const OrdenSubconjuntos& orden) : orden_(orden), mapa_(1, orden.Cuantos(0, 6)) {}

    bool Marcar(const Tabla& candidatas, int64_t cuantas, const Turno& turno) {
        const LectorCandidatas leer(candidatas, orden_.N());
        Cadencia cadencia(CandidatasPorTurno, turno);
        std::array<int32_t, Tanda> rango;
        for (int64_t inicio = 0; inicio < cuantas; inicio += Tanda) {
            const int64_t n = std::min(Tanda, cuantas - inicio);
            const bool enOrden = Rangos(candidatas, inicio, n, rango);
            for (int64_t i = 0; i < n; ++i)
                enOrden ? Marcar(rango[static_cast<size_t>(i)], leer, inicio + i) : MarcarDesordenada(leer(inicio + i));
            if (!cadencia.Hasta(inicio + n, 0)) return false;
        }
        return true;
    }
    const uint8_t* Datos() const { return mapa_.Fila(1); }
    const std::vector<Mascara>& Sueltas() const { return sueltas_; }

  private:
    static constexpr int64_t Tanda = 1024;

    // Ranks of consecutive bets; false if one of them is not six ascending positions of the base.
    bool Rangos(const Tabla& candidatas, int64_t inicio, int64_t n, std::array<int32_t, Tanda>& rango) const {
        std::array<const uint8_t*, 6> fila;
        for (int r = 1; r <= 6; ++r) fila[static_cast<size_t>(r - 1)] = candidatas.Fila(r) + inicio;
        unsigned mal = 0;
        for (int64_t i = 0; i < n; ++i) mal |= (fila[0][i] < 1) | (fila[5][i] > orden_.N());
        for (size_t r = 1; r < 6; ++r)
            for (int64_t i = 0; i < n; ++i) mal |= fila[r - 1][i] >= fila[r][i];
        if (mal != 0) return false;
        std::fill_n(rango.begin(), n, static_cast<int32_t>(orden_.Cuantos(0, 6) - 1));
        for (size_t r = 0; r < 6; ++r) {
            const auto& cola = orden_.Cola(static_cast<int>(6 - r));
            for (int64_t i = 0; i < n; ++i) rango[static_cast<size_t>(i)] -= cola[fila[r][i]];
        }
        return true;
    }
    void Marcar(int32_t rango, const LectorCandidatas& leer, int64_t i) {
        uint8_t& celda = mapa_.Fila(1)[rango];
        if (celda != 0) sueltas_.push_back(leer(i));
        celda = 1;
    }
    void MarcarDesordenada(Mascara candidata) {
        int32_t rango = -1;
        orden_.CadaSubconjunto(candidata, 6, [&](int m, int32_t r) {
            if (m == 6) rango = r;
        });
        if (rango < 0 || mapa_.Fila(1)[rango] != 0)
            sueltas_.push_back(candidata);
        else
            mapa_.Fila(1)[rango] = 1;
    }

    const OrdenSubconjuntos& orden_;
    Tabla mapa_;
    std::vector<Mascara> sueltas_;
};

template <class C>
bool TotalPorExpansion(const PedidoMedida& pedido, const OrdenSubconjuntos& orden, int k, TablaGarantias& tabla) {
    PlanosSubconjunto<C> bets(orden, k);
    return ContarSubconjuntos(pedido, orden, k, bets) &&
           ExpandirAciertos(orden, bets, {k, nullptr, orden.Cuantos(0, k), pedido.turno}, tabla);
}

template <class C, class Leer>
bool SumarCandidatas(const PedidoMedida& pedido, const OrdenSubconjuntos& orden, PlanosSubconjunto<C>& bets,
                     int64_t cuantas, Leer leer, TablaGarantias& tabla) {
    Cadencia cadencia(CandidatasPorTurno, pedido.turno);
    for (int64_t i = 0; i < cuantas; ++i) {
        if (!cadencia.Hasta(i + 1, static_cast<double>(i + 1) / static_cast<double>(cuantas))) return false;
        tabla.Anotar(CuentaPorSumas(orden, bets, leer(i)));
    }
    return true;
}

template <class C>
bool CandidatasPorCuentas(const PedidoMedida& pedido, const OrdenSubconjuntos& orden, const Tabla& candidatas,
                          int64_t cuantas, Via via, TablaGarantias& tabla) {
    PlanosSubconjunto<C> bets(orden, 6);
    if (!ContarSubconjuntos(pedido, orden, 6, bets)) return false;
    if (via == Via::Sumas)
        return SumarCandidatas(pedido, orden, bets, cuantas, LectorCandidatas(candidatas, orden.N()), tabla);
    MapaCandidatas mapa(orden);
    if (!mapa.Marcar(candidatas, cuantas, pedido.turno)) return false;
    const auto& sueltas = mapa.Sueltas();
    return ExpandirAciertos(orden, bets, {6, mapa.Datos(), cuantas, pedido.turno}, tabla) &&
           SumarCandidatas(
               pedido, orden, bets, static_cast<int64_t>(sueltas.size()),
               [&](int64_t i) { return sueltas[static_cast<size_t>(i)]; }, tabla);
}

bool CandidatasPorMascaras(const PedidoMedida& pedido, const Tabla& candidatas, int64_t cuantas,
                           TablaGarantias& tabla) {
    PorMascaras medida(pedido, cuantas, tabla);
    const LectorCandidatas leer(candidatas, pedido.numerosBase);
    for (int64_t i = 0; i < cuantas; ++i)
        if (!medida.Medir(leer(i))) return false;
    return true;
}

// The result is taken over whole, so that a stop leaves no half of it.
template <class Medir>
bool Entera(TablaGarantias& tabla, Medir medir) {
    TablaGarantias nueva = tabla;
    if (!medir(nueva)) return false;
    tabla = nueva;
    return true;
}

} // namespace

bool MedirTotal(const PedidoMedida& pedido, int k, TablaGarantias& tabla) {
    const OrdenSubconjuntos orden(pedido.numerosBase);
    const Via via = ElegirVia(pedido, orden, k, static_cast<double>(orden.Cuantos(0, k)), true);
    return Entera(tabla, [&](TablaGarantias& nueva) {
        if (via == Via::Mascaras || k == 1) return TotalPorMascaras(pedido, orden, k, nueva);
        return pedido.sistema.size() < BetsDe16Bits ? TotalPorExpansion<uint16_t>(pedido, orden, k, nueva)
                                                    : TotalPorExpansion<uint32_t>(pedido, orden, k, nueva);
    });
}

bool MedirCandidatas(const PedidoMedida& pedido, const Tabla& candidatas, int64_t cuantas, TablaGarantias& tabla) {
    if (cuantas == 0) return true;
    const OrdenSubconjuntos orden(pedido.numerosBase);
    const Via via = ElegirVia(pedido, orden, 6, static_cast<double>(cuantas), false);
    return Entera(tabla, [&](TablaGarantias& nueva) {
        if (via == Via::Mascaras) return CandidatasPorMascaras(pedido, candidatas, cuantas, nueva);
        return pedido.sistema.size() < BetsDe16Bits
                   ? CandidatasPorCuentas<uint16_t>(pedido, orden, candidatas, cuantas, via, nueva)
                   : CandidatasPorCuentas<uint32_t>(pedido, orden, candidatas, cuantas, via, nueva);
    });
}
