// The four dialogs whose values are typed, and validated when the dialog closes.
#include <gtest/gtest.h>

#include "Guion.h"
#include "LogicaFiltroDISTANCIAS.h"
#include "LogicaFiltroSUMAS.h"
#include "LogicaFiltroSUMASPORTRIOS.h"
#include "LogicaFiltroTERMINACIONES.h"

namespace {

struct Cambio {
    size_t i;
    std::string minimo, maximo;
};

struct Caso {
    std::vector<Cambio> cambios;
    std::string caja; ///< empty: accepted
};

Textos Esperadas(const Caso& caso) {
    return caso.caja.empty() ? Textos{} : Textos{"[X] ERROR: " + caso.caja};
}

} // namespace

TEST(LogicaFiltroSUMAS, ValidacionAlCerrar) {
    const std::string menor21 = "La suma mínima de los intervalos activados(<>0) debe ser mayor que 21";
    const std::string mayor279 = "La suma máxima de los intervalos activados(<>0) debe ser menor que 279";
    const std::string orden = "La suma mínima de un intervalo no puede ser mayor que la suma máxima";
    const std::string nulos = "No se permiten valores nulos en los intervalos";
    const Caso casos[] = {
        {{}, ""},
        {{{0, "21", "279"}}, ""},
        {{{9, "150", "150"}}, ""},
        {{{4, "0", "0"}, {5, "100", "150"}}, ""},
        {{{0, "0", "100"}}, menor21},
        {{{0, "20", "21"}}, menor21},
        {{{0, "20", "500"}}, menor21},
        {{{0, "21", "280"}}, mayor279},
        {{{0, "300", "280"}}, mayor279},
        {{{0, "21", "20"}}, orden},
        {{{0, "40000", "0"}}, orden},
        {{{0, "21", "99999999999999999999"}}, mayor279},
        {{{3, "", "5"}}, nulos},
        {{{3, "21", "  "}}, nulos},
        {{{2, "", "0"}, {1, "20", "30"}}, menor21},
        {{{1, "", "0"}, {2, "20", "30"}}, nulos},
    };
    for (const Caso& caso : casos) {
        Guion guion;
        const Intervalo antes{50, 60};
        guion.sesion.condiciones.SUMAS.intervalos[7] = antes;
        LogicaFiltroSUMAS logica{guion.sesion, guion.entorno};
        logica.Abrir();
        EXPECT_EQ(logica.txtSumaMinima[7], "50");
        logica.CambiarMinima(7, "70");
        logica.CambiarMaxima(7, "80");
        for (const Cambio& c : caso.cambios) {
            logica.txtSumaMinima[c.i] = c.minimo;
            logica.txtSumaMaxima[c.i] = c.maximo;
        }
        EXPECT_EQ(logica.PuedeCerrar(), caso.caja.empty());
        EXPECT_EQ(guion.Cajas, Esperadas(caso));
        EXPECT_EQ(guion.sesion.condiciones.SUMAS.intervalos[7], caso.caja.empty() ? (Intervalo{70, 80}) : antes);
        EXPECT_EQ(logica.txtSumaMaxima[7], "80");
        if (!caso.cambios.empty()) {
            EXPECT_EQ(logica.txtSumaMinima[caso.cambios[0].i], caso.cambios[0].minimo);
        }
    }
}

TEST(LogicaFiltroSUMAS, UnaTeclaActivaYSoloQuedanLasCifras) {
    Guion guion;
    LogicaFiltroSUMAS logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_FALSE(logica.marco.Activo());
    logica.CambiarMinima(0, "0");
    EXPECT_TRUE(logica.marco.Activo());
    logica.CambiarMaxima(0, " 1-2a.ñ3\b\x1B");
    EXPECT_EQ(logica.txtSumaMaxima[0], "123");
}

TEST(LogicaFiltroSUMASPORTRIOS, ValidacionAlCerrar) {
    const std::string t1 = " (Tres primeros números)", t2 = " (Tres últimos números)";
    const std::string nulos = "No se permiten valores nulos en los intervalos";
    const std::string orden = "La suma mínima de un intervalo no puede ser mayor que la suma máxima";
    const std::string exceso = "La suma máxima de un intervalo no puede ser mayor que 32767";
    // Indices 0 to 4 are the intervals of the three first numbers, 5 to 9 those of the three last.
    const Caso casos[] = {
        {{}, ""},
        {{{0, "0", "500"}, {9, "7", "7"}}, ""},
        {{{0, "0", "32767"}}, ""},
        {{{0, "", "0"}, {5, "", "0"}}, nulos + t1},
        {{{0, "9", "5"}, {5, " ", "0"}}, nulos + t2},
        {{{0, "9", "5"}, {5, "9", "5"}}, orden + t1},
        {{{5, "9", "0"}, {1, "", "0"}}, orden + t2},
        {{{0, "0", "32768"}}, exceso + t1},
        {{{7, "40000", "40000"}}, exceso + t2},
        {{{7, "0", "99999999999"}}, exceso + t2},
        {{{0, "0", "32768"}, {4, "2", "1"}}, orden + t1},
    };
    for (const Caso& caso : casos) {
        Guion guion;
        LogicaFiltroSUMASPORTRIOS logica{guion.sesion, guion.entorno};
        logica.Abrir();
        logica.CambiarMinimaT1(3, "6");
        logica.CambiarMaximaT1(3, "60");
        logica.CambiarMinimaT2(3, "7");
        logica.CambiarMaximaT2(3, "70");
        for (const Cambio& c : caso.cambios) {
            (c.i < 5 ? logica.txtSumaMinimaT1 : logica.txtSumaMinimaT2)[c.i % 5] = c.minimo;
            (c.i < 5 ? logica.txtSumaMaximaT1 : logica.txtSumaMaximaT2)[c.i % 5] = c.maximo;
        }
        EXPECT_EQ(logica.PuedeCerrar(), caso.caja.empty());
        EXPECT_EQ(guion.Cajas, Esperadas(caso));
        const RegistroSUMASPORTRIOS& registro = guion.sesion.condiciones.SUMASPORTRIOS;
        EXPECT_EQ(registro.intervalosT1[3], caso.caja.empty() ? (Intervalo{6, 60}) : Intervalo{});
        EXPECT_EQ(registro.intervalosT2[3], caso.caja.empty() ? (Intervalo{7, 70}) : Intervalo{});
        EXPECT_TRUE(logica.marco.Activo());
    }
}

TEST(LogicaFiltroDISTANCIAS, ValidacionAlCerrar) {
    const std::string orden = "La distancia máxima debe ser mayor que la mínima";
    const Caso casos[] = {
        {{}, ""},
        {{{0, "1", "1"}, {5, "5", "48"}}, ""},
        {{{0, "0", "32767"}}, ""},
        {{{5, "", "1"}, {0, "0", ""}}, "algún valor de distancia mínima esta en blanco"},
        {{{0, "9", "1"}, {5, "0", " "}}, "algún valor de distancia máxima esta en blanco"},
        {{{0, "2", "1"}, {1, "2", "1"}}, orden + "(números 1 y 2)"},
        {{{1, "2", "1"}, {2, "2", "1"}}, orden + "(números 2 y 3)"},
        {{{2, "2", "1"}, {3, "2", "1"}}, orden + "(números 3 y 4)"},
        {{{3, "2", "1"}, {4, "2", "1"}}, orden + "(números 4 y 5)"},
        {{{4, "2", "1"}, {5, "2", "1"}}, orden + "(números 5 y 6)"},
        {{{5, "40000", "0"}}, orden + "(números del 1 al 6)"},
        {{{2, "0", "32768"}}, "La distancia máxima no puede ser mayor que 32767(números 3 y 4)"},
    };
    for (const Caso& caso : casos) {
        Guion guion;
        guion.sesion.condiciones.DISTANCIAS.Distancia[0] = {3, 30};
        LogicaFiltroDISTANCIAS logica{guion.sesion, guion.entorno};
        logica.Abrir();
        EXPECT_EQ(logica.txtDistanciaMax[0], "30");
        logica.txtDistanciaMin[0] = logica.txtDistanciaMax[0] = "7";
        for (const Cambio& c : caso.cambios) {
            logica.CambiarMin(c.i, c.minimo);
            logica.CambiarMax(c.i, c.maximo);
        }
        EXPECT_EQ(logica.marco.Activo(), !caso.cambios.empty());
        EXPECT_EQ(logica.PuedeCerrar(), caso.caja.empty());
        EXPECT_EQ(guion.Cajas, Esperadas(caso));
        if (!caso.caja.empty()) {
            EXPECT_EQ(guion.sesion.condiciones.DISTANCIAS.Distancia[0], (Intervalo{3, 30}));
        } else if (caso.cambios.empty()) {
            EXPECT_EQ(guion.sesion.condiciones.DISTANCIAS.Distancia[0], (Intervalo{7, 7}));
        }
    }
}

TEST(LogicaFiltroTERMINACIONES, ValidacionAlCerrar) {
    const Caso casos[] = {
        {{}, ""},
        {{{0, "0", "255"}}, ""},
        {{{0, "53", "53"}}, ""},
        {{{0, "", ""}}, "el valor de la suma de terminaciones mínima esta en blanco"},
        {{{0, "2", ""}}, "el valor de la suma de terminaciones máxima esta en blanco"},
        {{{0, "300", "299"}}, "la suma de terminaciones máxima debe ser mayor que la mínima"},
        {{{0, "0", "256"}}, "la suma de terminaciones máxima no puede ser mayor que 255"},
        {{{0, "258", "309"}}, "la suma de terminaciones máxima no puede ser mayor que 255"},
    };
    for (const Caso& caso : casos) {
        Guion guion;
        const RegistroTERMINACIONES& registro = guion.sesion.condiciones.TERMINACIONES;
        LogicaFiltroTERMINACIONES logica{guion.sesion, guion.entorno};
        logica.Abrir();
        EXPECT_EQ(logica.txtSumaTerminacionesMinimo, "2");
        EXPECT_EQ(logica.txtSumaTerminacionesMaximo, "53");
        for (const Cambio& c : caso.cambios) {
            logica.CambiarMinimo(c.minimo);
            logica.CambiarMaximo(c.maximo);
        }
        logica.PulsarFigura(9, true);
        LogicaAciertos aciertos = logica.AbrirModificar(7);
        aciertos.Pulsar(0);
        logica.CerrarModificar(7, aciertos);
        EXPECT_EQ(TextoLista(registro.FigurasTerminaciones), "");

        EXPECT_EQ(logica.PuedeCerrar(), caso.caja.empty());
        EXPECT_EQ(guion.Cajas, Esperadas(caso));
        EXPECT_EQ(TextoLista(registro.FigurasTerminaciones), caso.caja.empty() ? "9" : "");
        EXPECT_EQ(TextoLista(registro.TerminadosEn[7]), "0");
        const bool cambiada = caso.caja.empty() && !caso.cambios.empty();
        EXPECT_EQ(std::to_string(registro.SumaMinima), cambiada ? caso.cambios[0].minimo : "2");
        EXPECT_EQ(std::to_string(registro.SumaMaxima), cambiada ? caso.cambios[0].maximo : "53");
        EXPECT_TRUE(logica.marco.Activo());
    }
}
