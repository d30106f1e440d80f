#include "PrepararCoeficiente.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

constexpr double MenorModerado = 1e-30, MayorModerado = 1e30;
constexpr size_t Clases = 100;

double Factor(double porcentaje) {
    return porcentaje > 0 ? porcentaje / 100 : 1;
}

// How much the rounding to 14 decimals can move the binary logarithm of the smallest product of six.
double ErrorPorRedondeo(const PorPosicionDoble& factores, size_t numeros) {
    const auto inicio = factores.begin() + 1;
    std::vector<double> orden(inicio, inicio + static_cast<std::ptrdiff_t>(numeros));
    std::sort(orden.begin(), orden.end());
    const double menor = std::accumulate(orden.begin(), orden.begin() + 6, 1.0, std::multiplies<>());
    const double relativo = 0.5e-14 / menor + 1e-14;
    return relativo < 0.1 ? -std::log2(1 - relativo) : std::numeric_limits<double>::infinity();
}

// The edges of the classes as binary logarithms: class c lies between edges c - 1 and c.
std::array<double, Clases - 1> BordesDeClases() {
    std::array<double, Clases - 1> bordes;
    for (size_t c = 0; c < bordes.size(); ++c) bordes[c] = std::log2((static_cast<double>(c) + 0.5) / 10);
    return bordes;
}

// The logarithm of each position's ratio, as a whole number of steps.
struct Escala {
    double origen = 0, pasos = 1; ///< logarithm = origen + value / pasos
    std::vector<int32_t> valor;   ///< by position, from 0
    int32_t menor = 0, mayor = 0; ///< of any sum of six

    Escala(const TablasCoeficiente& tablas, size_t numeros) {
        std::vector<double> logaritmos;
        for (size_t p = 1; p <= numeros; ++p)
            logaritmos.push_back(std::log2(tablas.FactorReal[p]) - std::log2(tablas.FactorApostado[p]));
        std::vector<double> orden = logaritmos;
        std::sort(orden.begin(), orden.end());
        origen = orden.front();
        // The sums of six fill the 16 bits; with equal ratios any fine step does.
        const double alcance =
            std::accumulate(orden.end() - 6, orden.end(), 0.0) - std::accumulate(orden.begin(), orden.begin() + 6, 0.0);
        pasos = std::min(65500 / std::max(alcance, 1e-300), 1048576.0);
        for (const double l : logaritmos) valor.push_back(static_cast<int32_t>(std::lround((l - origen) * pasos)));
        std::vector<int32_t> valores = valor;
        std::sort(valores.begin(), valores.end());
        menor = std::accumulate(valores.begin(), valores.begin() + 6, 0);
        mayor = std::accumulate(valores.end() - 6, valores.end(), 0);
    }

    /// A sum of six is at most half a step off for each of them.
    double Error() const { return 3 / pasos; }
    double Logaritmo(int32_t suma) const { return 6 * origen + suma / pasos; }
};

// Answers the sums whose whole uncertainty lies in classes of one answer.
std::vector<uint8_t> ResponderSumas(const Escala& escala, double error,
                                    const std::array<int32_t, Clases + 1>& porClase) {
    std::array<size_t, Clases> cambios{}; // of the answer up to each class
    for (size_t c = 1; c < Clases; ++c) cambios[c] = cambios[c - 1] + (porClase[c] != porClase[c - 1] ? 1 : 0);
    const auto bordes = BordesDeClases();
    std::vector<uint8_t> respuestas(65536, TablasCoeficiente::Duda);
    size_t desde = 0, hasta = 0;
    for (int32_t suma = escala.menor; suma <= escala.mayor; ++suma) {
        const double logaritmo = escala.Logaritmo(suma);
        while (desde < bordes.size() && bordes[desde] < logaritmo - error) ++desde;
        while (hasta < bordes.size() && bordes[hasta] <= logaritmo + error) ++hasta;
        if (cambios[desde] == cambios[hasta])
            respuestas[static_cast<uint16_t>(suma)] = static_cast<uint8_t>(porClase[desde]);
    }
    return respuestas;
}

void PrepararSumas(TablasCoeficiente& tablas, size_t numeros) {
    tablas.PorSuma.assign(65536, TablasCoeficiente::Duda);
    if (numeros < 6 || !tablas.Moderados) return;
    const Escala escala(tablas, numeros);
    for (size_t p = 1; p <= numeros; ++p) tablas.Logaritmo.Poner(p, escala.valor[p - 1]);
    const double error = escala.Error() + ErrorPorRedondeo(tablas.FactorApostado, numeros) +
                         ErrorPorRedondeo(tablas.FactorReal, numeros) + 1e-9;
    tablas.PorSuma = ResponderSumas(escala, error, tablas.PorClase);
}

bool EsModerado(double porcentaje) {
    return !(porcentaje > 0) || (porcentaje >= MenorModerado && porcentaje <= MayorModerado);
}

} // namespace

void PrepararCoeficiente(TablasCoeficiente& tablas, size_t numeros, const std::array<uint8_t, Clases>& respuestas) {
    for (size_t p = 1; p <= numeros; ++p) {
        tablas.FactorApostado[p] = Factor(tablas.Apostado[p]);
        tablas.FactorReal[p] = Factor(tablas.Real[p]);
        if (!EsModerado(tablas.Apostado[p]) || !EsModerado(tablas.Real[p])) tablas.Moderados = false;
    }
    std::copy(respuestas.begin(), respuestas.end(), tablas.PorClase.begin());
    tablas.PorClase[Clases] = TablasCoeficiente::Duda;
    PrepararSumas(tablas, numeros);
}
