// Smaller systems: the same guarantee bet for bet, no bet to spare, the same steps the same system.
#include "Mejora.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "Comprobar.h"
#include "Guion.h"
#include "Sobrantes.h"

namespace {

using Dado = std::mt19937;

struct Caso {
    int n, t;
    Tabla apuestas; // positions, some of them twice
    Garantia garantia;

    // About one in `uno` of the bets of the base, covered by `porcentaje`.
    Caso(int base, int aciertos, int uno, int porcentaje, Dado& dado) : n(base), t(aciertos) {
        std::vector<uint64_t> quedan;
        const Familia todas = Familia::Todas(n, 6);
        for (const uint64_t m : todas.Mascaras())
            for (int veces = 0; veces < (uno == 1 ? 1 : 2); ++veces)
                if (dado() % static_cast<unsigned>(uno * (1 + 9 * veces)) == 0) quedan.push_back(m);
        if (uno > 1) std::shuffle(quedan.begin(), quedan.end(), dado);
        apuestas.Dimensionar(6, static_cast<int64_t>(quedan.size()));
        for (size_t i = 0; i < quedan.size(); ++i) Escribir(static_cast<int64_t>(i) + 1, quedan[i]);
        garantia = {t, (apuestas.Apuestas() * porcentaje + 99) / 100};
    }
    void Escribir(int64_t i, uint64_t m) {
        for (int r = 1, p = 1; p <= n; ++p)
            if (m >> (p - 1) & 1) apuestas(r++, i) = static_cast<uint8_t>(p);
    }
    uint64_t Mascara(int64_t i) const {
        uint64_t m = 0;
        for (int r = 1; r <= 6; ++r) m |= uint64_t{1} << (apuestas(r, i) - 1);
        return m;
    }

    // Bets with at least t positions of some bet of the system, number by number.
    int64_t Cubiertas(const std::vector<uint64_t>& sistema) const {
        int64_t cubiertas = 0;
        for (int64_t i = 1; i <= apuestas.Apuestas(); ++i)
            cubiertas += std::any_of(sistema.begin(), sistema.end(), [&](uint64_t s) {
                int comunes = 0;
                for (int r = 1; r <= 6; ++r) comunes += (s >> (apuestas(r, i) - 1) & 1) != 0;
                return comunes >= t;
            });
        return cubiertas;
    }
    bool Cumple(const std::vector<uint64_t>& sistema) const { return Cubiertas(sistema) >= garantia.Exigido; }

    // Everything that is not covered yet, in the order of the table.
    std::vector<uint64_t> Barrida() const {
        std::vector<uint64_t> sistema;
        for (int64_t i = 1; i <= apuestas.Apuestas(); ++i) {
            const uint64_t m = Mascara(i);
            if (std::none_of(sistema.begin(), sistema.end(), [&](uint64_t s) { return std::popcount(s & m) >= t; }))
                sistema.push_back(m);
        }
        return sistema;
    }
};

std::vector<uint64_t> Mejorar(const Caso& caso, int64_t pasos, uint64_t semilla) {
    Mejora mejora(caso.apuestas, caso.n, caso.garantia, semilla);
    EXPECT_TRUE(mejora.PartirDe(caso.Barrida()));
    mejora.Pasos(pasos);
    EXPECT_GE(mejora.Apuestas(), mejora.Cota());
    return mejora.Sistema();
}

} // namespace

TEST(Mejora, GuardaLaGarantiaConApuestasDelSistemaYNingunaSobra) {
    Dado dado(7);
    for (int i = 0; i < 24; ++i) {
        const int t = 2 + i % 4;
        const Caso caso(9 + i % 4, t, 1 + i % 3, i % 2 == 0 ? 100 : 30 + 5 * (i % 14), dado);
        const std::vector<uint64_t> partida = caso.Barrida();
        const std::vector<uint64_t> sistema = Mejorar(caso, i % 5 == 0 ? 0 : 400, 1);
        SCOPED_TRACE("caso " + std::to_string(i));
        EXPECT_LE(sistema.size(), partida.size());
        EXPECT_TRUE(caso.Cumple(sistema));
        for (size_t k = 0; k < sistema.size(); ++k) {
            int64_t veces = 0;
            for (int64_t a = 1; a <= caso.apuestas.Apuestas(); ++a) veces += caso.Mascara(a) == sistema[k];
            EXPECT_GE(veces, 1) << "a bet that is not conditioned";
            std::vector<uint64_t> sinUna = sistema;
            sinUna.erase(sinUna.begin() + static_cast<std::ptrdiff_t>(k));
            EXPECT_FALSE(caso.Cumple(sinUna)) << "bet " << k << " is not needed";
        }
    }
}

TEST(Mejora, LlegaALosSistemasMasPequenos) {
    Dado dado(1);
    struct {
        int n, t, porcentaje;
        size_t apuestas;
        int64_t pasos;
    } const casos[] = {{8, 5, 100, 4, 2000},  {9, 5, 100, 7, 20000}, {10, 5, 100, 14, 60000},
                       {9, 4, 100, 3, 2000},  {11, 4, 100, 5, 2000}, {12, 4, 100, 6, 2000},
                       {12, 3, 100, 2, 2000}, {10, 2, 100, 1, 100},  {15, 2, 100, 2, 3000}};
    for (const auto& c : casos) {
        const Caso caso(c.n, c.t, 1, c.porcentaje, dado);
        const std::vector<uint64_t> sistema = Mejorar(caso, c.pasos, 3);
        EXPECT_EQ(sistema.size(), c.apuestas) << c.n << " al " << c.t;
        EXPECT_TRUE(caso.Cumple(sistema));
    }
}

// Whether some `cuantas` of the bets meet the guarantee, trying them all.
bool HaySistema(const Caso& caso, size_t cuantas, std::vector<uint64_t>& elegidas, int64_t desde) {
    if (elegidas.size() == cuantas) return caso.Cumple(elegidas);
    for (int64_t i = desde; i <= caso.apuestas.Apuestas(); ++i) {
        elegidas.push_back(caso.Mascara(i));
        const bool hay = HaySistema(caso, cuantas, elegidas, i + 1);
        elegidas.pop_back();
        if (hay) return true;
    }
    return false;
}

TEST(Mejora, LaCotaEsLaDelSistemaMasPequeno) {
    Dado dado(4);
    for (int i = 0; i < 30; ++i) {
        const Caso caso(i < 3 ? 8 : 9 + i % 4, i < 3 ? 5 - i : 2 + i % 4, i < 3 ? 1 : 8 << i % 4, 100, dado);
        if (caso.apuestas.Apuestas() == 0) continue;
        Mejora mejora(caso.apuestas, caso.n, caso.garantia, 1);
        ASSERT_TRUE(mejora.PartirDe(caso.Barrida()));
        mejora.Pasos(100000);
        if (mejora.Cota() > 5) continue;
        SCOPED_TRACE("caso " + std::to_string(i));
        EXPECT_EQ(mejora.Apuestas(), mejora.Cota());
        std::vector<uint64_t> elegidas;
        EXPECT_FALSE(HaySistema(caso, static_cast<size_t>(mejora.Cota()) - 1, elegidas, 1));
    }
    for (const auto& [n, t, cota] : {std::array{8, 5, 4}, {9, 5, 7}, {9, 4, 3}}) {
        const Caso caso(n, t, 1, 100, dado);
        Mejora mejora(caso.apuestas, n, caso.garantia, 1);
        ASSERT_TRUE(mejora.PartirDe(caso.Barrida()));
        mejora.Pasos(400000);
        EXPECT_EQ(mejora.Cota(), cota) << n << " al " << t;
    }
}

TEST(Mejora, LosMismosPasosDanElMismoSistemaTambienPorPartes) {
    Dado dado(5);
    for (const int uno : {1, 3}) {
        const Caso caso(12, 5, uno, 100, dado);
        const std::vector<uint64_t> deUnaVez = Mejorar(caso, 30000, 9);
        Mejora porPartes(caso.apuestas, caso.n, caso.garantia, 9);
        ASSERT_TRUE(porPartes.PartirDe(caso.Barrida()));
        for (int i = 0; i < 300; ++i) porPartes.Pasos(100);
        EXPECT_EQ(porPartes.Sistema(), deUnaVez);
    }
}

TEST(Mejora, TantasApuestasNoCubrenNuncaMenosQueAlEmpezar) {
    Dado dado(3);
    int mejores = 0;
    for (int i = 0; i < 12; ++i) {
        Caso caso(10 + i % 3, 3 + i % 3, 1 + i % 3, 100, dado);
        std::vector<uint64_t> partida = caso.Barrida();
        partida.resize((partida.size() + 1) / 2);
        const int64_t antes = caso.Cubiertas(partida);
        caso.garantia.Exigido = antes;
        Mejora mejora(caso.apuestas, caso.n, caso.garantia, 1);
        ASSERT_TRUE(mejora.PartirDe(partida));
        ASSERT_TRUE(mejora.FijarApuestas(static_cast<int32_t>(partida.size())));
        for (int k = 0; k < 3; ++k) {
            EXPECT_EQ(mejora.Cubiertas(), caso.Cubiertas(mejora.Sistema()));
            EXPECT_GE(mejora.Cubiertas(), antes);
            EXPECT_LE(mejora.Apuestas(), static_cast<int32_t>(partida.size()));
            mejora.Pasos(300);
        }
        mejores += mejora.Cubiertas() > antes;
    }
    EXPECT_GE(mejores, 6); // where one bet stands alone none covers more
}

TEST(Mejora, SeDetieneDondeLaParen) {
    Dado dado(6);
    const Caso caso(18, 4, 1, 100, dado);
    const std::vector<uint64_t> partida = caso.Barrida();
    for (const int permitidas : {0, 2, 5}) {
        int preguntas = 0;
        const auto buscar = [&] {
            Mejora mejora(caso.apuestas, caso.n, caso.garantia, 1, Vigia([&] { return ++preguntas <= permitidas; }));
            mejora.PartirDe(partida);
            mejora.Pasos(200000);
        };
        EXPECT_THROW(buscar(), Interrumpida);
        EXPECT_EQ(preguntas, permitidas + 1);
    }
}

TEST(Mejora, NoPartiraDeLoQueNoEsUnSistema) {
    Dado dado(2);
    const Caso caso(10, 4, 2, 100, dado);
    std::vector<uint64_t> sistema = caso.Barrida();
    Mejora mejora(caso.apuestas, caso.n, caso.garantia, 1);
    const Familia todas = Familia::Todas(10, 6);
    for (const uint64_t m : todas.Mascaras())
        if (Familia::DeTabla(caso.apuestas, 10).Lugar(m) < 0) {
            EXPECT_FALSE(mejora.PartirDe({m})) << "not a conditioned bet";
            break;
        }
    EXPECT_FALSE(mejora.PartirDe({sistema.front()})) << "it does not cover all";
    EXPECT_TRUE(mejora.PartirDe(sistema));
}
