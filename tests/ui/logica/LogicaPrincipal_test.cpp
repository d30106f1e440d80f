#include "LogicaPrincipal.h"

#include <gtest/gtest.h>

#include "Guion.h"

TEST(LogicaPrincipal, CerrarPreguntaSoloSinGuardarYSeNiegaCalculando) {
    Guion guion;
    LogicaPrincipal logica{guion.sesion, guion.entorno};
    EXPECT_TRUE(logica.PuedeCerrar());
    guion.sesion.trabajo.CombinacionGuardada = false;
    EXPECT_FALSE(logica.PuedeCerrar());
    guion.Respuestas = {true};
    EXPECT_TRUE(logica.PuedeCerrar());
    const Textos preguntadas = guion.Cajas;
    guion.sesion.trabajo.EstadoCalculando = true;
    EXPECT_FALSE(logica.PuedeCerrar());
    EXPECT_EQ(guion.Cajas, preguntadas);
    const std::string texto = "[?] NO HA GUARDADO LA COMBINACION ACTUAL EN XML, ¿ DESEA SALIR DE TODAS FORMAS ?";
    EXPECT_EQ(preguntadas, (Textos{texto + " -> no", texto + " -> sí"}));
}
