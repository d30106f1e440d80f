#include "Huecos.h"

#include <algorithm>

#include <fmt/format.h>

#include "Subconjuntos.h"

namespace {

constexpr int64_t ApuestasPorTurno = 50000;

// A set of T-subsets of the base by their place.
class Marcas {
  public:
    explicit Marcas(int32_t cuantas) : bits_(static_cast<size_t>(cuantas) / 64 + 1) {}
    void Poner(int32_t i) { bits_[static_cast<size_t>(i) / 64] |= uint64_t{1} << (i % 64); }
    uint64_t Leer(int32_t i) const { return bits_[static_cast<size_t>(i) / 64] >> (i % 64) & 1; }

  private:
    std::vector<uint64_t> bits_;
};

// The positions in the base of the numbers of a bet, ascending; those outside are left out.
int Posiciones(const std::array<uint8_t, 256>& posicion, const Tabla& sistema, int64_t i, Seis& p) {
    int cuantas = 0;
    for (int r = 1; r <= 6; ++r)
        if (const uint8_t x = posicion[sistema(r, i)]; x != 0) p[cuantas++] = x;
    std::sort(p.begin(), p.begin() + cuantas);
    return cuantas;
}

// Two bets have T numbers in common when they share a T-subset.
template <int T>
bool Hallar(const EstadoTrabajo& trabajo, const Tabla& sistema, const std::function<bool()>& turno,
            std::vector<int32_t>& huecos) {
    const Rangos rangos(trabajo.NumerosBase, T);
    Marcas cubiertas(rangos.Cuantos());
    std::array<uint8_t, 256> posicion{};
    for (int p = 1; p <= trabajo.NumerosBase; ++p) posicion[trabajo.BaseNumeros[p]] = static_cast<uint8_t>(p);
    Seis p;
    for (int64_t i = 1; i <= sistema.Apuestas(); ++i) {
        const int cuantas = Posiciones(posicion, sistema, i, p);
        CadaSubconjunto<T>(rangos, p.data(), 0, cuantas, 0, [&](int32_t s, int) { cubiertas.Poner(s); });
    }
    const Tabla& condicionadas = trabajo.ApuestasCondicionadas;
    for (int64_t i = 1; i <= condicionadas.Apuestas(); ++i) {
        if (i % ApuestasPorTurno == 0 && !turno()) return false;
        for (int r = 1; r <= 6; ++r) p[r - 1] = condicionadas(r, i);
        if (!std::is_sorted(p.begin(), p.end())) std::sort(p.begin(), p.end());
        uint64_t cubierta = 0;
        CadaSubconjunto<T>(rangos, p.data(), 0, 6, 0, [&](int32_t s, int) { cubierta |= cubiertas.Leer(s); });
        if (cubierta == 0) huecos.push_back(static_cast<int32_t>(i));
    }
    return true;
}

} // namespace

bool HallarHuecos(const EstadoTrabajo& trabajo, const Tabla& sistema, int aciertos, const std::function<bool()>& turno,
                  std::vector<int32_t>& huecos) {
    constexpr std::array hallar{Hallar<1>, Hallar<2>, Hallar<3>, Hallar<4>, Hallar<5>, Hallar<6>};
    huecos.clear();
    return hallar.at(static_cast<size_t>(aciertos) - 1)(trabajo, sistema, turno, huecos);
}

std::string TextoHuecos(int64_t huecos, int64_t condicionadas, char separador) {
    const double parte = condicionadas == 0 ? 0 : static_cast<double>(huecos) / static_cast<double>(condicionadas);
    std::string porcentaje = fmt::format("{:.2f}", 100 * parte);
    std::replace(porcentaje.begin(), porcentaje.end(), '.', separador);
    return fmt::format("{} de {} ({} %)", huecos, condicionadas, porcentaje);
}

std::string DoceCifras(const EstadoTrabajo& trabajo, int32_t apuesta) {
    std::string cifras;
    for (int r = 1; r <= 6; ++r)
        cifras += fmt::format("{:02}", trabajo.BaseNumeros[trabajo.ApuestasCondicionadas(r, apuesta)]);
    return cifras;
}

std::string InformeHuecos(const EstadoTrabajo& trabajo, const std::vector<int32_t>& huecos, const std::string& texto) {
    constexpr size_t MaximoEscritas = 100000;
    std::string informe = fmt::format("TOMBOLERA Huecos del sistema reducido : {}\n\n", texto);
    const size_t escritas = std::min(huecos.size(), MaximoEscritas);
    for (size_t i = 0; i < escritas; ++i) {
        const std::string cifras = DoceCifras(trabajo, huecos[i]);
        for (size_t r = 0; r < 6; ++r) informe += cifras.substr(2 * r, 2) + (r < 5 ? " " : "\n");
    }
    if (escritas < huecos.size()) informe += fmt::format("... y {} más\n", huecos.size() - escritas);
    return informe;
}
