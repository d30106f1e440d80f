#include "Tabla.h"

#include <gtest/gtest.h>

#include <cstring>
#include <new>

#include "Rnd.h"
#include "Texto8bits.h"

TEST(Tabla, FilasAlineadasYConSitioDeSobra) {
    for (const int64_t n :
         {int64_t{0}, int64_t{1}, int64_t{63}, int64_t{64}, int64_t{65}, int64_t{4000}, int64_t{3000001}}) {
        Tabla tabla(7, n);
        for (int r = 1; r <= 7; ++r) {
            EXPECT_EQ(reinterpret_cast<uintptr_t>(tabla.Fila(r)) % 64, 0u);
            std::memset(tabla.Fila(r), r, static_cast<size_t>(n) + 64); // the last row's spare bytes are its own
        }
        for (int r = 1; r <= 7 && n > 0; ++r) {
            EXPECT_EQ(tabla(r, 1), r);
            EXPECT_EQ(tabla(r, n), r);
        }
    }
}

TEST(Tabla, DimensionarLimpiaYLaOtraConservaElSitio) {
    Tabla tabla(2, 100);
    tabla(2, 100) = 9;
    tabla.DimensionarSinLimpiar(2, 50);
    EXPECT_EQ(tabla.Apuestas(), 50);
    tabla.Dimensionar(2, 100);
    EXPECT_EQ(tabla(2, 100), 0);
}

TEST(Tabla, CopiarMoverYComparar) {
    Tabla a(3, 70);
    a(3, 70) = 5;
    Tabla b = a;
    EXPECT_EQ(a, b);
    b(1, 1) = 1;
    EXPECT_FALSE(a == b);
    Tabla c = std::move(b);
    EXPECT_EQ(c(1, 1), 1);
    c.Acortar(1);
    EXPECT_EQ(c.Apuestas(), 1);
    a = Tabla();
    EXPECT_EQ(a.Filas(), 0);
}

TEST(Tabla, SinMemoriaFallaYQuedaVacia) {
    Tabla tabla(1, 10);
    EXPECT_THROW(tabla.DimensionarSinLimpiar(7, int64_t{1} << 50), std::bad_alloc);
    EXPECT_EQ(tabla.Filas(), 0);
    EXPECT_EQ(tabla.Apuestas(), 0);
}

TEST(Rnd, RepiteSuSucesionYSemillasVecinasNoSeParecen) {
    Azar a, b;
    a.Sembrar(5);
    b.Sembrar(5);
    for (int i = 0; i < 100; ++i) ASSERT_EQ(a.Rnd(), b.Rnd());

    // First values of the seeds 1, 2, 3, ...: each of ten classes about a tenth of them, and each pair
    // of classes of neighbours about a hundredth.
    constexpr int N = 200000;
    std::array<int, 10> una{};
    std::array<int, 100> par{};
    int anterior = 0;
    for (int i = 1; i <= N; ++i) {
        a.Sembrar(static_cast<uint64_t>(i));
        const int x = a.Entero(10);
        ++una[static_cast<size_t>(x)];
        ++par[static_cast<size_t>(10 * anterior + x)];
        anterior = x;
    }
    for (const int n : una) EXPECT_NEAR(n, N / 10, 700);
    for (const int n : par) EXPECT_NEAR(n, N / 100, 250);
    for (int i = 0; i < 10000; ++i) {
        const double x = a.Rnd();
        ASSERT_TRUE(x >= 0 && x < 1);
    }
}

TEST(Texto8bits, IdaYVuelta) {
    EXPECT_EQ(Utf8ACodigo8("Pronóstico ñ € –"), "Pron\xF3stico \xF1 \x80 \x96");
    EXPECT_EQ(Utf8ACodigo8("a日b\xC3"), "a?b?");
    EXPECT_EQ(Utf8ACodigo8("\xE2\x82"), "??");
    for (int c = 0; c < 256; ++c) {
        const std::string byte(1, static_cast<char>(c));
        const std::string utf8 = Codigo8AUtf8(byte);
        EXPECT_EQ(Utf8ACodigo8(utf8), utf8 == "?" ? "?" : byte) << c;
    }
    EXPECT_EQ(Codigo8AUtf8("\x81"), "?");
}
