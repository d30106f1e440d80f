#include "LogicaAciertos.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "TablaFiltros.h"

namespace {

constexpr TablaAciertos Con(std::initializer_list<size_t> permitidos) {
    TablaAciertos tabla{};
    for (const size_t i : permitidos) tabla[i] = 1;
    return tabla;
}

} // namespace

TEST(LogicaAciertos, ElSelectorTrabajaEnUnaCopiaYDevuelveAlCerrar) {
    Guion guion;
    LogicaMarco marco{guion.sesion, kDECENAS};
    TablaAciertos tabla = Con({0, 2, 6});
    std::string texto = "0,2,6";

    LogicaAciertos aciertos = AbrirAciertos(tabla, 0);
    aciertos.Pulsar(2);
    aciertos.Pulsar(3);
    EXPECT_EQ(tabla, Con({0, 2, 6}));
    EXPECT_FALSE(marco.Activo());

    CerrarAciertos(aciertos, marco, tabla, texto);
    EXPECT_EQ(tabla, Con({0, 3, 6}));
    EXPECT_EQ(texto, "0,3,6");
    EXPECT_TRUE(marco.Activo());
}

TEST(LogicaAciertos, CerrarSinCambiarNadaActivaElFiltro) {
    Guion guion;
    LogicaMarco marco{guion.sesion, kDECENAS};
    TablaAciertos tabla{};
    std::string texto;
    CerrarAciertos(AbrirAciertos(tabla, 0), marco, tabla, texto);
    EXPECT_TRUE(marco.Activo());
    EXPECT_EQ(tabla, TablaAciertos{});
    EXPECT_EQ(texto, "");
}

TEST(LogicaAciertos, TodosYNingunoTocanSoloLasCasillasQueSeVen) {
    LogicaAciertos aciertos = AbrirAciertos(Con({0, 4}), 1);
    aciertos.imgTodos();
    EXPECT_EQ(aciertos.AciertosSeleccion, Con({0, 1, 2, 3, 4, 5, 6}));
    aciertos.imgNinguno();
    EXPECT_EQ(aciertos.AciertosSeleccion, Con({0}));
    aciertos = AbrirAciertos(Con({4}), 1);
    aciertos.imgTodos();
    EXPECT_EQ(aciertos.AciertosSeleccion, Con({1, 2, 3, 4, 5, 6}));
}

TEST(LogicaAciertos, UnaMarcaQueNoEsUnoNoPermite) {
    const TablaAciertos rara{1, 2, 255, 1, 0, 0, 0};
    EXPECT_EQ(AbrirAciertos(rara, 0).AciertosSeleccion, Con({0, 3}));
}

TEST(LogicaMarco, ElInterruptorCambiaSoloSuFilaYDejaLosParametros) {
    Guion guion;
    guion.sesion.condiciones.SUMAS.intervalos[3] = {21, 100};
    LogicaMarco marco{guion.sesion, kSUMAS};
    EXPECT_EQ(marco.lblActivar(), "Condición desactivada");
    marco.PulsarActivar();
    EXPECT_EQ(marco.lblActivar(), "Condición activada");
    for (int k = 0; k < NFilas; ++k)
        EXPECT_EQ(guion.sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo, k == kSUMAS) << k;
    marco.PulsarActivar();
    EXPECT_FALSE(marco.Activo());
    EXPECT_EQ(guion.sesion.condiciones.SUMAS.intervalos[3], (Intervalo{21, 100}));
}
