#include "LogicaAbrirFila.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "Sesiones.h"
#include "TablaFiltros.h"

TEST(AbrirFila, EurodreamsRechazaCincoFilas) {
    Guion guion;
    CambiarJuego(guion.sesion, EURODREAMS);
    std::vector<int> abiertas;
    for (int k = 0; k < NFilas; ++k) {
        guion.sesion.trabajo.CombinacionGuardada = true;
        const bool abierta = AbrirFila(guion.sesion, guion.entorno, k, [&] { abiertas.push_back(k); });
        EXPECT_EQ(abierta, !abiertas.empty() && abiertas.back() == k) << k;
        EXPECT_FALSE(guion.sesion.trabajo.CombinacionGuardada) << k;
    }
    EXPECT_EQ(abiertas, (std::vector<int>{0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 14, 15, 16, 18, 19}));
    EXPECT_EQ(guion.Cajas, Textos(5, "[!] AVISO: FILTRO NO PERMITIDO PARA EL JUEGO EURODREAMS"));
}

TEST(AbrirFila, LosOtrosJuegosAbrenLasVeinte) {
    Guion guion;
    for (const int juego : {PRIMITIVA, BONOLOTO}) {
        CambiarJuego(guion.sesion, juego);
        int abiertas = 0;
        for (int k = 0; k < NFilas; ++k) AbrirFila(guion.sesion, guion.entorno, k, [&] { ++abiertas; });
        EXPECT_EQ(abiertas, NFilas);
    }
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(AbrirFila, UnaFilaConBloquesSeRehaceYConservaSuEstado) {
    Guion guion;
    Condiciones& c = guion.sesion.condiciones;
    c.lstFiltros[kGRUPOS].Activo = c.lstFiltros[kSUMAS].Activo = true;
    c.EliminadasPorFiltro[kSUMAS] = 1204;
    c.lstFiltros[kALTOSBAJOS].Eliminadas = 7;
    AbrirFila(guion.sesion, guion.entorno, kGRUPOS, [&] { c.GRUPOS.grupo[209].aciertos[0] = 1; });
    EXPECT_EQ(TextoFila(c.lstFiltros[kGRUPOS], kGRUPOS, '.'), "Sí   Grupos de Números     1 de 210           0");
    EXPECT_EQ(c.lstFiltros[kSUMAS].Eliminadas, 1204);
    EXPECT_FALSE(c.lstFiltros[kALTOSBAJOS].Eliminadas.has_value());
}

TEST(AbrirFila, UnaFilaSinBloquesDejaLaColumnaDeEliminadas) {
    Guion guion;
    Condiciones& c = guion.sesion.condiciones;
    c.lstFiltros[kALTOSBAJOS].Eliminadas = 7;
    AbrirFila(guion.sesion, guion.entorno, kSUMAS, [&] { c.lstFiltros[kSUMAS].Activo = true; });
    EXPECT_EQ(c.lstFiltros[kALTOSBAJOS].Eliminadas, 7);
    EXPECT_TRUE(c.lstFiltros[kSUMAS].Activo);
}

TEST(AbrirFila, LaFilaDeLaReduccionSigueASuTipo) {
    Guion guion;
    FilaFiltro& fila = guion.sesion.condiciones.lstFiltros[FilaReduccion];
    AjustesReduccion& reduccion = guion.sesion.trabajo.Reduccion;
    AbrirFila(guion.sesion, guion.entorno, FilaReduccion, [&] { reduccion.TipoReduccion = 2; });
    EXPECT_EQ(TextoFila(fila, FilaReduccion, '.'), "Sí   Reducción             al 4               -");
    AbrirFila(guion.sesion, guion.entorno, FilaReduccion, [&] { reduccion.TipoReduccion = 0; });
    EXPECT_EQ(TextoFila(fila, FilaReduccion, '.'), "No   Reducción             -                  -");
}
