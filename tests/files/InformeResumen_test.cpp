#include "InformeResumen.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "Sesiones.h"
#include "TablaFiltros.h"

namespace {

const std::string Cabecera = "RESUMEN\n\nPrograma           : TOMBOLERA 11.1\n";

// What stands behind the heading of the conditions.
std::string Condicion(Guion& guion, FilaDe k) {
    guion.sesion.condiciones.lstFiltros[k].Activo = true;
    const std::string texto = TextoResumen(guion.sesion, guion.entorno), titulo = "\nFILTROS\n\n";
    const size_t desde = texto.find(titulo);
    EXPECT_NE(desde, std::string::npos) << texto;
    return desde == std::string::npos ? "" : texto.substr(desde + titulo.size());
}

struct CasoSeccion {
    FilaDe k;
    std::function<void(Condiciones&)> llenar;
    std::string esperada;
};

std::string Repetir(int desde, int hasta, const std::function<std::string(int)>& linea) {
    std::string texto;
    for (int i = desde; i <= hasta; ++i) texto += linea(i);
    return texto;
}

// The lines of a ticket of 49 with `valor` at 49 and nothing else.
std::string Rejilla(const std::string& vacia, const std::string& valor) {
    return Repetir(0, 9, [&](int r) {
        std::string linea(r == 0 ? vacia.size() : 0, ' ');
        for (int c = r == 0 ? 1 : 0; c < 5; ++c) linea += r == 9 && c == 4 ? valor : vacia;
        return linea + "\n";
    });
}

std::string Intervalos(int cuantos, int usado, const std::string& limites) {
    return Repetir(1, cuantos, [&](int i) {
        return "Intervalo " + std::to_string(i) + "(Suma Mín-Máx): " + (i == usado ? limites : "0-0") + "\n";
    });
}

const std::vector<CasoSeccion>& Casos() {
    static const std::vector<CasoSeccion> casos{
        {kALTOSBAJOS, [](auto& c) { c.ALTOSBAJOS.Altos = {1, 0, 1, 1, 0, 0, 2}; },
         "Filtro BAJOS Y ALTOS:\nNúmeros 01 al 24: \nNúmeros 25 al 49: 0,2,3\n\n"},
        {kDECENAS,
         [](auto& c) {
             c.DECENAS.Decena[1][6] = c.DECENAS.Decena[4][0] = 1;
             c.DECENAS.FigurasDecenas[0] = c.DECENAS.FigurasDecenas[5] = c.DECENAS.FigurasDecenas[9] = 1;
         },
         "Filtro DECENAS:\nDecena del 01 al 09: \nDecena del 10 al 19: 6\nDecena del 20 al 29: \nDecena del 30 al 39: "
         "\n"
         "Decena del 40 al 49: 0\nFiguras jugadas: 6-0,3-2-1,2-1-1-1-1\n\n"},
        {kDECENAS, [](auto&) {},
         "Filtro DECENAS:\nDecena del 01 al 09: \nDecena del 10 al 19: \nDecena del 20 al 29: \nDecena del 30 al 39: \n"
         "Decena del 40 al 49: \n"},
        {kDISTANCIAS,
         [](auto& c) {
             c.DISTANCIAS.Distancia[0] = {1, 9};
             c.DISTANCIAS.Distancia[5] = {20, 48};
         },
         "Filtro DISTANCIAS:\nDistancia entre números 1 y 2(Mín-Máx): 1-9\n"
         "Distancia entre números 2 y 3(Mín-Máx): 0-0\nDistancia entre números 3 y 4(Mín-Máx): 0-0\n"
         "Distancia entre números 4 y 5(Mín-Máx): 0-0\nDistancia entre números 5 y 6(Mín-Máx): 0-0\n"
         "Distancia general números del 1 al 6(Mín-Máx): 20-48\n\n"},
        {kGRUPOS,
         [](auto& c) {
             c.GRUPOS.grupo[0].numeros[5] = 1; // without hits: not in use
             GrupoNumeros& g = c.GRUPOS.grupo[209];
             g.numeros[1] = g.numeros[49] = g.aciertos[0] = g.aciertos[2] = 1;
             g.posiciones = {1, 0, 0, 0, 0, 1};
         },
         "Filtro GRUPOS DE NUMEROS:\nGrupo 210\nNúmeros en el grupo: 1,49\nAciertos en el grupo: 0,2\n"
         "Posiciones en el grupo: 1,6\n\n"},
        {kGRUPOSRELACIONADOS,
         [](auto& c) {
             auto& r = c.GRUPOSRELACIONADOS;
             r.condiciones[0][1] = 1; // of a group without numbers
             r.subgrupos[59 * 6][7] = r.subgrupos[59 * 6][12] = r.subgrupos[59 * 6 + 5][49] = 1;
             r.condiciones[59 * 6 + 2] = {0, 1, 1, 0, 0, 0, 0};
             r.condiciones[59 * 6 + 5][4] = 1;
         },
         "Filtro GRUPOS RELACIONADOS:\nGRUPO 60\nNúmeros en Subgrupo 1: 7 12\nNúmeros en Subgrupo 6: 49\n"
         "Aciertos en algún Subgrupo: 1,2\nAciertos en algún Subgrupo: 4\n\n"},
        {kHOMOLOGOS, [](auto& c) { c.HOMOLOGOS.HomologosAcertados[2] = c.HOMOLOGOS.HomologosAcertados[6] = 1; },
         "Filtro HOMOLOGOS:\nHomólogos acertados: 2,6\n\n"},
        {kPARESIMPARES, [](auto& c) { c.PARESIMPARES.ParesActivos = {1, 0, 0, 1, 0, 0, 1}; },
         "Filtro PARES E IMPARES:\nNúmeros jugados (Pares-Impares): 0-6,3-3,6-0\n\n"},
        {kSEGUIDOS,
         [](auto& c) {
             c.SEGUIDOS.NumerosSeguidos[1] = c.SEGUIDOS.NumerosSeguidos[3] = 1;
             c.SEGUIDOS.FigurasSeguidos[0] = c.SEGUIDOS.FigurasSeguidos[10] = 1;
         },
         "Filtro SEGUIDOS:\nNúmeros Seguidos: 1,3\nFiguras jugadas: 6-0,1-1-1-1-1-1\n\n"},
        {kSEGUIDOS, [](auto&) {}, "Filtro SEGUIDOS:\nNúmeros Seguidos: \n"},
        {kSUMAS,
         [](auto& c) {
             c.SUMAS.intervalos[9] = {100, 150};
         },
         "Filtro SUMAS:\n" + Intervalos(10, 10, "100-150") + "\n"},
        {kTERMINACIONES,
         [](auto& c) {
             c.TERMINACIONES.TerminadosEn[0] = {1, 1, 0, 0, 0, 0, 0};
             c.TERMINACIONES.TerminadosEn[9][2] = 1;
             c.TERMINACIONES.FigurasTerminaciones[0] = c.TERMINACIONES.FigurasTerminaciones[9] = 1;
             c.TERMINACIONES.SumaMinima = 10;
         },
         "Filtro TERMINACIONES:\nTerminados en 0: 0,1\nTerminados en 9: 2\nFiguras jugadas: 5-1,1-1-1-1-1-1\n"
         "Suma de Terminaciones: 10-53\n\n"},
        {kTERMINACIONES, [](auto&) {}, "Filtro TERMINACIONES:\nSuma de Terminaciones: 2-53\n\n"},
        {kPOSICIONES, [](auto& c) { c.POSICIONES.Bola[1][2] = c.POSICIONES.Bola[1][49] = 1; },
         "Filtro POSICIONES:\nNúmeros seleccionados en cada bola:\nBOLA 1: -\nBOLA 2: 2,49\nBOLA 3: -\nBOLA 4: -\n"
         "BOLA 5: -\nBOLA 6: -\n\n"},
        {kEXTERIORESINTERIORES,
         [](auto& c) { c.EXTERIORESINTERIORES.ExterioresInterioresActivos = {0, 1, 1, 0, 0, 0, 0}; },
         "Filtro EXTERIORES/INTERIORES:\nNúmeros jugados (Exteriores-Interiores): 1-5,2-4\n\n"},
        {kSUPERIORESINFERIORES,
         [](auto& c) { c.SUPERIORESINFERIORES.SuperioresInferioresActivos = {0, 0, 0, 0, 1, 1, 0}; },
         "Filtro SUPERIORES/INFERIORES:\nNúmeros jugados (Superiores-Inferiores): 4-2,5-1\n\n"},
        {kCOLINDANTES, [](auto& c) { c.COLINDANTES.ColindantesAcertados = {1, 0, 1, 0, 0, 0, 1}; },
         "Filtro COLINDANTES:\nColindantes acertados: 0,2,6\n\n"},
        {kSUMASPORTRIOS,
         [](auto& c) {
             c.SUMASPORTRIOS.intervalosT1[0] = {6, 60};
             c.SUMASPORTRIOS.intervalosT2[4] = {90, 144};
         },
         "Filtro SUMAS POR TRIOS:\nTres Primeros Números:\n" + Intervalos(5, 1, "6-60") + "Tres Ultimos Números:\n" +
             Intervalos(5, 5, "90-144") + "\n"},
        {kVALORACIONES,
         [](auto& c) {
             c.VALORACIONES.grupo[0].valoraciones[1] = 9; // without bounds: not in use
             c.VALORACIONES.grupo[9].intervalos[3] = {0, 300};
             c.VALORACIONES.grupo[9].valoraciones[49] = 7;
         },
         "Filtro VALORACIONES:\nGrupo 10\nIntervalo 1(Mín-Máx): 0-0\nIntervalo 2(Mín-Máx): 0-0\n"
         "Intervalo 3(Mín-Máx): 0-0\nIntervalo 4(Mín-Máx): 0-300\nValoraciones:\n" +
             Rejilla(" ---", "   7") + "\n"},
        {kCOEFICIENTERENTABILIDAD,
         [](auto& c) {
             auto& r = c.COEFICIENTERENTABILIDAD;
             r.PorcentajesApostados.fill(0);
             r.PorcentajesReales.fill(0);
             r.PorcentajesApostados[49] = 12.6;
             r.PorcentajesReales[49] = 12.2514;
             r.RangosCR[0] = r.RangosCR[11] = r.RangosCR[99] = r.RangosCR[100] = 1;
         },
         "Filtro COEFICIENTE RENTABILIDAD:\nPorcentajes Probabilidad Apostada:\n" + Rejilla(" -----", "  12,6") +
             "Porcentajes Probabilidad Real:\n" + Rejilla("   -----", " 12,2514") +
             "CR seleccionados : 0,0 1,1 9,9\n\n"},
        {kGRUPOSENTRELIMITES,
         [](auto& c) {
             auto& r = c.GRUPOSENTRELIMITES;
             r.grupo[3].numeros[40] = r.grupo[3].aciertos[1] = r.grupo[3].aciertos[6] = 1;
             r.aciertosMinimoGRUPOSENTRELIMITES = 1;
         },
         "Filtro GRUPOS ENTRE LIMITES:\nGrupo 4\nNúmeros en el grupo: 40\nAciertos en el grupo: 1,6\n"
         "Límites de Grupos Acertados: 1 - 210\n\n"},
    };
    return casos;
}

} // namespace

TEST(InformeResumen, CadaCondicionTieneSuSeccion) {
    for (const CasoSeccion& caso : Casos()) {
        Guion guion;
        caso.llenar(guion.sesion.condiciones);
        EXPECT_EQ(Condicion(guion, caso.k), caso.esperada);
    }
}

// The days are told by a mapping of the report's own, whatever the list of days calls them.
TEST(InformeResumen, LosBloquesDeSorteosAnteriores) {
    struct Dia {
        int16_t codigo;
        std::string nombre;
    };
    for (const Dia& dia : {Dia{0, "Todos"}, {1, "Jueves"}, {4, "Sábado"}, {6, "Sábado"}}) {
        Guion guion;
        guion.sesion.condiciones.SORTEOSANTERIORES.grupo[19] = {{2023, 5}, {2024, 104}, dia.codigo,
                                                                1,         2000000000,  {0, 0, 0, 1, 1, 0, 0}};
        EXPECT_EQ(Condicion(guion, kSORTEOSANTERIORES),
                  "Filtro SORTEOS ANTERIORES:\nGRUPO 20\nDesde el sorteo 5 de 2023 hasta el sorteo 104 de 2024\n"
                  "En los días : " +
                      dia.nombre + "\nEn Mínimo 1 Sorteos y Máximo 2000000000 Sorteos\nSe han de acertar : 3,4\n\n");
    }
}

TEST(InformeResumen, LasSeccionesVanEnElOrdenDeLaLista) {
    Guion guion;
    for (FilaFiltro& fila : guion.sesion.condiciones.lstFiltros) fila.Activo = true;
    const std::string texto = TextoResumen(guion.sesion, guion.entorno);
    size_t desde = texto.find("\nFILTROS\n");
    for (const DescripcionFiltro& filtro : TablaFiltros) {
        const size_t hay = texto.find("\n" + std::string(filtro.Resumen) + "\n", desde);
        ASSERT_NE(hay, std::string::npos) << filtro.nombre;
        desde = hay;
    }
    EXPECT_EQ(texto.find("Filtro ", desde + 8), std::string::npos);
}

TEST(InformeResumen, ElBoletoDeCadaJuego) {
    Guion guion;
    guion.Marcar({1, 10, 29, 40, 49});
    guion.MarcarDigitos({0, 5, 9});
    guion.sesion.trabajo.cboTipoReintegro = Secuenciales;
    const std::string numeros = "COMBINACION BASE\n\nNUMEROS\n    10 -- -- 40\n 01 -- -- -- --\n -- -- -- -- --\n"
                                " -- -- -- -- --\n -- -- -- -- --\n -- -- -- -- --\n -- -- -- -- --\n"
                                " -- -- -- -- --\n -- -- -- -- --\n -- -- 29 -- 49\n";
    const auto resumen = [&guion] { return TextoResumen(guion.sesion, guion.entorno); };
    EXPECT_EQ(resumen(), Cabecera +
                             "Tipo de Juego      : PRIMITIVA\nNombre combinación : Sin guardar.xml\n"
                             "Nº de Apuestas     : 0\n\n" +
                             numeros + "\nREINTEGROS (Secuenciales)\n 00  --  --  --  -- \n 05  --  --  --  09 \n");
    CambiarJuego(guion.sesion, BONOLOTO);
    guion.Marcar({1, 10, 29, 40, 49});
    guion.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true; // it has no section, nor a heading
    EXPECT_EQ(resumen(), Cabecera +
                             "Tipo de Juego      : BONOLOTO\nNombre combinación : Sin guardar.xml\n"
                             "Nº de Apuestas     : 0\n\n" +
                             numeros);
    CambiarJuego(guion.sesion, EURODREAMS);
    guion.Marcar({1, 6, 13, 40, 41});
    guion.MarcarDigitos({2, 4});
    EXPECT_EQ(resumen(), Cabecera + "Tipo de Juego      : EURODREAMS\nNombre combinación : Sin guardar.xml\n"
                                    "Nº de Apuestas     : 0\n\nCOMBINACION BASE\n\nNUMEROS\n"
                                    " 01  --  --  --  -- \n 06  --  --  --  -- \n --  --  13  --  -- \n"
                                    " --  --  --  --  -- \n --  --  --  --  -- \n --  --  --  --  -- \n"
                                    " --  --  --  --  -- \n --  --  --  --  40 \n\n"
                                    "SUEÑOS (Secuenciales)\n --  02  --  04  -- \n");
}

TEST(InformeResumen, ElNumeroDeApuestas) {
    struct Caso {
        int32_t importadas, condicionadas, reducidas;
        std::string esperado;
    };
    for (const Caso& caso :
         {Caso{0, 924, 0, "924"}, {0, 13983816, 1, "1"}, {7, 924, 0, "0"}, {7, 924, 1234567, "1.234.567"}}) {
        Guion guion;
        guion.sesion.trabajo.NApuestasImportadas = caso.importadas;
        guion.sesion.trabajo.Contador.Condicionadas = caso.condicionadas;
        guion.sesion.trabajo.Contador.Reducidas = caso.reducidas;
        const std::string texto = TextoResumen(guion.sesion, guion.entorno);
        EXPECT_NE(texto.find("\nNº de Apuestas     : " + caso.esperado + "\n\n"), std::string::npos) << texto;
    }
}

TEST(InformeResumen, LaBaseDesdeFicheroVaEntreElBoletoYLasCondiciones) {
    Guion guion;
    guion.sesion.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    guion.sesion.trabajo.txtFicheroASCII = "/casa/mis apuestas.txt";
    guion.sesion.trabajo.Titulo = "TOMBOLERA 11.1 - Fichero : año nuevo.xml";
    std::string texto = TextoResumen(guion.sesion, guion.entorno);
    EXPECT_NE(texto.find("\nNombre combinación : año nuevo.xml\n"), std::string::npos);
    EXPECT_TRUE(texto.ends_with(" -- \n\nBase desde Fichero : mis apuestas.txt\n\n")) << texto;
    guion.sesion.condiciones.lstFiltros[kHOMOLOGOS].Activo = true;
    texto = TextoResumen(guion.sesion, guion.entorno);
    EXPECT_TRUE(texto.ends_with("mis apuestas.txt\n\n\nFILTROS\n\nFiltro HOMOLOGOS:\nHomólogos acertados: \n\n"))
        << texto;
}

TEST(InformeResumen, SeEscribeEnOchoBitsYSeMuestra) {
    const CarpetaTemporal carpeta;
    Guion guion;
    guion.entorno.CarpetaInformes = carpeta.Ruta();
    guion.sesion.trabajo.Titulo = "TOMBOLERA 11.1 - Fichero : Ω año.xml";
    EscribirTodo(carpeta.Ruta("TOMBOLERA_INFORME.txt"), std::string(100000, 'x'));
    EXPECT_TRUE(VerResumenFiltros(guion.sesion, guion.entorno));
    const std::string bytes = LeerTodo(carpeta.Ruta("TOMBOLERA_INFORME.txt"));
    EXPECT_NE(bytes.find("Nombre combinaci\xF3n : ? a\xF1o.xml\r\nN\xBA de Apuestas     : 0\r\n\r\n"),
              std::string::npos);
    EXPECT_TRUE(bytes.ends_with(" --  --  --  --  -- \r\n"));
    EXPECT_EQ(guion.Informes, Textos{carpeta.Ruta("TOMBOLERA_INFORME.txt")});
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(InformeResumen, SinCarpetaSaleLaCaja) {
    const CarpetaTemporal carpeta;
    Guion guion;
    guion.entorno.CarpetaInformes = carpeta.Ruta("no-hay");
    EXPECT_FALSE(VerResumenFiltros(guion.sesion, guion.entorno));
    ASSERT_EQ(guion.Cajas.size(), 1u);
    EXPECT_TRUE(guion.Cajas[0].starts_with("[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (")) << guion.Cajas[0];
    EXPECT_EQ(guion.Cajas[0].back(), ')');
    EXPECT_EQ(guion.Informes, Textos{});
}
