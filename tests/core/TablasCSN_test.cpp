#include "TablasCSN.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Juegos.h"
#include "Repetidas.h"
#include "modCSN.h"

namespace {

std::array<uint8_t, 6> Ordenada(const Tabla& tabla, int64_t i) {
    std::array<uint8_t, 6> c;
    for (int r = 1; r <= 6; ++r) c[static_cast<size_t>(r - 1)] = tabla(r, i);
    std::sort(c.begin(), c.end());
    return c;
}

// Bets of six random numbers of 1 to `maximo` in random order, the digit row counting up.
Tabla AlAzar(std::mt19937& azar, int64_t n, int maximo) {
    std::vector<uint8_t> numeros(static_cast<size_t>(maximo));
    std::iota(numeros.begin(), numeros.end(), uint8_t{1});
    Tabla tabla(7, n);
    for (int64_t i = 1; i <= n; ++i) {
        std::shuffle(numeros.begin(), numeros.end(), azar);
        for (int r = 1; r <= 6; ++r) tabla(r, i) = numeros[static_cast<size_t>(r - 1)];
        tabla(7, i) = static_cast<uint8_t>(i % 10);
    }
    return tabla;
}

// The bets as they should be left: each one looked up among those before it.
std::vector<Apuesta> SinRepetirLiteral(const Tabla& tabla) {
    std::set<std::array<uint8_t, 6>> vistas;
    const auto todas = Apuestas(tabla, tabla.Filas());
    std::vector<Apuesta> quedan;
    for (int64_t i = 1; i <= tabla.Apuestas(); ++i)
        if (vistas.insert(Ordenada(tabla, i)).second) quedan.push_back(todas[static_cast<size_t>(i - 1)]);
    return quedan;
}

} // namespace

TEST(TablasCSN, TodoElBoletoIdaYVuelta) {
    std::vector<int32_t> csn(ApuestasMaximas), vuelta(ApuestasMaximas);
    std::iota(csn.begin(), csn.end(), 1);
    Tabla tabla(6, ApuestasMaximas);
    CSNaCombinaciones(csn.data(), ApuestasMaximas, tabla, 1);
    std::array<uint8_t, 6> c{};
    int64_t malas = 0;
    for (int32_t i = 1; i <= ApuestasMaximas; i += 11) {
        CSNaCombinacion(i, 6, 49, c.data());
        for (int r = 1; r <= 6; ++r) malas += tabla(r, i) != c[static_cast<size_t>(r - 1)];
    }
    EXPECT_EQ(malas, 0);
    CombinacionesaCSN(tabla, 1, ApuestasMaximas, vuelta.data());
    EXPECT_EQ(vuelta, csn);
}

TEST(TablasCSN, TramosSueltosYNumerosDesordenados) {
    std::mt19937 azar(7);
    const Tabla tabla = AlAzar(azar, 1000, 49);
    Tabla otra(6, 1000);
    for (const auto& [primera, n] : {std::pair{1, 1}, {1, 64}, {2, 63}, {17, 65}, {64, 937}, {1000, 1}, {5, 0}}) {
        std::vector<int32_t> csn(static_cast<size_t>(n) + 1, -1);
        CombinacionesaCSN(tabla, primera, n, csn.data());
        EXPECT_EQ(csn.back(), -1) << "written behind the end";
        CSNaCombinaciones(csn.data(), n, otra, primera);
        for (int i = 0; i < n; ++i) {
            const auto c = Ordenada(tabla, primera + i);
            ASSERT_EQ(csn[static_cast<size_t>(i)], CombinacionaCSN(6, 49, c.data()));
            ASSERT_EQ(Ordenada(otra, primera + i), c);
        }
    }
}

TEST(TablasCSN, ElConjuntoDistingueVecinas) {
    ConjuntoCSN conjunto;
    for (const int32_t csn : {1, 63, 64, 13983816}) {
        EXPECT_FALSE(conjunto.Contiene(csn));
        EXPECT_TRUE(conjunto.Insertar(csn));
        EXPECT_FALSE(conjunto.Insertar(csn));
        EXPECT_TRUE(conjunto.Contiene(csn));
    }
    for (const int32_t csn : {2, 62, 65, 13983815}) EXPECT_FALSE(conjunto.Contiene(csn));
}

TEST(Repetidas, QuedaLaPrimeraYElOrdenDelFichero) {
    std::mt19937 azar(11);
    Guion guion;
    // Few numbers make many repeats, many none; sizes around a turn of 5000 bets.
    for (const auto& [n, maximo] :
         {std::pair{0, 6}, {1, 6}, {3000, 6}, {4999, 12}, {5000, 14}, {12345, 20}, {5001, 49}}) {
        Tabla tabla = AlAzar(azar, n, maximo);
        const auto quedan = SinRepetirLiteral(tabla);
        const int turnosAntes = guion.Turnos;
        EXPECT_EQ(QuitarRepetidas(tabla, guion.entorno), n - static_cast<int>(quedan.size()));
        EXPECT_EQ(Apuestas(tabla, 7), quedan) << n << " bets of " << maximo;
        EXPECT_EQ(guion.Turnos - turnosAntes, n / 5000);
    }
}
