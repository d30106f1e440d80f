#include "LogicaAnalisis.h"

#include <random>

#include <gtest/gtest.h>

#include "CalcularSistema.h"
#include "Guion.h"
#include "Sesiones.h"

namespace {

struct Analisis : Guion {
    LogicaAnalisis logica{sesion, entorno};

    // A final system of these bets, the digit the seventh of each.
    void Poner(const std::vector<Apuesta>& apuestas) {
        Tabla& tabla = sesion.trabajo.ApuestasReducidas;
        tabla.Dimensionar(7, static_cast<int64_t>(apuestas.size()));
        for (size_t i = 0; i < apuestas.size(); ++i)
            for (size_t r = 0; r < 7; ++r)
                tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
        Abrir(static_cast<int32_t>(apuestas.size()));
    }
    void Abrir(int32_t apuestas) {
        logica.publicApuestasAnalizar = apuestas;
        logica.Abrir();
    }
};

// Three bets: 1 in all of them, 49 in one.
const std::vector<Apuesta> Tres{{1, 2, 3, 4, 5, 6, 7}, {1, 2, 10, 20, 30, 40, 7}, {1, 3, 4, 5, 6, 49, 0}};

} // namespace

TEST(LogicaAnalisis, CuentaLoMismoQueUnaCuentaLiteral) {
    std::mt19937 azar(11);
    for (const size_t apuestas : {1u, 3u, 4u, 257u, 5000u}) {
        std::vector<Apuesta> sistema(apuestas);
        for (Apuesta& apuesta : sistema) {
            std::vector<int> numeros(49);
            for (int n = 0; n < 49; ++n) numeros[static_cast<size_t>(n)] = n + 1;
            std::shuffle(numeros.begin(), numeros.end(), azar);
            apuesta.assign(numeros.begin(), numeros.begin() + 6);
            apuesta.push_back(static_cast<int>(azar() % 10));
        }
        Analisis a;
        a.Poner(sistema);
        const auto menos = static_cast<int32_t>(apuestas / 2);
        for (const int32_t analizadas : {static_cast<int32_t>(apuestas), menos}) {
            a.Abrir(analizadas);
            std::array<int32_t, 50> numeros{};
            std::array<int32_t, 10> digitos{};
            for (size_t i = 0; i < static_cast<size_t>(analizadas); ++i) {
                for (size_t r = 0; r < 6; ++r) ++numeros[static_cast<size_t>(sistema[i][r])];
                ++digitos[static_cast<size_t>(sistema[i][6])];
            }
            EXPECT_EQ(a.logica.Numeros, numeros);
            EXPECT_EQ(a.logica.Digitos, digitos);
        }
    }
}

TEST(LogicaAnalisis, CuentasYPorcentajesDeIdaYVuelta) {
    Analisis a;
    a.Poner(Tres);
    EXPECT_EQ(a.logica.TituloDigitos, "Análisis de los Reintegros");
    EXPECT_EQ(a.logica.ConsejoSwitch(), "Ver porcentajes");
    EXPECT_EQ(a.logica.lblN[1], "3");
    EXPECT_EQ(a.logica.lblN[49], "1");
    EXPECT_EQ(a.logica.lblN[7], "");
    EXPECT_TRUE(a.logica.lblNConApuestas[49]);
    EXPECT_FALSE(a.logica.lblNConApuestas[7]);
    EXPECT_EQ(a.logica.lblR[7], "2");
    a.sesion.trabajo.ApuestasReducidas(1, 1) = 7; // a switch does not count again
    a.logica.Cambiar();
    EXPECT_EQ(a.logica.ConsejoSwitch(), "Ver número de apuestas");
    EXPECT_EQ(a.logica.lblN[1], "100%");
    EXPECT_EQ(a.logica.lblN[2], "66,67%");
    EXPECT_EQ(a.logica.lblN[49], "33,33%");
    EXPECT_EQ(a.logica.lblN[7], "");
    EXPECT_EQ(a.logica.lblR[0], "33,33%");
    a.logica.Cambiar();
    EXPECT_EQ(a.logica.lblN[1], "3");
}

TEST(LogicaAnalisis, LosDosDecimalesSeRedondeanEnEnteros) {
    struct Caso {
        int32_t apuestas, todas;
        std::string esperado;
    };
    Analisis a;
    for (const Caso& caso : {Caso{1, 8, "12,5%"},
                             {1, 16, "6,25%"},
                             {1, 32, "3,13%"},  // 3.125
                             {1, 800, "0,13%"}, // 0.125
                             {1712304, 13983816, "12,24%"},
                             {13983816, 13983816, "100%"},
                             {1, 13983816, "0%"}}) {
        a.logica.publicApuestasAnalizar = caso.todas;
        EXPECT_EQ(a.logica.Porcentaje(caso.apuestas), caso.esperado);
    }
}

TEST(LogicaAnalisis, ElMapaVaDelMenosAlMasJugado) {
    Analisis a;
    a.Poner(Tres);
    EXPECT_EQ(a.logica.Calor(1), 1.0);
    EXPECT_EQ(a.logica.Calor(2), 0.5);
    EXPECT_EQ(a.logica.Calor(49), 0.0);
    EXPECT_EQ(a.logica.Calor(7), std::nullopt);
    EXPECT_EQ(a.logica.lblMenor, "1");
    EXPECT_EQ(a.logica.lblMayor, "3");
    a.logica.Cambiar();
    EXPECT_EQ(a.logica.lblMayor, "100%");
    EXPECT_EQ(a.logica.ConsejoNumero(1), "Número 1: 3 apuestas, 100%");
    EXPECT_EQ(a.logica.ConsejoNumero(49), "Número 49: 1 apuesta, 33,33%");
    EXPECT_EQ(a.logica.ConsejoDigito(7), "Reintegro 7: 2 apuestas, 66,67%");
    a.Poner({Tres[0]});
    EXPECT_EQ(a.logica.Calor(1), 0.5); // all alike
}

TEST(LogicaAnalisis, ElInformeDeCadaJuego) {
    Analisis a;
    a.Poner(Tres);
    EXPECT_EQ(a.logica.TextoInforme(), "TOMBOLERA ANALISIS:\n\nNUMEROS\n\n"
                                       "            10 1        20 1        30 1        40 1\n"
                                       "1 3         11 --       21 --       31 --       41 --\n"
                                       "2 2         12 --       22 --       32 --       42 --\n"
                                       "3 2         13 --       23 --       33 --       43 --\n"
                                       "4 2         14 --       24 --       34 --       44 --\n"
                                       "5 2         15 --       25 --       35 --       45 --\n"
                                       "6 2         16 --       26 --       36 --       46 --\n"
                                       "7 --        17 --       27 --       37 --       47 --\n"
                                       "8 --        18 --       28 --       38 --       48 --\n"
                                       "9 --        19 --       29 --       39 --       49 1\n"
                                       "\nREINTEGROS\n0 1\n1 --\n2 --\n3 --\n4 --\n5 --\n6 --\n7 2\n8 --\n9 --\n");
    CambiarJuego(a.sesion, BONOLOTO);
    a.Poner(Tres);
    EXPECT_EQ(a.logica.TituloDigitos, "");
    EXPECT_TRUE(a.logica.TextoInforme().ends_with("39 --       49 1\n"));

    CambiarJuego(a.sesion, EURODREAMS);
    a.Poner({{1, 2, 3, 4, 5, 40, 5}, {1, 2, 3, 4, 39, 41, 1}}); // 41 only from a file
    a.logica.Cambiar();
    EXPECT_EQ(a.logica.TituloDigitos, "Análisis de los Sueños");
    EXPECT_EQ(a.logica.lblN[41], "");
    EXPECT_EQ(a.logica.TextoInforme(), "TOMBOLERA ANALISIS:\n\nNUMEROS\n\n"
                                       "01 100%      -- 02 100%      -- 03 100%      -- 04 100%      -- 05 50%\n"
                                       "06 --        -- 07 --        -- 08 --        -- 09 --        -- 10 --\n"
                                       "11 --        -- 12 --        -- 13 --        -- 14 --        -- 15 --\n"
                                       "16 --        -- 17 --        -- 18 --        -- 19 --        -- 20 --\n"
                                       "21 --        -- 22 --        -- 23 --        -- 24 --        -- 25 --\n"
                                       "26 --        -- 27 --        -- 28 --        -- 29 --        -- 30 --\n"
                                       "31 --        -- 32 --        -- 33 --        -- 34 --        -- 35 --\n"
                                       "36 --        -- 37 --        -- 38 --        -- 39 50%       -- 40 50%\n"
                                       "\nSUEÑOS\n1 50%\n2 --\n3 --\n4 --\n5 50%\n");
}

TEST(LogicaAnalisis, LaTablaLlevaLasDosVistas) {
    Analisis a;
    CambiarJuego(a.sesion, EURODREAMS);
    a.Poner({{1, 2, 3, 4, 5, 40, 5}, {1, 2, 3, 4, 39, 40, 1}});
    const std::string tabla = a.logica.TextoTabla();
    EXPECT_TRUE(tabla.starts_with("Número\tApuestas\tPorcentaje\n1\t2\t100%\n2\t2\t100%\n")) << tabla;
    EXPECT_NE(tabla.find("\n5\t1\t50%\n6\t0\t0%\n"), std::string::npos);
    EXPECT_TRUE(tabla.ends_with("\n40\t2\t100%\nSueño\tApuestas\tPorcentaje\n1\t1\t50%\n2\t0\t0%\n3\t0\t0%\n4\t0\t0%\n"
                                "5\t1\t50%\n"))
        << tabla;
    CambiarJuego(a.sesion, BONOLOTO);
    EXPECT_TRUE(a.logica.TextoTabla().ends_with("\n49\t0\t0%\n"));
}

TEST(LogicaAnalisis, EscribeLoQueSeVeYCallaSiNoPuede) {
    const CarpetaTemporal carpeta;
    Analisis a;
    a.entorno.CarpetaInformes = carpeta.Ruta();
    a.Poner(Tres);
    a.logica.Cambiar();
    a.logica.VerAnalisis();
    const std::string bytes = LeerTodo(carpeta.Ruta("TOMBOLERA_ANALISIS.txt"));
    EXPECT_NE(bytes.find("\r\n1 100%      11 --"), std::string::npos) << bytes;
    EXPECT_TRUE(bytes.ends_with("\r\n9 --\r\n"));
    EXPECT_EQ(a.Informes, Textos{carpeta.Ruta("TOMBOLERA_ANALISIS.txt")});
    a.entorno.CarpetaInformes = carpeta.Ruta("no-hay");
    a.logica.VerAnalisis();
    EXPECT_EQ(a.Informes.size(), 1u);
    EXPECT_EQ(a.Cajas, Textos{});
}

TEST(LogicaAnalisis, TrasUnCalculoSinReduccionEsElSistemaCondicionado) {
    Analisis a;
    a.Marcar({1, 2, 3, 4, 5, 6, 7, 8});
    a.MarcarDigitos({4});
    ASSERT_TRUE(CalcularSistema(a.sesion, a.entorno));
    a.Abrir(a.sesion.trabajo.Contador.Reducidas);
    EXPECT_EQ(a.logica.Numeros[8], 21); // C(7,5)
    EXPECT_EQ(a.logica.Digitos[4], 28);
}
