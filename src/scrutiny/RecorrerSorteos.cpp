#include "RecorrerSorteos.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "NucleoRecuento.h"

namespace {

// Pairs of a bet and a draw that take about a tenth of a second. To turn a bet into bits costs as much as
// some hundreds of draws, so that a batch has no fewer.
constexpr int64_t ParejasPorTanda = int64_t{1} << 33;
constexpr int64_t SorteosMinimos = 512, SorteosMaximos = 4096;

size_t SorteosPorTanda(int64_t apuestas) {
    const int64_t sorteos = ParejasPorTanda / std::max<int64_t>(apuestas, 1);
    return static_cast<size_t>(std::clamp(sorteos, SorteosMinimos, SorteosMaximos));
}

class Tanda {
  public:
    Tanda() : bloque_(std::make_unique<BloqueApuestas>()) {}

    // `parte` goes from 0 to 1 over the bets.
    bool Contar(const Tabla& apuestas, std::span<const Sorteado> sorteos,
                const std::function<bool(double parte)>& seguir) {
        filas_.clear();
        for (const Sorteado& sorteo : sorteos) filas_.emplace_back(sorteo);
        Cuentas.assign(sorteos.size(), {});
        const int64_t n = apuestas.Apuestas();
        for (int64_t desde = 1; desde <= n; desde += BloqueApuestas::Maximo) {
            const int64_t cuantas = std::min(BloqueApuestas::Maximo, n - desde + 1);
            bloque_->Llenar(apuestas, desde, cuantas);
            NucleoRecuento(*bloque_, filas_, Cuentas);
            if (!seguir(static_cast<double>(desde + cuantas - 1) / static_cast<double>(n))) return false;
        }
        return true;
    }

    std::vector<CuentaAciertos> Cuentas;

  private:
    std::unique_ptr<BloqueApuestas> bloque_;
    std::vector<FilasSorteo> filas_;
};

} // namespace

bool RecorrerSorteos(const Tabla& apuestas, std::span<const Sorteado> sorteos, const PasosRecorrido& pasos) {
    Tanda tanda;
    const size_t porTanda = SorteosPorTanda(apuestas.Apuestas());
    const auto total = static_cast<double>(sorteos.size());
    for (size_t primero = 0; primero < sorteos.size(); primero += porTanda) {
        const auto estos = sorteos.subspan(primero, std::min(porTanda, sorteos.size() - primero));
        const auto parte = [&](double hecha) {
            return (static_cast<double>(primero) + hecha * static_cast<double>(estos.size())) / total;
        };
        if (!tanda.Contar(apuestas, estos, [&](double hecha) { return pasos.Seguir(parte(hecha)); })) return false;
        for (size_t i = 0; i < estos.size(); ++i)
            if (!pasos.Seguir(parte(1)) || !pasos.AlContar(primero + i, tanda.Cuentas[i])) return false;
    }
    return true;
}
