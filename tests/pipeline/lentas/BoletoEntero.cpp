// The expansion of whole tickets: every bet stands at the place that its sequence number gives.
#include <gtest/gtest.h>

#include "Boleto.h"
#include "GenerarApuestas.h"
#include "Guion.h"
#include "modCSN.h"

namespace {

void ComprobarLugares(int n, int32_t total) {
    Guion guion;
    guion.MarcarHasta(n);
    LeerBase(guion.sesion.trabajo);
    GenerarApuestas(guion.sesion.trabajo, guion.entorno, 6, 6);
    const Tabla& tabla = guion.sesion.trabajo.TablaApuestas;
    ASSERT_EQ(tabla.Apuestas(), total);
    EXPECT_EQ(guion.Turnos, total / 500);
    for (int32_t i = 1; i <= total; ++i) {
        std::array<uint8_t, 6> c;
        for (int r = 1; r <= 6; ++r) c[static_cast<size_t>(r - 1)] = tabla(r, i);
        ASSERT_EQ(CombinacionaCSN(6, static_cast<int16_t>(n), c.data()), i);
    }
}

} // namespace

TEST(BoletoEntero, DeCuarenta) {
    ComprobarLugares(40, 3838380);
}

TEST(BoletoEntero, DeCuarentaYNueve) {
    ComprobarLugares(49, 13983816);
}
