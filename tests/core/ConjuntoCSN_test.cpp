#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "AlgebraLiteral.h"
#include "Guion.h"
#include "TablasCSN.h"

using Sistema = std::vector<Apuesta>;

TEST(TablasCSN, CombinacionesDeUnConjuntoPorTramos) {
    std::mt19937 azar(8);
    ConjuntoCSN conjunto;
    std::vector<int32_t> dentro;
    // Runs, lone bets and both ends; heads of one bet stand at the very end.
    for (int32_t csn = 1; csn <= ApuestasMaximas;
         csn += csn < 3000 || csn > 13983000 ? 1 : 1 + static_cast<int32_t>(azar() % 60000))
        if (azar() % 5 != 0) conjunto.Insertar(csn), dentro.push_back(csn);
    ASSERT_EQ(conjunto.Cuantas(), static_cast<int64_t>(dentro.size()));
    for (const int32_t paso : {1 << 20, 777777, ApuestasMaximas}) {
        Tabla tabla(6, conjunto.Cuantas());
        int64_t hechas = 0;
        for (int32_t desde = 1; desde <= ApuestasMaximas; desde += paso)
            hechas += CombinacionesDeConjunto(conjunto, desde, std::min(desde + paso - 1, ApuestasMaximas), tabla,
                                              hechas + 1);
        ASSERT_EQ(hechas, tabla.Apuestas());
        const Sistema escritas = Apuestas(tabla);
        for (size_t i = 0; i < dentro.size(); ++i) ASSERT_EQ(escritas[i], ApuestaDe(dentro[i])) << i;
    }
}

TEST(TablasCSN, OrdenarNumerosNoTocaLoDemas) {
    std::mt19937 azar(9);
    std::vector<int> numeros(49);
    std::iota(numeros.begin(), numeros.end(), 1);
    for (const size_t n : {0u, 1u, 63u, 64u, 65u, 1000u}) {
        Sistema s;
        for (size_t i = 0; i < n; ++i) {
            std::shuffle(numeros.begin(), numeros.end(), azar);
            s.emplace_back(numeros.begin(), numeros.begin() + 6);
        }
        Tabla tabla(7, static_cast<int64_t>(n));
        for (size_t i = 0; i < n; ++i) {
            const auto apuesta = static_cast<int64_t>(i) + 1;
            for (size_t r = 0; r < 6; ++r) tabla(static_cast<int>(r) + 1, apuesta) = static_cast<uint8_t>(s[i][r]);
            tabla(7, apuesta) = static_cast<uint8_t>(i % 10);
        }
        OrdenarNumeros(tabla);
        for (size_t i = 0; i < n; ++i) {
            std::sort(s[i].begin(), s[i].end());
            s[i].push_back(static_cast<int>(i % 10));
        }
        EXPECT_EQ(Apuestas(tabla, 7), s) << n;
    }
}
