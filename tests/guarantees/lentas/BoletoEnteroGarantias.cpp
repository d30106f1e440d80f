// The whole ticket, 13,983,816 draws, where the counts are known without a measure.
#include <gtest/gtest.h>

#include <cmath>

#include "Boleto.h"
#include "GenerarApuestas.h"
#include "Guion.h"
#include "LogicaGarantias.h"
#include "Supervivientes.h"
#include "modGeneral.h"

namespace {

struct Boleto : Guion {
    Boleto() {
        MarcarHasta(49);
        LeerBase(sesion.trabajo);
    }
    void Expandir() {
        EstadoTrabajo& trabajo = sesion.trabajo;
        GenerarApuestas(trabajo, entorno, 6, 6);
        trabajo.ApuestasEnTabla = trabajo.Contador.Iniciales;
        PrepararEliminadas(trabajo);
        CopiarSupervivientes(trabajo);
    }
};

int32_t C(int n, int k) {
    return static_cast<int32_t>(Combinaciones(static_cast<int16_t>(n), static_cast<int16_t>(k)));
}

} // namespace

// Every draw has the same counts: C(6,h) C(43,6-h) bets with h hits.
TEST(BoletoEnteroGarantias, ElSistemaDeTodasLasApuestas) {
    Boleto boleto;
    boleto.Expandir();
    TraducirCondicionadas(boleto.sesion.trabajo);
    boleto.sesion.trabajo.Contador.Reducidas = ApuestasMaximas;
    LogicaGarantias logica(boleto.sesion, boleto.entorno);
    EXPECT_TRUE(logica.Calcular());
    const TablaGarantias& tabla = logica.resultados.tabla;
    EXPECT_EQ(tabla.CasosClase, (std::array<int32_t, 7>{0, 0, 0, 0, 0, 0, ApuestasMaximas}));
    for (int h = 0; h <= 6; ++h) {
        EXPECT_EQ(tabla.MaximoBets[6][h], C(6, h) * C(43, 6 - h));
        EXPECT_EQ(tabla.MinimoBets[6][h], tabla.MaximoBets[6][h]);
    }
}

// One bet: C(6,c) C(43,6-c) draws of class c, over all draws and over the same ones as conditioned bets.
TEST(BoletoEnteroGarantias, UnaApuestaPorLasTresVias) {
    Boleto boleto;
    boleto.Expandir();
    EstadoTrabajo& trabajo = boleto.sesion.trabajo;
    trabajo.ApuestasReducidas.Dimensionar(7, 1);
    trabajo.Contador.Reducidas = 1;
    for (int r = 1; r <= 6; ++r) trabajo.ApuestasReducidas(r, 1) = static_cast<uint8_t>(7 * r);
    for (const int tipo : {SobreElTotal, SobreLoCondicionado}) {
        LogicaGarantias logica(boleto.sesion, boleto.entorno);
        logica.CambiarTipo(tipo);
        EXPECT_TRUE(logica.Calcular());
        for (int c = 0; c <= 6; ++c) EXPECT_EQ(logica.resultados.tabla.CasosClase[c], C(6, c) * C(43, 6 - c)) << tipo;
    }
}
