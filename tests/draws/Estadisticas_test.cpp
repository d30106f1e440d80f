#include "LogicaEstadisticas.h"

#include <random>

#include <gtest/gtest.h>

#include "EstadisticasLiterales.h"
#include "Guion.h"
#include "HistoriaInventada.h"

namespace {

Sorteo UnSorteo(const std::array<uint8_t, 6>& numeros, int anio = 2010, int sorteo = 1, char dia = 'J') {
    Sorteo nuevo;
    std::copy(numeros.begin(), numeros.end(), nuevo.numeros.begin());
    nuevo.anio = static_cast<int16_t>(anio);
    nuevo.sorteo = static_cast<uint16_t>(sorteo);
    nuevo.dia = CodigoDia(std::string(1, dia));
    return nuevo;
}

struct Consultas : Guion {
    LogicaEstadisticas l{sesion.trabajo, entorno};

    // The text of one statistic over these draws.
    std::string Texto(int tipo, const Sorteos& sorteos) {
        l.SorteosCargados = sorteos;
        l.ElegirEstadistica(tipo);
        EXPECT_TRUE(l.cmdConsultar());
        return l.txtDatos;
    }
};

TEST(Estadisticas, DicenLoQueLasLiterales) {
    std::mt19937 azar(7);
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        const Sorteos historia = SorteosInventados(juego, 1500, static_cast<uint32_t>(azar()));
        for (int vuelta = 0; vuelta < 12; ++vuelta) {
            Consultas c;
            const int anio = 1990 + static_cast<int>(azar() % 5), sorteo = 1 + static_cast<int>(azar() % 250);
            const ConsultaSorteos consulta{anio, anio + static_cast<int>(azar() % 3), sorteo,
                                           sorteo + static_cast<int>(azar() % 100), static_cast<int>(azar() % 7)};
            c.l.txtTemporadaDESDE = std::to_string(consulta.anioDesde);
            c.l.txtTemporadaHASTA = std::to_string(consulta.anioHasta);
            c.l.txtSorteoDESDE = std::to_string(consulta.sorteoDesde);
            c.l.txtSorteoHASTA = std::to_string(consulta.sorteoHasta);
            c.l.cboDia = consulta.dia;
            Sorteos elegidos;
            for (const Sorteo& s : historia)
                if (s.anio >= consulta.anioDesde && s.anio <= consulta.anioHasta && s.sorteo >= consulta.sorteoDesde &&
                    s.sorteo <= consulta.sorteoHasta && (consulta.dia == 0 || s.dia == consulta.dia))
                    elegidos.push_back(s);
            for (int tipo = 0; tipo < NEstadisticas; ++tipo) {
                EXPECT_EQ(c.Texto(tipo, historia), EstadisticasLiterales{elegidos}.Texto(tipo))
                    << tipo << " of " << elegidos.size();
                EXPECT_EQ(c.l.lblSorteosConsultados, std::to_string(elegidos.size()));
            }
        }
    }
}

TEST(Estadisticas, CasosDeBorde) {
    Consultas c;
    const int seguidos = 5, sumas = 6, distancias = 3;
    EXPECT_EQ(c.Texto(seguidos, {UnSorteo({1, 2, 3, 4, 5, 6})}),
              "1  --->  0\n2  --->  0\n3  --->  0\n4  --->  0\n5  --->  0\n6  --->  1\n");
    EXPECT_EQ(c.Texto(seguidos, {UnSorteo({1, 2, 3, 10, 11, 12}), UnSorteo({1, 3, 5, 7, 9, 11})}),
              "1  --->  1\n2  --->  0\n3  --->  1\n4  --->  0\n5  --->  0\n6  --->  0\n");
    EXPECT_EQ(c.Texto(sumas, {UnSorteo({1, 2, 3, 4, 5, 16})}), "021-032 ---> 1\n031-042 ---> 1\n");
    EXPECT_EQ(c.Texto(sumas, {UnSorteo({1, 2, 3, 4, 5, 6})}), "021-032 ---> 1\n");
    EXPECT_EQ(c.Texto(sumas, {UnSorteo({44, 45, 46, 47, 48, 49})}), "271-282 ---> 1\n");
    // Out of order they count as sorted; the same number six times is in no row.
    EXPECT_EQ(c.Texto(distancias, {UnSorteo({49, 1, 2, 3, 4, 5})}),
              c.Texto(distancias, {UnSorteo({1, 2, 3, 4, 5, 49})}));
    EXPECT_EQ(c.Texto(distancias, {UnSorteo({7, 7, 7, 7, 7, 7})}), EstadisticasLiterales{}.Texto(distancias));
    EXPECT_EQ(c.Cajas, Textos{});
    EXPECT_EQ(c.Texto(sumas, {UnSorteo({49, 49, 49, 49, 49, 49})}), "");
    EXPECT_EQ(c.Cajas, Textos{"[!] Ningún dato coincide con la consulta realizada"});
}

TEST(Estadisticas, SoloNumerosYSumasPuedenQuedarVacias) {
    for (int tipo = 0; tipo < NEstadisticas; ++tipo) {
        Consultas c;
        c.l.txtTemporadaDESDE = c.l.txtTemporadaHASTA = "1999";
        EXPECT_EQ(c.Texto(tipo, {UnSorteo({1, 2, 3, 4, 5, 6})}), EstadisticasLiterales{}.Texto(tipo));
        const bool vacia = tipo == 0 || tipo == 6;
        EXPECT_EQ(c.Cajas, vacia ? Textos{"[!] Ningún dato coincide con la consulta realizada"} : Textos{});
        EXPECT_EQ(c.l.Figuras.empty(), vacia);
        EXPECT_EQ(c.l.lblSorteosConsultados, "0");
    }
}

TEST(Estadisticas, ElDiaCeroSoloSaleConTodos) {
    const Sorteos sorteos{UnSorteo({1, 2, 3, 4, 5, 6}, 2010, 1, '?'), UnSorteo({1, 2, 3, 4, 5, 6}, 2010, 2, 'd')};
    for (int dia = 0; dia <= 6; ++dia) {
        Consultas c;
        c.l.cboDia = dia;
        c.Texto(5, sorteos);
        EXPECT_EQ(c.l.lblSorteosConsultados, dia == 0 ? "2" : "0");
    }
}

TEST(Estadisticas, LasComprobacionesEnSuOrden) {
    struct Caso {
        bool Cargado;
        Textos Campos; // years and draws
        std::string Caja;
    };
    const std::string noVale = "[X] ERROR: Algún campo de la consulta no es válido";
    const std::vector<Caso> casos{
        {false, {"", "", "", ""}, "[!] No hay ningún fichero de sorteos cargado"},
        {true, {"2012", "2010", "", "9"}, "[X] ERROR: Algún campo de la consulta esta vacío"},
        {true, {"2012", "2010", "20", "10"}, "[X] ERROR: Año mínimo mayor que año máximo"},
        {true, {"2010", "2012", "20", "10"}, "[X] ERROR: Número de sorteo mínimo mayor que número de sorteo máximo"},
        {true, {"2010", "32768", "1", "9"}, noVale},
        {true, {"2010", "2012", "1", "99999999999"}, noVale},
        {true, {"2010", "2012", "uno", "9"}, noVale},
    };
    for (const Caso& caso : casos) {
        Consultas c;
        if (caso.Cargado) c.l.SorteosCargados = {UnSorteo({1, 2, 3, 4, 5, 6})};
        c.l.txtTemporadaDESDE = caso.Campos[0];
        c.l.txtTemporadaHASTA = caso.Campos[1];
        c.l.txtSorteoDESDE = caso.Campos[2];
        c.l.txtSorteoHASTA = caso.Campos[3];
        EXPECT_FALSE(c.l.cmdConsultar());
        EXPECT_EQ(c.Cajas, Textos{caso.Caja});
        EXPECT_EQ(c.l.txtDatos, "");
    }
}

TEST(Estadisticas, ElJuegoDecideLasQueSeOfrecen) {
    Consultas c;
    EXPECT_EQ(c.l.txtTemporadaHASTA, "2024");
    EXPECT_EQ(c.l.lblDatos, "Número     Apariciones");
    c.Texto(9, {UnSorteo({1, 2, 3, 4, 5, 6})});
    c.l.ElegirJuego(EURODREAMS);
    EXPECT_EQ(c.l.optFiltro, 0);
    EXPECT_EQ(c.l.txtDatos, "");
    EXPECT_TRUE(c.l.Figuras.empty());
    EXPECT_FALSE(c.l.Ofrece(8) || c.l.Ofrece(9));
    EXPECT_TRUE(c.l.Ofrece(7));
    c.l.ElegirJuego(BONOLOTO);
    EXPECT_TRUE(c.l.Ofrece(8) && c.l.Ofrece(9));
}

} // namespace
