#include "LogicaAlazar.h"

#include <gtest/gtest.h>

#include "Boleto.h"
#include "Guion.h"
#include "Sesiones.h"
#include "Version.h"

TEST(LogicaAlazar, MarcaLosPedidosYNuncaMasQueElBoleto) {
    Guion guion;
    CambiarJuego(guion.sesion, EURODREAMS);
    guion.MarcarDigitos({3});
    LogicaAlazar logica{guion.sesion.trabajo};
    EXPECT_EQ(logica.cboNumeros, 6);
    for (const auto& [pedidos, marcados] : {std::pair{6, 6}, {1, 1}, {40, 40}, {49, 40}, {0, 1}}) {
        guion.sesion.trabajo.CombinacionGuardada = true;
        logica.cboNumeros = pedidos;
        logica.Marcar();
        EXPECT_EQ(ContarBase(guion.sesion.trabajo), marcados);
        EXPECT_FALSE(guion.sesion.trabajo.CombinacionGuardada);
        EXPECT_TRUE(guion.sesion.trabajo.lblReintegro[3]);
    }
}

TEST(Version, LaFechaTieneDiaMesYAnio) {
    const std::string fecha = FechaCompilacion();
    ASSERT_EQ(fecha.size(), 10u) << fecha;
    const int dia = std::stoi(fecha), mes = std::stoi(fecha.substr(3)), anio = std::stoi(fecha.substr(6));
    EXPECT_TRUE(dia >= 1 && dia <= 31 && mes >= 1 && mes <= 12 && anio >= 2024) << fecha;
}
