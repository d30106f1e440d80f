#include "LogicaReduccion.h"

#include <gtest/gtest.h>

#include "Guion.h"

TEST(LogicaReduccion, AbreConLosAjustesYLosDevuelve) {
    Guion guion;
    AjustesReduccion& ajustes = guion.sesion.trabajo.Reduccion;
    ajustes = {3, 85, 1200, 1, 0, 1, 1};
    const AjustesReduccion antes = ajustes;
    LogicaReduccion l(guion.sesion, guion.entorno);
    l.Abrir();
    EXPECT_FALSE(l.Activo());
    EXPECT_EQ(l.cboPorcentaje, 15);
    EXPECT_TRUE(l.txtNColumnasHabilitado && l.chkApuestasExactasHabilitado && !l.cboPorcentajeHabilitado);
    EXPECT_TRUE(l.PuedeCerrar());
    EXPECT_EQ(ajustes, antes);
    EXPECT_TRUE(l.Activo());
    EXPECT_EQ(guion.sesion.condiciones.lstFiltros[FilaReduccion].NumeroActivos, "al 3");
}

TEST(LogicaReduccion, TocarUnControlActivaLaFila) {
    using Toque = void (*)(LogicaReduccion&);
    const Toque toques[] = {[](LogicaReduccion& l) { l.CambiarTipoReduccion(2); },
                            [](LogicaReduccion& l) { l.CambiarPorcentaje(0); },
                            [](LogicaReduccion& l) { l.PulsarTipo(1); },
                            [](LogicaReduccion& l) { l.CambiarApuestasExactas(true); },
                            [](LogicaReduccion& l) { l.CambiarActivarCiclos(false); },
                            [](LogicaReduccion& l) { l.CambiarAleatorio(true); },
                            [](LogicaReduccion& l) { l.PulsarActivar(); }};
    for (const Toque toque : toques) {
        Guion guion;
        LogicaReduccion l(guion.sesion, guion.entorno);
        l.Abrir();
        l.CambiarNColumnas("7");
        EXPECT_FALSE(l.Activo());
        toque(l);
        EXPECT_TRUE(l.Activo());
    }
}

TEST(LogicaReduccion, ElPorcentajeQuitaElNumeroExacto) {
    Guion guion;
    LogicaReduccion l(guion.sesion, guion.entorno);
    l.Abrir();
    l.PulsarTipo(0);
    l.CambiarApuestasExactas(true);
    l.PulsarTipo(1);
    EXPECT_FALSE(l.chkApuestasExactas);
    EXPECT_TRUE(!l.txtNColumnasHabilitado && !l.chkApuestasExactasHabilitado && l.cboPorcentajeHabilitado);
}

TEST(LogicaReduccion, ElNumeroDeApuestasQueNoCabeSeRechaza) {
    struct {
        const char* texto;
        int32_t guardado; // -1: refused
    } const casos[] = {{"", 1},    {"  ", 1},  {"0", 0}, {"2147483647", 2147483647}, {"2147483648", -1},
                       {"-3", -1}, {"12a", -1}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.texto);
        Guion guion;
        guion.sesion.trabajo.Reduccion.NApuestasExactas = 33;
        LogicaReduccion l(guion.sesion, guion.entorno);
        l.Abrir();
        l.CambiarNColumnas(caso.texto);
        EXPECT_EQ(l.PuedeCerrar(), caso.guardado >= 0);
        EXPECT_EQ(guion.sesion.trabajo.Reduccion.NApuestasExactas, caso.guardado >= 0 ? caso.guardado : 33);
        EXPECT_EQ(guion.Cajas.size(), caso.guardado >= 0 ? 0u : 1u);
    }
}

TEST(LogicaReduccion, SinTipoDeReduccionLaFilaQuedaApagada) {
    Guion guion;
    LogicaReduccion l(guion.sesion, guion.entorno);
    l.Abrir();
    l.PulsarTipo(0);
    EXPECT_TRUE(l.PuedeCerrar());
    EXPECT_FALSE(l.Activo());
    EXPECT_EQ(LogicaReduccion::TextoTipoReduccion(0), "Sin reducción");
    EXPECT_EQ(LogicaReduccion::TextoTipoReduccion(4), "Reducción al 2");
    EXPECT_EQ(LogicaReduccion::TextoPorcentaje(0), "Asegurar el 100%");
    EXPECT_EQ(LogicaReduccion::TextoPorcentaje(99), "Asegurar el 1%");
}
