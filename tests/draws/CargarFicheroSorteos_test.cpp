#include <gtest/gtest.h>

#include "FicheroSorteos.h"
#include "Guion.h"
#include "HistoriaInventada.h"
#include "LogicaEstadisticas.h"

namespace {

const std::string Buena = "01,02,03,04,05,06 2007 1 J\r\n";

std::string NoImportado(const std::string& fallo) {
    return "[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (" + fallo + ")";
}

struct Carga : Guion {
    CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("sorteos.txt");
    LogicaEstadisticas l{sesion.trabajo, entorno};

    bool Cargar(const std::string& bytes) {
        EscribirTodo(ruta, bytes);
        Cajas.clear();
        return l.CargarFicheroSorteos(ruta);
    }

    void EsperarVacia() const {
        EXPECT_EQ(l.lblSorteosCargados, "0");
        EXPECT_TRUE(l.SorteosCargados.empty());
        for (const std::string* rotulo :
             {&l.lblTemporadaDESDE, &l.lblSorteoDESDE, &l.lblTemporadaHASTA, &l.lblSorteoHASTA})
            EXPECT_EQ(*rotulo, "-");
        EXPECT_EQ(l.txtDatos + l.lblSorteosConsultados, "");
    }
};

TEST(FicheroSorteos, LoQueSeEscribeSeLeeYEsElFicheroDeSiempre) {
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("sorteos.txt");
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        const Sorteos sorteos = SorteosInventados(juego, 7000);
        std::string fallo;
        ASSERT_TRUE(EscribirFicheroSorteos(ruta, sorteos, fallo)) << fallo;
        EXPECT_EQ(LeerTodo(ruta), TextoFicheroSorteos(sorteos));

        Carga c;
        EXPECT_TRUE(c.l.CargarFicheroSorteos(ruta));
        ASSERT_EQ(c.l.SorteosCargados.size(), sorteos.size());
        for (size_t i = 0; i < sorteos.size(); ++i) {
            const Sorteo &leido = c.l.SorteosCargados[i], &escrito = sorteos[i];
            ASSERT_TRUE(std::equal(leido.numeros.begin(), leido.numeros.begin() + 6, escrito.numeros.begin())) << i;
            ASSERT_EQ(std::tie(leido.anio, leido.sorteo, leido.dia),
                      std::tie(escrito.anio, escrito.sorteo, escrito.dia));
        }
        EXPECT_EQ(c.Turnos, 2); // at 3000 and at 6000
        EXPECT_EQ(c.l.txtFicheroASCII, ruta);
        EXPECT_EQ(c.l.lblSorteosCargados, "7000");
        EXPECT_EQ(c.l.lblTemporadaDESDE + " " + c.l.lblSorteoDESDE, "1990 1");
        EXPECT_EQ(c.l.lblTemporadaHASTA + " " + c.l.lblSorteoHASTA, "2013 100");
        EXPECT_EQ(c.sesion.trabajo.NApuestasImportadas, 7000);
    }
}

TEST(FicheroSorteos, LineasQueValen) {
    struct Caso {
        std::string Linea;
        int Anio, Sorteo, Dia;
    };
    const std::vector<Caso> casos{
        {"01,02,03,04,05,06 2007 1 j", 2007, 1, 4},
        {"1,2,3,4,5,6,7,8 32767 65535 D", 32767, 65535, 7},
        {"01,02,03,04,05,06,CC,RR 2010 256 J", 2010, 256, 4},
        {"49,48,47,46,45,44,50,99 2010 1 X y lo que siga", 2010, 1, 3},
        {"01,02,03,04,05,06 2007 1 ?", 2007, 1, 0},
        {"01,02,03,04,05,06 2007 10 ", 2007, 10, 0},
        {"01,02,03,04,05,06 2007 1 JUEVES", 2007, 1, 0},
        {"1,2,3,4,5,6 -32768 00000 M ", -32768, 0, 2},
    };
    for (const Caso& caso : casos)
        for (const char* fin : {"\r\n", "\n", "\r", ""}) {
            Carga c;
            EXPECT_TRUE(c.Cargar(caso.Linea + fin)) << caso.Linea;
            EXPECT_EQ(c.Cajas, Textos{});
            ASSERT_EQ(c.l.SorteosCargados.size(), 1u) << caso.Linea;
            const Sorteo& sorteo = c.l.SorteosCargados.front();
            EXPECT_EQ(sorteo.anio, caso.Anio);
            EXPECT_EQ(sorteo.sorteo, caso.Sorteo);
            EXPECT_EQ(sorteo.dia, caso.Dia) << caso.Linea;
            EXPECT_EQ(sorteo.numeros[6] + sorteo.numeros[7], 0);
        }
}

TEST(FicheroSorteos, UnaLineaDe24CaracteresNoCuentaYUnaDe25Si) {
    Carga c;
    EXPECT_TRUE(
        c.Cargar("\r\n" + Buena + "1,02,03,04,05,6 2007 1 J\r\n" + "corta\r\n\r\n" + "01,02,03,04,5,6 2007 10 J"));
    EXPECT_EQ(c.l.lblSorteosCargados, "2");
    EXPECT_EQ(c.l.lblSorteoHASTA, "10");
}

TEST(FicheroSorteos, FallosConSuCaja) {
    const std::vector<std::pair<std::string, std::string>> casos{
        // A number out of range alone is told without a description.
        {"01,02,03,04,05,50 2007 1 J", ""},
        {"00,02,03,04,05,06 2007 1 J", ""},
        {"-1,02,03,04,05,06 2007 1 J", ""},
        {"01,02,03,04,05,256 2007 1 J", ""},
        {"01,02,03,04,05 2010 100 J xxxxxxxxx", "línea 2: hay menos de seis números"},
        {"01,02,03,04,05,seis 2007 1 J", "línea 2: un número no es válido"},
        {"01,02,03,04,05, 2007 1 J abcdef", "línea 2: un número no es válido"},
        {"01,02,03,04,05,99999999999999 2007 1 J", "línea 2: un número no es válido"},
        {"01,02,03,04,05,06  2007 1 J", "línea 2: el año no es válido"},
        {"01,02,03,04,05,06 99999 1 J", "línea 2: el año no es válido"},
        {"01,02,03,04,05,06 2007 65536 J", "línea 2: el número de sorteo no es válido"},
        {"01,02,03,04,05,06 2007 -1 J", "línea 2: el número de sorteo no es válido"},
        {"01,02,03,04,05,06 2007 0000000000001 J", "línea 2: el número de sorteo no es válido"},
        {"01,02,03,04,05,06,07,08 2007 1", "línea 2: faltan campos"},
        {"01\t02\t03\t04\t05\t06\t2007\t1\tJ", "línea 2: faltan campos"},
        {std::string(30, '\0'), "línea 2: faltan campos"},
        {std::string(LectorLineas::LineaMaxima + 1, 'x'), "hay una línea demasiado larga"},
    };
    for (const auto& [linea, fallo] : casos) {
        Carga c;
        c.sesion.trabajo.NApuestasImportadas = 5;
        c.Cargar(Buena);
        EXPECT_FALSE(c.Cargar(Buena + linea + "\r\n" + Buena));
        EXPECT_EQ(c.Cajas, Textos{NoImportado(fallo)}) << linea.substr(0, 80);
        c.EsperarVacia();
        EXPECT_EQ(c.sesion.trabajo.NApuestasImportadas, 0);
        EXPECT_EQ(c.l.txtFicheroASCII, c.ruta);
    }
}

TEST(FicheroSorteos, SinUnaLineaDeSorteoTambienFalla) {
    for (const std::string bytes : {"", "\r\n", "01,02,03,04,05,06\r\n\r\n"}) {
        Carga c;
        EXPECT_FALSE(c.Cargar(bytes));
        EXPECT_EQ(c.Cajas, Textos{NoImportado("no hay ninguna línea con un sorteo")});
        c.EsperarVacia();
    }
}

TEST(FicheroSorteos, LoQueNoSePuedeAbrir) {
    Carga c;
    c.Cargar(Buena);
    EXPECT_FALSE(c.l.CargarFicheroSorteos(c.carpeta.Ruta("noexiste")));
    EXPECT_FALSE(c.l.CargarFicheroSorteos(c.carpeta.Ruta()));
    EXPECT_EQ(c.Cajas, (Textos{NoImportado("no existe el fichero o la carpeta"), NoImportado("es una carpeta")}));
    c.EsperarVacia();
}

TEST(FicheroSorteos, UnaLineaDeDiezMegas) {
    Carga c;
    EXPECT_TRUE(c.Cargar(Buena + "01,02,03,04,05,06" + std::string(10 << 20, ',') + " 2007 2 J\r\n" + Buena));
    EXPECT_EQ(c.l.lblSorteosCargados, "3");
    EXPECT_FALSE(c.Cargar(Buena + std::string(10 << 20, 'x') + "\r\n"));
    EXPECT_EQ(c.Cajas, Textos{NoImportado("línea 2: faltan campos")});
}

// Another program goes on writing, or starts anew, while the window yields.
TEST(FicheroSorteos, LoQueCambiaMientrasSeLee) {
    const std::string texto = TextoFicheroSorteos(SorteosInventados(BONOLOTO, 40000));
    Carga crece;
    crece.EnTurno(1, [&] { EscribirTodo(crece.ruta, texto + texto); });
    EXPECT_TRUE(crece.Cargar(texto));
    EXPECT_EQ(crece.l.lblSorteosCargados, "40000");

    Carga mengua;
    mengua.EnTurno(1, [&] { std::filesystem::resize_file(mengua.ruta, 300000); });
    mengua.Cargar(texto);
    if (mengua.Cajas.empty()) {
        EXPECT_LT(std::stoi(mengua.l.lblSorteosCargados), 40000);
    } else {
        mengua.EsperarVacia();
    }
}

TEST(FicheroSorteos, BotonesDelFichero) {
    Carga c;
    EscribirTodo(c.ruta, Buena);
    c.l.cmdAbrirEstadisticas(); // cancelled
    EXPECT_EQ(c.l.txtFicheroASCII, "");
    c.Ficheros = {c.ruta};
    c.l.cmdAbrirEstadisticas();
    EXPECT_EQ(c.l.lblSorteosCargados, "1");
    EXPECT_EQ(c.Peticiones.back().Titulo, "Abrir Fichero");
    EXPECT_EQ(c.Peticiones.back().Nombre, "estadisticas_local.txt");
    EXPECT_FALSE(c.sesion.trabajo.FormularioBloqueado);

    // A long job elsewhere keeps its tables and its count.
    c.sesion.trabajo.FormularioBloqueado = true;
    c.l.cmdAbrirEstadisticas();
    c.l.imgINIFichero();
    EXPECT_FALSE(c.l.ActualizarDesdeInternet());
    EXPECT_TRUE(c.sesion.trabajo.FormularioBloqueado);
    EXPECT_EQ(c.l.lblSorteosCargados, "1");
    c.sesion.trabajo.FormularioBloqueado = false;

    c.l.imgINIFichero();
    c.EsperarVacia();
    EXPECT_EQ(c.l.txtFicheroASCII, "");
    EXPECT_EQ(c.sesion.trabajo.NApuestasImportadas, 0);
    EXPECT_EQ(c.Cajas, Textos{});
}

TEST(FicheroSorteos, EscribirEsTodoONada) {
    Carga c;
    const std::string antes = "lo de antes";
    EscribirTodo(c.ruta, antes);
    Sorteos sorteos = SorteosInventados(PRIMITIVA, 20);
    sorteos[11].dia = 0;
    std::string fallo;
    EXPECT_FALSE(EscribirFicheroSorteos(c.ruta, sorteos, fallo));
    EXPECT_EQ(fallo, "el día del sorteo 12 de 1990 no es ninguno de L, M, X, J, V, S y D");
    EXPECT_EQ(LeerTodo(c.ruta), antes);
    EXPECT_FALSE(EscribirFicheroSorteos("/dev/full", SorteosInventados(PRIMITIVA, 20), fallo));
    EXPECT_EQ(fallo, "no queda espacio en el disco");
}

} // namespace
