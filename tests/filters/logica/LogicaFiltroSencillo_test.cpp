#include "LogicaFiltroSencillo.h"

#include <gtest/gtest.h>

#include "Guion.h"

namespace {

LogicaFiltroSencillo Abierta(Guion& guion, int k) {
    LogicaFiltroSencillo logica{guion.sesion, *FiltroSencilloDeFila(k)};
    logica.Abrir();
    return logica;
}

} // namespace

TEST(FiltrosSencillos, OchoFilasTienenUno) {
    std::vector<int> filas;
    for (int k = 0; k < NFilas; ++k)
        if (FiltroSencilloDeFila(k)) filas.push_back(k);
    EXPECT_EQ(filas, (std::vector<int>{kALTOSBAJOS, kDECENAS, kHOMOLOGOS, kPARESIMPARES, kSEGUIDOS,
                                       kEXTERIORESINTERIORES, kSUPERIORESINFERIORES, kCOLINDANTES}));
}

TEST(LogicaFiltroSencillo, CadaModificarEscribeEnSuTabla) {
    Guion guion;
    Condiciones& c = guion.sesion.condiciones;
    const struct {
        int k;
        size_t i;
        TablaAciertos& tabla;
        int minimo;
    } casos[] = {
        {kALTOSBAJOS, 0, c.ALTOSBAJOS.Bajos, 0},
        {kALTOSBAJOS, 1, c.ALTOSBAJOS.Altos, 0},
        {kDECENAS, 0, c.DECENAS.Decena[0], 0},
        {kDECENAS, 4, c.DECENAS.Decena[4], 0},
        {kSEGUIDOS, 0, c.SEGUIDOS.NumerosSeguidos, 1},
        {kHOMOLOGOS, 0, c.HOMOLOGOS.HomologosAcertados, 1},
        {kCOLINDANTES, 0, c.COLINDANTES.ColindantesAcertados, 0},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.k);
        LogicaFiltroSencillo logica = Abierta(guion, caso.k);
        EXPECT_EQ(logica.txtAciertos[caso.i], "");
        LogicaAciertos aciertos = logica.AbrirModificar(caso.i);
        EXPECT_EQ(aciertos.MinimoAcierto, caso.minimo);
        EXPECT_EQ(aciertos.MaximoAcierto, 6);
        aciertos.imgTodos();
        aciertos.Pulsar(4);
        logica.CerrarModificar(caso.i, aciertos);
        const uint8_t cero = caso.minimo == 0;
        EXPECT_EQ(caso.tabla, (TablaAciertos{cero, 1, 1, 1, 0, 1, 1}));
        EXPECT_EQ(logica.txtAciertos[caso.i], cero ? "0,1,2,3,5,6" : "1,2,3,5,6");
        EXPECT_EQ(Abierta(guion, caso.k).txtAciertos[caso.i], logica.txtAciertos[caso.i]);
        EXPECT_TRUE(logica.marco.Activo());
        EXPECT_TRUE(logica.PuedeCerrar());
    }
}

TEST(LogicaFiltroSencillo, LasCasillasSeGuardanAlPulsarOAlCerrar) {
    Guion guion;
    Condiciones& c = guion.sesion.condiciones;
    const struct {
        int k;
        std::span<uint8_t> marcas;
        bool alPulsar;
    } casos[] = {
        {kDECENAS, c.DECENAS.FigurasDecenas, false},
        {kSEGUIDOS, c.SEGUIDOS.FigurasSeguidos, false},
        {kPARESIMPARES, c.PARESIMPARES.ParesActivos, true},
        {kEXTERIORESINTERIORES, c.EXTERIORESINTERIORES.ExterioresInterioresActivos, true},
        {kSUPERIORESINFERIORES, c.SUPERIORESINFERIORES.SuperioresInferioresActivos, true},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.k);
        LogicaFiltroSencillo logica = Abierta(guion, caso.k);
        ASSERT_EQ(logica.filtro.Casillas.size(), caso.marcas.size());
        ASSERT_EQ(logica.filtro.EjemplosCasillas.size(), caso.marcas.size());
        for (size_t i = 0; i < caso.marcas.size(); ++i) {
            logica.PulsarCasilla(i, true);
            EXPECT_EQ(caso.marcas[i], caso.alPulsar) << i;
        }
        EXPECT_TRUE(logica.marco.Activo());
        logica.PulsarCasilla(3, false);
        EXPECT_TRUE(logica.PuedeCerrar());
        const LogicaFiltroSencillo otra = Abierta(guion, caso.k);
        for (size_t i = 0; i < caso.marcas.size(); ++i) {
            EXPECT_EQ(caso.marcas[i], i != 3) << i;
            EXPECT_EQ(otra.chkFigura[i], i != 3) << i;
        }
    }
}

TEST(LogicaFiltroSencillo, AbrirYCerrarNoActivaNiCambia) {
    for (const FiltroSencillo& filtro : FiltrosSencillos) {
        Guion guion;
        if (filtro.Marcas) filtro.Marcas(guion.sesion.condiciones)[2] = 1;
        LogicaFiltroSencillo logica = Abierta(guion, filtro.Fila);
        EXPECT_TRUE(logica.PuedeCerrar());
        EXPECT_FALSE(logica.marco.Activo());
        if (filtro.Marcas) {
            EXPECT_EQ(TextoLista(filtro.Marcas(guion.sesion.condiciones)), "2");
        }
    }
}
