#include <gtest/gtest.h>

#include "Base.h"

TEST(GenerarXMLBase, TextoExacto) {
    Base base;
    base.Marcar({1, 9, 49});
    base.MarcarDigitos({0, 7});
    Sesion& s = base.sesion;
    s.trabajo.cboTipoReintegro = Secuenciales;
    s.trabajo.txtFicheroASCII = "/casa/José's <a> & b \"c\".txt";
    s.referencia.CombinacionGanadora = {1, 2, 3, 4, 5, 49};
    s.referencia.Complementario = 33;
    s.trabajo.Reduccion = {2, 95, 1200, 1, 0, 1, 1};
    Condiciones& c = s.condiciones;
    c.lstFiltros[0].Activo = c.lstFiltros[18].Activo = true;
    c.ALTOSBAJOS.Bajos = {1, 0, 1, 1, 0, 0, 0};
    c.DISTANCIAS.Distancia[5] = {10, 40};
    c.GRUPOS.grupo[209].numeros[49] = c.GRUPOS.grupo[209].numeros[1] = c.GRUPOS.grupo[209].aciertos[0] = 1;
    c.GRUPOS.grupo[209].posiciones[2] = 0;
    c.GRUPOSRELACIONADOS.subgrupos[6][10] = c.GRUPOSRELACIONADOS.subgrupos[8][11] = 1;
    c.GRUPOSRELACIONADOS.condiciones[8][2] = 1;
    c.SEGUIDOS.NumerosSeguidos = {1, 1, 0, 0, 0, 0, 1};
    c.SEGUIDOS.FigurasSeguidos[0] = 2;
    c.SUMAS.intervalos[9] = {21, 279};
    c.TERMINACIONES.TerminadosEn[9][6] = 1;
    c.POSICIONES.Bola[5][44] = 1;
    c.SORTEOSANTERIORES.grupo[19] = {{2023, 5}, {2024, 300}, 6, 1, 2, {0, 0, 0, 1, 0, 0, 0}};
    c.SUMASPORTRIOS.intervalosT2[0] = {6, 144};
    c.VALORACIONES.grupo[0].intervalos[1].Maximo = 300;
    c.VALORACIONES.grupo[0].valoraciones[49] = 100;
    c.COEFICIENTERENTABILIDAD.PorcentajesReales[1] = 4.5;
    c.COEFICIENTERENTABILIDAD.RangosCR[0] = c.COEFICIENTERENTABILIDAD.RangosCR[100] = 1;
    c.GRUPOSENTRELIMITES.grupo[0].aciertos[6] = 1;
    EXPECT_EQ(base.Texto(), LeerTodo(DATOS_FICHEROS "/completa.xml"));
}

TEST(GenerarXMLBase, LosNumerosQueElJuegoOcultaNoSonDeLaBase) {
    Base base;
    CambiarJuego(base.sesion, EURODREAMS);
    base.MarcarHasta(49);
    const std::string texto = base.Texto();
    EXPECT_NE(texto.find(",39,40'/>"), std::string::npos);
    EXPECT_EQ(texto.find(",41"), std::string::npos);
}

TEST(BaseXML, LeerYGuardarDevuelveElMismoTexto) {
    for (uint32_t semilla = 1; semilla <= 40; ++semilla) {
        Base base;
        Relleno(semilla).Llenar(base.sesion);
        const std::string texto = base.Texto();
        Base otra;
        ASSERT_TRUE(otra.Abrir(texto));
        ASSERT_EQ(otra.Texto(), texto) << "seed " << semilla;
        EXPECT_EQ(otra.Cajas, Textos{});
        for (const size_t k : {3u, 4u, 14u, 16u, 18u})
            EXPECT_EQ(otra.sesion.condiciones.lstFiltros[k].NumeroActivos,
                      (ActualizarFila(base.sesion, static_cast<int>(k)),
                       base.sesion.condiciones.lstFiltros[k].NumeroActivos));
    }
}
