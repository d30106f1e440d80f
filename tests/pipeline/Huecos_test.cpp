// The gaps of a system against each bet compared with each bet.
#include "Huecos.h"

#include <random>

#include <gtest/gtest.h>

#include "Guion.h"

TEST(Huecos, SonLasApuestasQueNadieCubre) {
    std::mt19937 dado(11);
    const auto tirar = [&](int n) { return static_cast<int>(dado() % static_cast<unsigned>(n)); };
    for (int vez = 0; vez < 60; ++vez) {
        EstadoTrabajo trabajo;
        const int n = 6 + tirar(44), aciertos = 1 + vez % 6;
        trabajo.NumerosBase = static_cast<int16_t>(n);
        for (int p = 1; p <= n; ++p) trabajo.BaseNumeros[static_cast<size_t>(p)] = static_cast<uint8_t>(49 - n + p);
        const auto alAzar = [&](Tabla& tabla, int desde, int hasta) {
            for (int64_t i = 1; i <= tabla.Apuestas(); ++i)
                for (int r = 1; r <= 6; ++r) {
                    uint8_t x = 0;
                    bool repetido = true;
                    while (repetido) {
                        x = static_cast<uint8_t>(desde + tirar(hasta - desde + 1));
                        repetido = false;
                        for (int q = 1; q < r; ++q) repetido = repetido || tabla(q, i) == x;
                    }
                    tabla(r, i) = x;
                }
        };
        trabajo.ApuestasCondicionadas.Dimensionar(6, 1 + tirar(200));
        alAzar(trabajo.ApuestasCondicionadas, 1, n);
        Tabla sistema(7, 1 + tirar(12));
        alAzar(sistema, 1, 49); // also numbers outside the base
        std::vector<int32_t> literal, huecos;
        for (int32_t i = 1; i <= trabajo.ApuestasCondicionadas.Apuestas(); ++i) {
            int mejor = 0;
            for (int64_t s = 1; s <= sistema.Apuestas(); ++s) {
                int comunes = 0;
                for (int a = 1; a <= 6; ++a)
                    for (int b = 1; b <= 6; ++b)
                        comunes += trabajo.BaseNumeros[trabajo.ApuestasCondicionadas(a, i)] == sistema(b, s);
                mejor = std::max(mejor, comunes);
            }
            if (mejor < aciertos) literal.push_back(i);
        }
        ASSERT_TRUE(HallarHuecos(
            trabajo, sistema, aciertos, [] { return true; }, huecos));
        ASSERT_EQ(huecos, literal) << n << " numbers, " << aciertos;
    }
    EXPECT_EQ(TextoHuecos(12, 924, ','), "12 de 924 (1,30 %)");
}
