#include "RepartirPorCR.h"

#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include <hwy/targets.h>

#include "Guion.h"
#include "Registros.h"
#include "RentabilidadLiteral.h"

namespace {

struct Porcentajes {
    std::string nombre;
    PorcentajesPorNumero apostados{}, reales{};
};

PorcentajesPorNumero AlAzar(std::mt19937& azar, double mayor, bool conCeros) {
    PorcentajesPorNumero p{};
    for (size_t n = 1; n < p.size(); ++n)
        p[n] =
            conCeros && azar() % 4 == 0 ? 0 : std::floor(mayor * 100 * static_cast<double>(azar()) / 4294967296) / 100;
    return p;
}

PorcentajesPorNumero Todos(double valor) {
    PorcentajesPorNumero p{};
    p.fill(valor);
    return p;
}

// Everyday tables, ratios on the very edges of the rows, and what leaves the range of good products.
std::vector<Porcentajes> Tablas(std::mt19937& azar) {
    const RegistroCOEFICIENTERENTABILIDAD registro;
    std::vector<Porcentajes> tablas{
        {"defaults", registro.PorcentajesApostados, registro.PorcentajesReales},
        {"equal", registro.PorcentajesReales, registro.PorcentajesReales},
        {"products of A that round to 0", Todos(0.1), Todos(12.25)},
        {"both round to 0", Todos(0.01), Todos(0.01)},
        {"out of the doubles", Todos(1e300), Todos(1e-300)},
        {"nothing counts", Todos(0), Todos(-5)},
    };
    for (const double mayor : {1.0, 20.0, 100.0, 5000.0})
        for (const bool ceros : {false, true})
            tablas.push_back({"to " + std::to_string(mayor), AlAzar(azar, mayor, ceros), AlAzar(azar, mayor, ceros)});
    Porcentajes bordes{"edges", Todos(100), Todos(100)};
    const std::array<double, 8> reales{25, 35, 45, 15, 5, 95, 985, 990};
    for (size_t i = 0; i < reales.size(); ++i) bordes.reales[1 + 6 * i] = reales[i];
    tablas.push_back(bordes);
    return tablas;
}

// Bets in any order of their numbers; every third one repeats another.
Tabla Sistema(std::mt19937& azar, int64_t n) {
    std::vector<uint8_t> numeros(49);
    std::iota(numeros.begin(), numeros.end(), uint8_t{1});
    Tabla tabla(7, n);
    for (int64_t b = 1; b <= n; ++b) {
        if (b % 3 != 0) std::shuffle(numeros.begin(), numeros.end(), azar);
        for (int r = 1; r <= 6; ++r) tabla(r, b) = numeros[static_cast<size_t>(r)];
    }
    return tabla;
}

} // namespace

TEST(RepartirPorCR, ComoLosPasosLiteralesEnCadaProcesador) {
    std::mt19937 azar(31);
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        hwy::SetSupportedTargetsForTest(procesador);
        for (const Porcentajes& p : Tablas(azar))
            for (const int64_t n : {int64_t{0}, int64_t{1}, int64_t{63}, int64_t{9001}}) {
                SCOPED_TRACE(p.nombre + ", " + std::to_string(n) + ", " + hwy::TargetName(procesador));
                const Tabla sistema = Sistema(azar, n);
                Tabla valores;
                std::array<int32_t, ValoresCR> cuantas{}, esperadas{};
                ASSERT_TRUE(RepartirPorCR(sistema, p.apostados, p.reales, valores, cuantas, [] { return true; }));
                int64_t malas = 0;
                const auto apuestas = Apuestas(sistema);
                for (int64_t b = 1; b <= n; ++b) {
                    const size_t fila = FilaLiteral(apuestas[static_cast<size_t>(b - 1)], p.apostados, p.reales);
                    malas += valores(1, b) != fila;
                    ++esperadas[fila];
                }
                EXPECT_EQ(malas, 0);
                EXPECT_EQ(cuantas, esperadas);
            }
    }
    hwy::SetSupportedTargetsForTest(0);
}

TEST(RepartirPorCR, SeDetieneEnCualquierTurno) {
    std::mt19937 azar(32);
    const Tabla sistema = Sistema(azar, 10000);
    Tabla valores;
    std::array<int32_t, ValoresCR> cuantas{};
    for (int parada = 1; parada <= 3; ++parada) {
        int van = 0;
        EXPECT_FALSE(RepartirPorCR(sistema, Todos(10), Todos(12), valores, cuantas, [&] { return ++van < parada; }));
        EXPECT_EQ(van, parada);
    }
}
