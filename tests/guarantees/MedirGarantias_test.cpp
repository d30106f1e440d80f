// Every way of the measure against the literal loop.
#include <gtest/gtest.h>

#include "DadosFiltros.h"
#include "GarantiasLiteral.h"
#include "Sistemas.h"

namespace {

const Turno SinParar = [](double) { return true; };

std::vector<Numeros> CandidatasDe(const EstadoTrabajo& trabajo) {
    std::vector<Numeros> candidatas;
    for (int64_t i = 1; i <= trabajo.ApuestasCondicionadas.Apuestas(); ++i) {
        candidatas.emplace_back();
        for (int r = 1; r <= 6; ++r)
            candidatas.back().push_back(trabajo.BaseNumeros[trabajo.ApuestasCondicionadas(r, i)]);
    }
    return candidatas;
}

void CompararTotal(const EstadoTrabajo& trabajo, int k) {
    const auto sistema = MascarasDe(trabajo);
    const TablaGarantias esperada = GarantiasLiteral(SubconjuntosLiteral(trabajo, k), trabajo.ApuestasReducidas);
    for (const Via via : {Via::Mascaras, Via::Expansion}) {
        TablaGarantias tabla;
        EXPECT_TRUE(MedirTotal({sistema, trabajo.NumerosBase, SinParar, via}, k, tabla));
        EXPECT_EQ(tabla, esperada) << "way " << static_cast<int>(via);
    }
}

void CompararCandidatas(const EstadoTrabajo& trabajo) {
    const auto sistema = MascarasDe(trabajo);
    const TablaGarantias esperada = GarantiasLiteral(CandidatasDe(trabajo), trabajo.ApuestasReducidas);
    for (const Via via : {Via::Mascaras, Via::Sumas, Via::Expansion}) {
        TablaGarantias tabla;
        EXPECT_TRUE(MedirCandidatas({sistema, trabajo.NumerosBase, SinParar, via}, trabajo.ApuestasCondicionadas,
                                    trabajo.ApuestasCondicionadas.Apuestas(), tabla));
        EXPECT_EQ(tabla, esperada) << "way " << static_cast<int>(via);
    }
}

} // namespace

TEST(MedirGarantias, SistemasAlAzarContraElBucleLiteral) {
    Azar azar;
    azar.Sembrar(7);
    for (int caso = 0; caso < 400; ++caso) {
        SCOPED_TRACE(caso);
        Guion guion;
        PonerBase(guion, azar, 6 + azar.Entero(7));
        PonerSistema(guion, azar, azar.Entero(caso % 10 == 0 ? 300 : 25), 1 + azar.Entero(5));
        PonerCondicionadas(guion, azar, 1 + azar.Entero(60));
        CompararTotal(guion.sesion.trabajo, 1 + caso % 6);
        CompararCandidatas(guion.sesion.trabajo);
    }
}

// Runs longer than any vector, on every processor that the kernels are compiled for.
TEST(MedirGarantias, BasesGrandesEnTodosLosProcesadores) {
    Azar azar;
    azar.Sembrar(8);
    for (const auto& [n, k, apuestas] : {std::array{49, 2, 60}, {49, 3, 60}, {40, 4, 25}, {17, 6, 40}, {22, 5, 12}}) {
        SCOPED_TRACE(n);
        Guion guion;
        PonerBase(guion, azar, n);
        PonerSistema(guion, azar, apuestas, 9);
        PonerCondicionadas(guion, azar, n == 17 ? 5000 : 50);
        const auto comparar = [&guion, n = n, k = k] {
            CompararTotal(guion.sesion.trabajo, k);
            if (n <= 22) CompararCandidatas(guion.sesion.trabajo);
        };
        EnCadaProcesador(comparar);
    }
}

// At both sides of the change of counters, with bets that fill them.
TEST(MedirGarantias, LosSistemasGrandesNoDesbordanLosContadores) {
    Azar azar;
    azar.Sembrar(9);
    for (const int apuestas : {65534, 65535, 70001}) {
        for (const int distintas : {1, 5}) {
            SCOPED_TRACE(testing::Message() << apuestas << " bets, " << distintas << " different");
            Guion guion;
            EstadoTrabajo& trabajo = guion.sesion.trabajo;
            PonerBase(guion, azar, 8);
            PonerSistema(guion, azar, apuestas, 1000000);
            for (int i = distintas + 1; i <= apuestas; ++i)
                for (int r = 1; r <= 6; ++r)
                    trabajo.ApuestasReducidas(r, i) = trabajo.ApuestasReducidas(r, 1 + i % distintas);
            PonerCondicionadas(guion, azar, 12);
            CompararTotal(trabajo, 6);
            CompararTotal(trabajo, 3);
            CompararCandidatas(trabajo);
        }
    }
}

TEST(MedirGarantias, UnaParadaEnCadaTurnoDejaLaTablaComoEstaba) {
    Azar azar;
    azar.Sembrar(10);
    Guion guion;
    PonerBase(guion, azar, 14);
    PonerSistema(guion, azar, 2700, 9);
    PonerCondicionadas(guion, azar, 950);
    const EstadoTrabajo& trabajo = guion.sesion.trabajo;
    const auto sistema = MascarasDe(trabajo);
    const auto medir = [&](bool total, Via via, const Turno& turno, TablaGarantias& tabla) {
        const PedidoMedida pedido{sistema, trabajo.NumerosBase, turno, via};
        return total ? MedirTotal(pedido, 6, tabla)
                     : MedirCandidatas(pedido, trabajo.ApuestasCondicionadas, 950, tabla);
    };
    for (const auto& [total, via] : {std::pair{true, Via::Mascaras},
                                     {true, Via::Expansion},
                                     {false, Via::Mascaras},
                                     {false, Via::Sumas},
                                     {false, Via::Expansion}}) {
        SCOPED_TRACE(testing::Message() << total << " way " << static_cast<int>(via));
        int turnos = 0;
        double ultima = 0;
        TablaGarantias tabla;
        ASSERT_TRUE(medir(
            total, via,
            [&](double fraccion) {
                EXPECT_TRUE(fraccion >= 0 && fraccion <= 1);
                ultima = fraccion;
                return ++turnos > 0;
            },
            tabla));
        EXPECT_GE(turnos, 5);
        EXPECT_GT(ultima, 0.5);
        for (int parada = 1; parada <= turnos; parada += 1 + turnos / 50) {
            TablaGarantias intacta;
            int van = 0;
            EXPECT_FALSE(medir(
                total, via, [&](double) { return ++van < parada; }, intacta));
            EXPECT_EQ(van, parada);
            EXPECT_EQ(intacta, TablaGarantias());
        }
    }
}

// Positions that the base does not have, as a table left from another base may hold.
TEST(MedirGarantias, UnaCandidataFueraDeLaBaseNoRompeNada) {
    Azar azar;
    azar.Sembrar(11);
    Guion guion;
    PonerBase(guion, azar, 9);
    PonerSistema(guion, azar, 40, 3);
    PonerCondicionadas(guion, azar, 30);
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    for (int i = 3; i <= 30; i += 3) trabajo.ApuestasCondicionadas(1 + i % 6, i) = static_cast<uint8_t>(40 + i % 9);
    CompararCandidatas(trabajo);
}
