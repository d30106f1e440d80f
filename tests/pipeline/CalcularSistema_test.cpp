#include "CalcularSistema.h"

#include <gtest/gtest.h>

#include "Guion.h"

TEST(CalcularSistema, SinCondicionesElSistemaEsLaExpansionEnOrden) {
    Guion guion;
    guion.Marcar({3, 7, 9, 15, 22, 40, 41});
    guion.MarcarDigitos({4});
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    const auto apuestas = Apuestas(guion.sesion.trabajo.ApuestasReducidas, 7);
    ASSERT_EQ(apuestas.size(), 7u);
    EXPECT_EQ(apuestas.front(), (Apuesta{3, 7, 9, 15, 22, 40, 4}));
    EXPECT_EQ(apuestas.back(), (Apuesta{7, 9, 15, 22, 40, 41, 4}));
}
