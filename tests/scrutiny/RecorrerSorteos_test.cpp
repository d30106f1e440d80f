#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "Objetivos.h"

#include <hwy/targets.h>

#include "EscrutarLiteral.h"
#include "RecorrerSorteos.h"

namespace {

class Dados {
  public:
    explicit Dados(unsigned semilla) : dados_(semilla) {}
    uint8_t Entre(int minimo, int maximo) {
        return static_cast<uint8_t>(minimo + static_cast<int>(dados_() % static_cast<unsigned>(maximo - minimo + 1)));
    }

    // Bets over few numbers, so that every category comes up, in no order when they come from a bet file.
    Tabla Sistema(int64_t apuestas, int maximo) {
        std::vector<uint8_t> bombo(static_cast<size_t>(maximo));
        std::iota(bombo.begin(), bombo.end(), uint8_t{1});
        Tabla tabla(7, apuestas);
        for (int64_t i = 1; i <= apuestas; ++i) {
            std::shuffle(bombo.begin(), bombo.end(), dados_);
            for (int r = 1; r <= 6; ++r) tabla(r, i) = bombo[static_cast<size_t>(r) - 1];
        }
        return tabla;
    }

    // As the service may send it: numbers repeated, missing or beyond the ticket, and a complementary
    // that is one of them.
    EscrutarLiteral Sorteo(int maximo) {
        EscrutarLiteral sorteo;
        const int rareza = Entre(0, 5);
        for (uint8_t& n : sorteo.ganadores) n = Entre(1, maximo);
        if (rareza >= 3)
            for (size_t j = 0; j < 6; ++j) sorteo.ganadores[j] = static_cast<uint8_t>(Entre(0, 1) * maximo / 6 + j + 1);
        if (rareza == 1) sorteo.ganadores[Entre(0, 5)] = 0;
        if (rareza == 2) sorteo.ganadores[Entre(0, 5)] = Entre(50, 255);
        sorteo.complementario = rareza == 3 ? sorteo.ganadores[0] : rareza == 4 ? Entre(0, 255) : Entre(0, maximo);
        return sorteo;
    }

  private:
    std::mt19937 dados_;
};

std::vector<EscrutarLiteral> SortearVarios(Dados& dados, size_t cuantos, int maximo) {
    std::vector<EscrutarLiteral> sorteos;
    while (sorteos.size() < cuantos) sorteos.push_back(dados.Sorteo(maximo));
    return sorteos;
}

std::vector<Sorteado> Sorteados(const std::vector<EscrutarLiteral>& sorteos) {
    std::vector<Sorteado> sorteados;
    for (const EscrutarLiteral& s : sorteos) sorteados.emplace_back(s.ganadores, s.complementario);
    return sorteados;
}

void CompararConLiteral(Dados& dados, int64_t apuestas, size_t sorteos) {
    const int maximo = dados.Entre(7, 49);
    const Tabla sistema = dados.Sistema(apuestas, maximo);
    const auto literales = SortearVarios(dados, sorteos, maximo);
    size_t contados = 0;
    double hecho = 0;
    const bool entero = RecorrerSorteos(sistema, Sorteados(literales),
                                        {[&](double parte) {
                                             EXPECT_GE(parte, hecho);
                                             hecho = parte;
                                             return true;
                                         },
                                         [&](size_t i, const CuentaAciertos& cuenta) {
                                             EXPECT_EQ(i, contados++);
                                             EXPECT_EQ(cuenta, literales[i](sistema).Aciertos) << i;
                                             return true;
                                         }});
    EXPECT_TRUE(entero);
    EXPECT_EQ(contados, sorteos);
    EXPECT_EQ(hecho, 1);
}

TEST(RecorrerSorteos, DaLoMismoQueContarNumeroANumero) {
    Dados dados(1);
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(procesador));
        hwy::SetSupportedTargetsForTest(procesador);
        for (const int64_t apuestas : {1, 7, 63, 64, 65, 511, 512, 513, 3583, 3584, 3585, 9000})
            CompararConLiteral(dados, apuestas, 12);
        CompararConLiteral(dados, 3, 10000);
    }
    hwy::SetSupportedTargetsForTest(0);
}

TEST(RecorrerSorteos, UnaCuentaEnteraCabeEnSuPalabra) {
    Tabla iguales(7, 10000);
    for (int64_t i = 1; i <= iguales.Apuestas(); ++i)
        for (int r = 1; r <= 6; ++r) iguales(r, i) = static_cast<uint8_t>(r + 43);
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        hwy::SetSupportedTargetsForTest(procesador);
        for (int aciertos = 0; aciertos <= 6; ++aciertos) {
            std::array<uint8_t, 6> ganadores{};
            for (int j = 0; j < 6; ++j)
                ganadores[static_cast<size_t>(j)] = static_cast<uint8_t>(j < aciertos ? 44 + j : 1 + j);
            RecorrerSorteos(iguales, std::array{Sorteado(ganadores, 49)},
                            {[](double) { return true; },
                             [&](size_t, const CuentaAciertos& cuenta) {
                                 EXPECT_EQ(cuenta.Aciertos[static_cast<size_t>(aciertos)], 10000);
                                 EXPECT_EQ(cuenta.CincoC, aciertos == 5 ? 10000 : 0);
                                 return true;
                             }});
        }
    }
    hwy::SetSupportedTargetsForTest(0);
}

// Whatever was told before a stop is the beginning of what a whole walk tells.
TEST(RecorrerSorteos, SePuedePararEnCadaMomento) {
    Dados dados(2);
    const Tabla sistema = dados.Sistema(9000, 20);
    const std::vector<Sorteado> sorteos = Sorteados(SortearVarios(dados, 6, 20));
    const auto contar = [&](int turnos, size_t sorteosQueQuiere, std::vector<CuentaAciertos>& cuentas) {
        return RecorrerSorteos(sistema, sorteos,
                               {[&](double) { return turnos-- > 0; },
                                [&](size_t, const CuentaAciertos& cuenta) {
                                    cuentas.push_back(cuenta);
                                    return cuentas.size() < sorteosQueQuiere;
                                }});
    };
    std::vector<CuentaAciertos> todas;
    ASSERT_TRUE(contar(1000, 1000, todas));
    constexpr int bloques = 3; // of 3584 bets
    for (int turnos = 0; turnos < bloques + 6; ++turnos) {
        std::vector<CuentaAciertos> cuentas;
        EXPECT_FALSE(contar(turnos, 1000, cuentas));
        ASSERT_EQ(cuentas.size(), static_cast<size_t>(std::max(0, turnos - bloques)));
        EXPECT_TRUE(std::equal(cuentas.begin(), cuentas.end(), todas.begin()));
    }
    std::vector<CuentaAciertos> dos;
    EXPECT_FALSE(contar(1000, 2, dos));
    EXPECT_EQ(dos.size(), 2u);
}

} // namespace
