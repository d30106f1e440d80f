#include "LogicaMultiEscrutinioEstadistico.h"

#include <algorithm>
#include <utility>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "EscrutarLiteral.h"
#include "Guion.h"
#include "HistoriaInventada.h"
#include "modEncriptarFichero.h"
#include "modImportarASCII.h"

namespace {

// Two draws of PRIMITIVA; a bet of five hits and one with the complementary in the first one.
constexpr const char* DosSorteos = R"(<r><PRIMITIVA><COMBINACIONES>
<COMBINACION numeros="01,02,03,04,05,06,07,8" anio="2010" sorteo="4" dia="J"/>
<COMBINACION numeros="11,12,13,14,15,16,17," anio="2011" sorteo="300" dia="s"/>
</COMBINACIONES><SORTEOS>
<SORTEO anio="2010" sorteo="4" dia="J" fecha="" recaudacion="0" bote="0"><ESCRUTINIO><CAT6R premio="9"/>
<CAT6 premio="1.000.000,25" acertantes=""/><CAT5C premio="2000,10" acertantes="1"/><CAT5 premio="70.07" acertantes="1"/>
<CAT4 premio="" acertantes="1"/><CAT3 premio="8" acertantes="1"/></ESCRUTINIO></SORTEO>
<SORTEO anio="2011" sorteo="300" dia="S" fecha="" recaudacion="0" bote="0"><ESCRUTINIO><CAT5 premio="80,08" acertantes="1"/>
</ESCRUTINIO></SORTEO></SORTEOS></PRIMITIVA></r>)";

constexpr const char* SeisApuestas = "010203040506\r\n010203040507\r\n010203040508\r\n010203040809\r\n010203080910\r\n"
                                     "111213141520\r\n";

constexpr const char* ResumenVacio = "\nDETALLE DE PREMIOS/IMPORTES TOTALES (6-5C-5-4-3)\n"
                                     "------------------------------------------------\n"
                                     "PREMIO     CANTIDAD        IMPORTES           MEDIA\n"
                                     "6          0               0,00               0,00\n"
                                     "5+C        0               0,00               0,00\n"
                                     "5          0               0,00               0,00\n"
                                     "4          0               0,00               0,00\n"
                                     "3          0               0,00               0,00\n"
                                     "\nTOTALES\n-------\n"
                                     "Sorteos Escrutados    : 0\n"
                                     "Importe total         : 0,00 euros\n"
                                     "Estimación reintegros : 0 euros\n"
                                     "IMPORTE FINAL         : 0,00 euros\n";

class MultiEstadistico : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    Guion guion;
    LogicaMultiEscrutinioEstadistico logica{guion.sesion, guion.entorno};
    std::string url;

    void Responder(const std::string& respuesta) {
        guion.entorno.Servicio = "https://servicio";
        guion.entorno.CarpetaInformes = carpeta.Ruta();
        guion.entorno.PedirHttp = [this, respuesta](const std::string& pedida, std::string& cuerpo, std::string&) {
            url = pedida;
            cuerpo = respuesta;
            return true;
        };
    }
    std::string Fichero(const std::string& texto, const std::string& nombre = "a.txt") {
        EscribirTodo(carpeta.Ruta(nombre), texto);
        return carpeta.Ruta(nombre);
    }
    void Cargar(const std::string& respuesta = DosSorteos, const std::string& apuestas = SeisApuestas) {
        Responder(respuesta);
        ASSERT_TRUE(logica.cmdCargar());
        ASSERT_TRUE(logica.CargarApuestas(Fichero(apuestas)));
    }
    Textos Etiquetas() const {
        return {logica.lblSorteosCargados, logica.lblTemporadaDESDE, logica.lblSorteoDESDE, logica.lblTemporadaHASTA,
                logica.lblSorteoHASTA};
    }
};

TEST_F(MultiEstadistico, CuentaPagaYResume) {
    Cargar();
    EXPECT_EQ(url, "https://servicio/servicios/v1/xml2/eurodreams?temporada=todas&juego=PRIMITIVA");
    EXPECT_EQ(Etiquetas(), (Textos{"2", "2010", "4", "2011", "300"}));
    EXPECT_EQ(logica.lblApuCargadas, "6");
    ASSERT_TRUE(logica.imgVerInforme());
    const std::string informe = "000001. 2010  004  J   01,02,03,04,05,06,07 * 1-1-1-1-1 * 1.002.078,42\n"
                                "000002. 2011  300  S   11,12,13,14,15,16,17 * 0-0-1-0-0 * 80,08\n"
                                "\nDETALLE DE PREMIOS/IMPORTES TOTALES (6-5C-5-4-3)\n"
                                "------------------------------------------------\n"
                                "PREMIO     CANTIDAD        IMPORTES           MEDIA\n"
                                "6          1               1.000.000,25       1.000.000,25\n"
                                "5+C        1               2.000,10           2.000,10\n"
                                "5          2               150,15             75,08\n" // 75,075
                                "4          1               0,00               0,00\n"
                                "3          1               8,00               8,00\n"
                                "\nTOTALES\n-------\n"
                                "Sorteos Escrutados    : 2\n"
                                "Importe total         : 1.002.158,50 euros\n"
                                "Estimación reintegros : 1 euros\n"
                                "IMPORTE FINAL         : 1.002.159,70 euros\n";
    EXPECT_EQ(logica.Informe, informe);
    std::string fichero = LeerTodo(carpeta.Ruta("TOMBOLERA_ESCRUTINIO.txt"));
    EXPECT_NE(fichero.find("Estimaci\xF3n"), std::string::npos);
    EXPECT_EQ(std::count(fichero.begin(), fichero.end(), '\r'), std::count(informe.begin(), informe.end(), '\n'));
    EXPECT_EQ(guion.Informes, Textos{carpeta.Ruta("TOMBOLERA_ESCRUTINIO.txt")});
    EXPECT_EQ(logica.txtDatos, "");
    ASSERT_TRUE(logica.cmdEscrutar());
    EXPECT_EQ(logica.txtDatos, informe);
    EXPECT_EQ(TablaGanado(logica.Ganado, guion.entorno),
              "Año\tSorteo\tDía\tNúmeros\t6\t5+C\t5\t4\t3\tImporte\n"
              "2010\t4\tJ\t01,02,03,04,05,06,07\t1\t1\t1\t1\t1\t1.002.078,42\n"
              "2011\t300\tS\t11,12,13,14,15,16,17\t0\t0\t1\t0\t0\t80,08\n");
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST_F(MultiEstadistico, LaConsultaEligeSorteos) {
    struct Caso {
        const char *anioDesde, *anioHasta, *sorteoDesde, *sorteoHasta;
        int dia;
        const char* escrutados; ///< their years
    };
    Cargar();
    for (const Caso& caso : {Caso{"1985", "2024", "1", "999", 0, "2010 2011 "},
                             {"2010", "2010", "1", "999", 0, "2010 "},
                             {"1985", "2024", "5", "300", 0, "2011 "},
                             {" 2010 ", "2011", "4", "4", 4, "2010 "},
                             {"0", "32767", "0", "32767", 6, "2011 "},
                             {"1985", "2024", "1", "999", 1, ""},
                             {"1985", "2009", "1", "999", 0, ""}}) {
        logica.txtTemporadaDESDE = caso.anioDesde;
        logica.txtTemporadaHASTA = caso.anioHasta;
        logica.txtSorteoDESDE = caso.sorteoDesde;
        logica.txtSorteoHASTA = caso.sorteoHasta;
        logica.cboDia = caso.dia;
        ASSERT_TRUE(logica.cmdEscrutar());
        std::string anios;
        for (const GanadoEnSorteo& g : logica.Ganado) anios += std::to_string(g.sorteo.anio) + " ";
        EXPECT_EQ(anios, caso.escrutados);
        if (anios.empty()) {
            EXPECT_EQ(logica.txtDatos, ResumenVacio);
        }
    }
}

TEST_F(MultiEstadistico, LasComprobacionesVanEnSuOrden) {
    logica.txtSorteoHASTA = "";
    logica.txtTemporadaDESDE = "2020";
    logica.txtTemporadaHASTA = "2019";
    logica.txtSorteoDESDE = "7";
    guion.Cajas.clear();
    EXPECT_FALSE(logica.cmdEscrutar());
    Responder(DosSorteos);
    ASSERT_TRUE(logica.CargarApuestas(Fichero(SeisApuestas)));
    EXPECT_FALSE(logica.imgVerInforme());
    ASSERT_TRUE(logica.cmdCargar());
    EXPECT_FALSE(logica.cmdEscrutar());
    logica.txtSorteoHASTA = "70000";
    EXPECT_FALSE(logica.cmdEscrutar());
    logica.txtSorteoHASTA = "6";
    EXPECT_FALSE(logica.cmdEscrutar());
    logica.txtTemporadaHASTA = "2020";
    EXPECT_FALSE(logica.imgVerInforme());
    EXPECT_EQ(guion.Cajas, (Textos{"[X] ERROR: No hay ningún fichero cargado para escrutar",
                                   "[X] ERROR: No hay ningún fichero de sorteos cargado",
                                   "[X] ERROR: Algún campo de la consulta esta vacío",
                                   "[X] ERROR: Los campos de la consulta son números enteros del 0 al 32767",
                                   "[X] ERROR: Año mínimo mayor que año máximo",
                                   "[X] ERROR: Número de sorteo mínimo mayor que número de sorteo máximo"}));
}

TEST_F(MultiEstadistico, UnaCargaQueFallaDejaSinSorteos) {
    const std::string dia = "\" anio=\"2010\" sorteo=\"1\" dia=\"J\"/>";
    const std::string inicio = "<r><PRIMITIVA><COMBINACIONES><COMBINACION numeros=\"1,2,3,4,5,6";
    const std::string fin = "</COMBINACIONES></PRIMITIVA></r>";
    const std::string sorteos = "</COMBINACIONES><SORTEOS><SORTEO anio=\"2010\" sorteo=\"1\" dia=\"J\" fecha=\"\" "
                                "recaudacion=\"mucho\" bote=\"\"/></SORTEOS></PRIMITIVA></r>";
    for (const std::string& mala :
         {std::string("<r><PRIMITIVA>"), std::string(), inicio + ",7,8,9" + dia + fin, inicio + ",7,300" + dia + fin,
          inicio + "\" anio=\"2010\" dia=\"J\"/>" + fin, inicio + dia + sorteos}) {
        SCOPED_TRACE(mala);
        Cargar();
        Responder(mala);
        guion.Cajas.clear();
        EXPECT_FALSE(logica.cmdCargar());
        EXPECT_EQ(Etiquetas(), (Textos{"0", "-", "-", "-", "-"}));
        ASSERT_EQ(guion.Cajas.size(), 1u);
        EXPECT_TRUE(guion.Cajas[0].starts_with("[X] ERROR AL CARGAR EL FICHERO DE SORTEOS ")) << guion.Cajas[0];
        EXPECT_FALSE(logica.cmdEscrutar());
        EXPECT_EQ(guion.Cajas.back(), "[X] ERROR: No hay ningún fichero de sorteos cargado");
    }
}

TEST_F(MultiEstadistico, SinServicioYSinElJuego) {
    EXPECT_FALSE(logica.cmdCargar());
    EXPECT_EQ(guion.Cajas,
              Textos{"[X] ERROR AL CARGAR EL FICHERO DE SORTEOS (no hay ningún servicio de sorteos configurado)"});
    Responder(DosSorteos);
    logica.ElegirJuego(BONOLOTO);
    logica.ElegirJuego(EURODREAMS); // not in the list
    EXPECT_TRUE(logica.cmdCargar());
    EXPECT_TRUE(url.ends_with("&juego=BONOLOTO"));
    EXPECT_EQ(Etiquetas(), (Textos{"0", "-", "-", "-", "-"}));
}

TEST_F(MultiEstadistico, UnFicheroSinApuestasDejaElAnterior) {
    Cargar();
    EXPECT_FALSE(logica.CargarApuestas(Fichero("", "vacio.txt")));
    EXPECT_FALSE(logica.CargarApuestas(Fichero("nada", "malo.TOM")));
    guion.Ficheros = {""};
    EXPECT_FALSE(logica.cmdDesdeFichero());
    ASSERT_EQ(guion.Cajas.size(), 3u);
    EXPECT_EQ(guion.Cajas[0], guion.Cajas[2]);
    EXPECT_EQ(guion.Cajas[0], std::string("[!] ") + AvisoSinApuestas);
    EXPECT_EQ(logica.txtFicheroASCII, carpeta.Ruta("a.txt"));
    EXPECT_EQ(logica.lblApuCargadas, "6");
    EXPECT_TRUE(logica.cmdEscrutar());
}

// The prizes are those of the draw in the same place.
TEST_F(MultiEstadistico, UnaListaDePremiosCortaFallaSoloSiLaConsultaLaPasa) {
    std::string corta = DosSorteos;
    corta.erase(corta.find("<SORTEO anio=\"2011\""));
    Cargar(corta + "</SORTEOS></PRIMITIVA></r>");
    EXPECT_EQ(logica.lblSorteosCargados, "1");
    EXPECT_EQ(logica.lblTemporadaHASTA, "2011");
    logica.txtTemporadaHASTA = "2010";
    ASSERT_TRUE(logica.cmdEscrutar());
    const std::string antes = logica.txtDatos;
    logica.txtTemporadaHASTA = "2011";
    EXPECT_FALSE(logica.cmdEscrutar());
    EXPECT_FALSE(logica.imgVerInforme());
    const std::string motivo = " (faltan los premios desde el sorteo 300 de 2011: hay 2 combinaciones y sólo 1 sorteos "
                               "con premios)";
    EXPECT_EQ(guion.Cajas, (Textos{"[X] ERROR AL ESCRUTAR LOS SORTEOS" + motivo,
                                   "[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS" + motivo}));
    EXPECT_EQ(logica.txtDatos, antes);
    EXPECT_FALSE(logica.Ocupada());
    EXPECT_EQ(guion.Informes, Textos{});
}

TEST_F(MultiEstadistico, UnInformeQueNoSePuedeEscribirSeDice) {
    Cargar();
    guion.entorno.CarpetaInformes = carpeta.Ruta("no-existe");
    EXPECT_FALSE(logica.imgVerInforme());
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (no existe el fichero o la "
                                  "carpeta)"});
    EXPECT_EQ(guion.Informes, Textos{});
}

class MultiEstadisticoLargo : public MultiEstadistico {
  protected:
    static constexpr size_t NSorteos = 1200;
    const Sorteos historia = SorteosInventados(BONOLOTO, NSorteos, 5);

    void SetUp() override {
        std::string apuestas;
        for (int i = 0; i < 40; ++i)
            for (size_t j = 0; j < 6; ++j)
                apuestas += fmt::format("{:02}{}", historia[static_cast<size_t>(i)].numeros[j], j == 5 ? "\n" : ",");
        logica.ElegirJuego(BONOLOTO);
        Cargar(RespuestaXML(BONOLOTO, historia, PremiosInventados(historia, 6)), apuestas);
    }
};

TEST_F(MultiEstadisticoLargo, CoincideConContarloLiteralmente) {
    ASSERT_TRUE(logica.cmdEscrutar());
    ASSERT_EQ(logica.Ganado.size(), NSorteos);
    for (const GanadoEnSorteo& g : logica.Ganado) {
        EscrutarLiteral literal;
        std::copy_n(g.sorteo.numeros.begin(), 6, literal.ganadores.begin());
        literal.complementario = g.sorteo.numeros[6];
        EXPECT_EQ(g.Apuestas, literal(logica.ApuestasMulti).Aciertos.Premios());
    }
    EXPECT_GE(logica.Ganado[0].Apuestas[DE6], 1);
}

TEST_F(MultiEstadisticoLargo, LaVentanaMuestraElPrincipioDeUnInformeGrande) {
    ASSERT_TRUE(logica.cmdEscrutar());
    const std::string aviso = "(El informe es demasiado grande para ser mostrado, pulse el botón 'Ver Informe en Bloc "
                              "de Notas' para visualizarlo entero)";
    ASSERT_TRUE(logica.txtDatos.ends_with(aviso));
    const std::string visible = logica.txtDatos.substr(0, logica.txtDatos.size() - aviso.size());
    EXPECT_TRUE(logica.Informe.starts_with(visible));
    EXPECT_EQ(visible.size() + static_cast<size_t>(std::count(visible.begin(), visible.end(), '\n')), 65118u);
}

// The first lines of a report, of which those that do not pass 3000 characters together stay behind.
std::string LoQueQueda(const std::string& informe, int lineas) {
    std::string texto, pendiente;
    for (size_t i = 0; lineas-- > 0;) {
        const size_t fin = informe.find('\n', i) + 1;
        pendiente += informe.substr(i, fin - i - 1) + "\r\n";
        i = fin;
        if (pendiente.size() > 3000) texto += std::exchange(pendiente, "");
    }
    std::erase(texto, '\r');
    return texto;
}

TEST_F(MultiEstadisticoLargo, UnaParadaEnCadaMomentoDejaElPrincipioSinResumen) {
    ASSERT_TRUE(logica.cmdEscrutar());
    const std::string entero = logica.Informe;
    const int turnos = guion.Turnos;
    ASSERT_TRUE(logica.cmdEscrutar());
    const int porPasada = guion.Turnos - turnos;
    for (int t = 1; t <= porPasada; t += 7) {
        guion.EnTurno(guion.Turnos + t, [this] {
            EXPECT_TRUE(logica.Escrutando);
            EXPECT_FALSE(logica.PuedeCerrar());
            logica.cmdStop();
        });
        EXPECT_TRUE(logica.cmdEscrutar());
        // One turn for the bets, which are one block, and one for each draw.
        EXPECT_EQ(logica.Informe, LoQueQueda(entero, std::max(0, t - 2))) << t;
        EXPECT_FALSE(logica.Ocupada());
    }
}

TEST_F(MultiEstadistico, SumasDeMasDe32Bits) {
    std::string muchos = "<r><PRIMITIVA><COMBINACIONES>", premios;
    for (int i = 1; i <= 300; ++i) {
        const std::string momento = fmt::format("anio=\"2000\" sorteo=\"{}\" dia=\"L\"", i);
        muchos += "<COMBINACION numeros=\"1,2,3,4,5,6,7,0\" " + momento + "/>";
        premios += "<SORTEO " + momento +
                   " fecha=\"\" recaudacion=\"0\" bote=\"0\"><ESCRUTINIO><CAT6 premio=\"99.999.999,99\" "
                   "acertantes=\"1\"/></ESCRUTINIO></SORTEO>";
    }
    Responder(muchos + "</COMBINACIONES><SORTEOS>" + premios + "</SORTEOS></PRIMITIVA></r>");
    ASSERT_TRUE(logica.cmdCargar());
    logica.ApuestasMulti.Dimensionar(7, ApuestasMaximas);
    for (int r = 1; r <= 6; ++r) std::fill_n(logica.ApuestasMulti.Fila(r), ApuestasMaximas, static_cast<uint8_t>(r));
    ASSERT_TRUE(logica.cmdEscrutar());
    EXPECT_NE(logica.txtDatos.find("6          4195144800      419.514.479.958.04"), std::string::npos)
        << logica.txtDatos.substr(logica.txtDatos.find("PREMIO"));
    EXPECT_NE(logica.txtDatos.find("Estimación reintegros : 419.514.480 euros"), std::string::npos);
}

} // namespace
