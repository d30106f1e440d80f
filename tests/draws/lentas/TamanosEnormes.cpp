#include <fstream>

#include <gtest/gtest.h>

#include "Guion.h"
#include "HistoriaInventada.h"
#include "LogicaEstadisticas.h"
#include "ServicioLocal.h"

TEST(FicheroSorteos, CatorceMillonesDeLineas) {
    Guion guion;
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("sorteos.txt");
    {
        const std::string mil = TextoFicheroSorteos(SorteosInventados(PRIMITIVA, 1000));
        std::ofstream fichero(ruta, std::ios::binary);
        for (int i = 0; i < 14000; ++i) fichero << mil;
        ASSERT_TRUE(fichero.flush());
    }
    LogicaEstadisticas l(guion.sesion.trabajo, guion.entorno);
    EXPECT_TRUE(l.CargarFicheroSorteos(ruta));
    EXPECT_EQ(guion.Cajas, Textos{"[!] SOLO SE PUEDEN IMPORTAR 13983816 APUESTAS"});
    EXPECT_EQ(l.lblSorteosCargados, "13983816");
    EXPECT_EQ(guion.Turnos, 13983816 / 3000);
    l.txtTemporadaHASTA = "9999";
    EXPECT_TRUE(l.cmdConsultar());
    EXPECT_EQ(l.lblSorteosConsultados, "13983816");
}

TEST(ActualizarDesdeInternet, DoscientosMegasDeXML) {
    Guion guion;
    const CarpetaTemporal carpeta;
    guion.entorno.CarpetaInformes = carpeta.Ruta();
    const Sorteos sorteos = SorteosInventados(BONOLOTO, 2'600'000);
    ServicioLocal servicio;
    {
        std::string xml = RespuestaXML(BONOLOTO, sorteos);
        EXPECT_GT(xml.size(), size_t{200'000'000});
        servicio.Responder({.Cuerpo = std::move(xml)});
    }
    servicio.Conectar(guion.entorno);
    LogicaEstadisticas l(guion.sesion.trabajo, guion.entorno);
    l.ElegirJuego(BONOLOTO);
    guion.Respuestas = {true};
    EXPECT_TRUE(l.ActualizarDesdeInternet());
    EXPECT_EQ(l.lblSorteosCargados, "2600000");
    EXPECT_GT(guion.Turnos, 2'600'000 / 3000);
}
