#include "modCSN.h"

#include <gtest/gtest.h>

#include "modGeneral.h"

namespace {

using Combinacion = std::array<uint8_t, 6>;

// The plain steps: candidates for each element are counted off one by one, in products of doubles.
int32_t CSNLiteral(int k, int n, const uint8_t* c) {
    double total = 0, ultimo = 0;
    int w = 0;
    for (int j = 0; j < k - 1; ++j) {
        do {
            ++w;
            ultimo = CombinacionesR8(n - w, k - 1 - j);
            total += ultimo;
        } while (w < c[j]);
        total -= ultimo;
    }
    return static_cast<int32_t>(total) + c[k - 1] - c[k - 2];
}

bool Siguiente(Combinacion& c, int n) {
    int j = 5;
    while (j >= 0 && c[static_cast<size_t>(j)] == n - 5 + j) --j;
    if (j < 0) return false;
    ++c[static_cast<size_t>(j)];
    for (size_t i = static_cast<size_t>(j) + 1; i < 6; ++i) c[i] = static_cast<uint8_t>(c[i - 1] + 1);
    return true;
}

} // namespace

TEST(modCSN, ExtremosDelBoleto) {
    EXPECT_EQ(CombinacionaCSN(6, 49, Combinacion{1, 2, 3, 4, 5, 6}.data()), 1);
    EXPECT_EQ(CombinacionaCSN(6, 49, Combinacion{44, 45, 46, 47, 48, 49}.data()), 13983816);
    Combinacion c{};
    CSNaCombinacion(13983816, 6, 49, c.data());
    EXPECT_EQ(c, (Combinacion{44, 45, 46, 47, 48, 49}));
    CSNaCombinacion(1, 6, 49, c.data());
    EXPECT_EQ(c, (Combinacion{1, 2, 3, 4, 5, 6}));
}

TEST(modCSN, SonInversasEnTodoElOrden) {
    Combinacion c{1, 2, 3, 4, 5, 6}, vuelta{};
    int32_t lugar = 0, malas = 0;
    do {
        ++lugar;
        malas += CombinacionaCSN(6, 49, c.data()) != lugar;
        CSNaCombinacion(lugar, 6, 49, vuelta.data());
        malas += vuelta != c;
        if (lugar % 997 == 0) malas += CSNLiteral(6, 49, c.data()) != lugar;
    } while (Siguiente(c, 49));
    EXPECT_EQ(lugar, 13983816);
    EXPECT_EQ(malas, 0);
}

TEST(modCSN, OtrosTamanos) {
    for (const int16_t k : {int16_t{2}, int16_t{3}, int16_t{5}}) {
        const auto total = static_cast<int32_t>(Combinaciones(12, k));
        for (int32_t csn = 1; csn <= total; ++csn) {
            Combinacion c{};
            CSNaCombinacion(csn, k, 12, c.data());
            ASSERT_EQ(CSNLiteral(k, 12, c.data()), csn) << "k = " << k;
            ASSERT_EQ(CombinacionaCSN(k, 12, c.data()), csn) << "k = " << k;
        }
    }
}

TEST(Combinatoria, LosBordesDeCadaRutina) {
    EXPECT_EQ(CombinacionesR8(49, 6), 13983816.0);
    EXPECT_EQ(CombinacionesR8(3, 5), 0.0);
    EXPECT_EQ(CombinacionesR8(3, 0), 1.0);
    EXPECT_EQ(CombinacionesR8(3, -2), 1.0);
    EXPECT_EQ(Combinaciones(49, 6), 13983816);
    EXPECT_EQ(Combinaciones(40, 6), 3838380);
    EXPECT_EQ(Combinaciones(5, 6), 0);
    EXPECT_EQ(Combinaciones(0, 6), 0);
    EXPECT_EQ(ProductoDescendente(7, 3), 210);
    EXPECT_EQ(ProductoDescendente(3, 5), 0);
    EXPECT_EQ(COMBINAT(49, 6), 13983816);
    EXPECT_EQ(COMBINAT(5, 6), 0);
    EXPECT_EQ(COMBINAT(22, 6), 74613);
    EXPECT_EQ(Fact(0), 1.0);
    EXPECT_EQ(Fact(10), 3628800.0);
    // Pascal's rule holds between all of them over the whole range in use.
    for (int16_t n = 1; n <= 49; ++n)
        for (int16_t k = 1; k <= 6; ++k) {
            const int64_t c = Combinaciones(n, k);
            EXPECT_EQ(c, Combinaciones(static_cast<int16_t>(n - 1), static_cast<int16_t>(k - 1)) +
                             Combinaciones(static_cast<int16_t>(n - 1), k));
            EXPECT_EQ(CombinacionesR8(n, k), static_cast<double>(c));
            EXPECT_EQ(COMBINAT(n, k), c);
        }
}
