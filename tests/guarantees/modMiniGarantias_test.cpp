#include <fmt/format.h>
#include <gtest/gtest.h>

#include "DadosFiltros.h"
#include "GarantiasLiteral.h"
#include "Sistemas.h"
#include "modGeneral.h"
#include "modMiniGarantias.h"

namespace {

bool SinParar(int, double) {
    return true;
}

// The whole report from the literal counts.
std::string InformeLiteral(const EstadoTrabajo& trabajo) {
    std::string informe = "DETALLE DE MINI GARANTIAS\r\n";
    for (int y = 2; y <= 6; ++y) {
        const std::vector<int> contador = MiniGarantiasLiteral(trabajo, y);
        const auto m = static_cast<double>(Combinaciones(trabajo.NumerosBase, static_cast<int16_t>(y)));
        for (int x = y; x >= 2; --x)
            informe += fmt::format("{}% {} si {} ({} Apu.)\r\n", Formato000(contador[x] * 100 / m), x, y, contador[x]);
        informe += "\r\n";
    }
    return informe;
}

} // namespace

TEST(MiniGarantias, SistemasAlAzarContraElBucleLiteral) {
    Azar azar;
    azar.Sembrar(3);
    for (int caso = 0; caso < 150; ++caso) {
        SCOPED_TRACE(caso);
        Guion guion;
        PonerBase(guion, azar, 6 + azar.Entero(6));
        PonerSistema(guion, azar, azar.Entero(caso % 10 == 0 ? 200 : 6), 1 + azar.Entero(5));
        EXPECT_EQ(MiniGarantias(6, guion.sesion.trabajo, SinParar), InformeLiteral(guion.sesion.trabajo));
    }
}

TEST(MiniGarantias, UnaBaseGrandeEnTodosLosProcesadores) {
    Azar azar;
    azar.Sembrar(4);
    Guion guion;
    PonerBase(guion, azar, 20);
    PonerSistema(guion, azar, 12, 5);
    const std::string esperado = InformeLiteral(guion.sesion.trabajo);
    EnCadaProcesador([&] { EXPECT_EQ(MiniGarantias(6, guion.sesion.trabajo, SinParar), esperado); });
}

TEST(MiniGarantias, SinSistemaTodoEsCeroYConTodoElBoletoTodoEsCien) {
    Guion guion;
    guion.MarcarHasta(6);
    LeerBase(guion.sesion.trabajo);
    const std::string vacio = MiniGarantias(6, guion.sesion.trabajo, SinParar);
    EXPECT_NE(vacio.find("000.000% 6 si 6 (0 Apu.)\r\n"), std::string::npos) << vacio;
    guion.sesion.trabajo.ApuestasReducidas.Dimensionar(7, 1);
    guion.sesion.trabajo.Contador.Reducidas = 1;
    for (int r = 1; r <= 6; ++r) guion.sesion.trabajo.ApuestasReducidas(r, 1) = static_cast<uint8_t>(r);
    double ultima = 0;
    const std::string una = MiniGarantias(6, guion.sesion.trabajo, [&](int, double fraccion) {
        ultima = fraccion;
        return true;
    });
    EXPECT_TRUE(una.starts_with("DETALLE DE MINI GARANTIAS\r\n100.000% 2 si 2 (15 Apu.)\r\n\r\n100.000% 3 si 3 (20 "
                                "Apu.)\r\n100.000% 2 si 3 (20 Apu.)\r\n\r\n"))
        << una;
    EXPECT_TRUE(una.ends_with("100.000% 6 si 6 (1 Apu.)\r\n100.000% 5 si 6 (1 Apu.)\r\n100.000% 4 si 6 (1 Apu.)\r\n"
                              "100.000% 3 si 6 (1 Apu.)\r\n100.000% 2 si 6 (1 Apu.)\r\n\r\n"))
        << una;
    EXPECT_EQ(ultima, 1) << "a single subset is all of them";
}

TEST(MiniGarantias, UnaParadaBorraLoHecho) {
    Azar azar;
    azar.Sembrar(5);
    Guion guion;
    PonerBase(guion, azar, 20);
    PonerSistema(guion, azar, 30, 5);
    int turnos = 0;
    MiniGarantias(6, guion.sesion.trabajo, [&](int, double) { return ++turnos > 0; });
    EXPECT_GT(turnos, 20);
    for (int parada = 1; parada <= turnos; ++parada) {
        int van = 0;
        EXPECT_EQ(MiniGarantias(6, guion.sesion.trabajo, [&](int, double) { return ++van < parada; }),
                  "Proceso de cálculo de mini garantías detenido");
        EXPECT_EQ(van, parada);
    }
}

TEST(Formato000, RedondeaLasMitadesHaciaArriba) {
    for (const auto& [valor, texto] : {std::pair{0.0, "000.000"},
                                       {100.0, "100.000"},
                                       {99.99999999999999, "100.000"},
                                       {1.5625, "001.563"},
                                       {1.0005, "001.001"},
                                       {0.0005, "000.001"},
                                       {0.00049999, "000.000"},
                                       {94.2857142857, "094.286"}})
        EXPECT_EQ(Formato000(valor), texto) << valor;
}
