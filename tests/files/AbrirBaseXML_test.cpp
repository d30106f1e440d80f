#include <algorithm>

#include <gtest/gtest.h>

#include "Base.h"

namespace {

const std::string CajaErrores = "[X] ERRORES detectados al abrir la BASE:\n\n";
const std::string ErrorFichero = CajaErrores + "FICHERO : ERROR AL ABRIR EL FICHERO\n";

std::string Documento(const std::string& bloques) {
    return "<XML><BASE>" + bloques + "</BASE></XML>";
}

std::string Filtro(const std::string& nombre, const std::string& contenido, const std::string& activado = "0") {
    return Documento("<Filtros><Filtro nombre='" + nombre + "' activado='" + activado + "'>" + contenido +
                     "</Filtro></Filtros>");
}

} // namespace

TEST(AbrirBaseXML, EmpiezaDeCeroYSeTitulaConElNombre) {
    Base base;
    base.Marcar({1, 2, 3});
    base.sesion.condiciones.lstFiltros[3].Activo = true;
    base.sesion.condiciones.SUMAS.intervalos[0] = {21, 100};
    base.sesion.condiciones.SorteosFiltro.resize(7); // stay: they are the game's
    base.sesion.trabajo.CombinacionGuardada = false;
    EXPECT_TRUE(base.Abrir(Documento("<Reduccion><Tipo valor='3'/></Reduccion>"), "peña.xml"));
    EXPECT_EQ(base.sesion.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : peña.xml");
    EXPECT_TRUE(base.sesion.trabajo.CombinacionGuardada);
    EXPECT_TRUE(base.Tiene("<Base_Numeros numeros=''/>"));
    EXPECT_TRUE(base.Tiene("<intervalo numero='1' suma='0-0'/>"));
    EXPECT_FALSE(base.sesion.condiciones.lstFiltros[3].Activo);
    EXPECT_EQ(base.sesion.condiciones.lstFiltros[FilaReduccion].NumeroActivos, "al 3");
    EXPECT_TRUE(base.sesion.condiciones.lstFiltros[FilaReduccion].Activo);
    EXPECT_EQ(base.sesion.condiciones.SorteosFiltro.size(), 7u);
}

TEST(AbrirBaseXML, PideElFicheroYNadaPasaSiNoSeElige) {
    Base base;
    base.Marcar({1, 2, 3});
    base.Ficheros = {"  "};
    EXPECT_FALSE(AbrirBaseXML(base.sesion, base.entorno));
    EXPECT_TRUE(base.Tiene("<Base_Numeros numeros='1,2,3'/>"));
    ASSERT_EQ(base.Peticiones.size(), 1u);
    EXPECT_EQ(base.Peticiones[0].Titulo, "Abrir Fichero BASE en XML");
    EXPECT_EQ(base.Peticiones[0].Filtros[0].first, "Fichero BASE de TOMBOLERA (*.XML)");
}

TEST(AbrirBaseXML, ElJuegoDelFichero) {
    struct Caso {
        std::string atributo;
        int juego;
        bool error;
    };
    const std::vector<Caso> casos{
        {"IDtipojuego='0'", PRIMITIVA, false},
        {"IDtipojuego='1'", BONOLOTO, false},
        {"IDtipojuego='2'", EURODREAMS, false},
        {"IDtipojuego='3'", BONOLOTO, false},
        {"IDtipojuego='70000'", BONOLOTO, false},
        {"IDtipojuego='-1'", BONOLOTO, true},
        {"IDtipojuego=''", BONOLOTO, true},
        {"IDtipojuego='dos'", BONOLOTO, true},
        {"tipojuego='EURODREAMS' version='99'", BONOLOTO, false},
    };
    for (const Caso& caso : casos) {
        Base base;
        CambiarJuego(base.sesion, BONOLOTO);
        EXPECT_TRUE(base.Abrir(Documento("<Programa " + caso.atributo + "/><Complementario valor='7'/>")));
        EXPECT_EQ(base.sesion.trabajo.cboTipoJuego, caso.juego) << caso.atributo;
        EXPECT_EQ(base.sesion.referencia.Complementario, 7);
        ASSERT_EQ(base.Cajas.size(), caso.error ? 1u : 0u) << caso.atributo;
        EXPECT_EQ(caso.error, !base.Cajas.empty() && base.Cajas[0].starts_with(CajaErrores + "TIPOJUEGO : "));
    }
}

TEST(AbrirBaseXML, NombresYAlturas) {
    Base base;
    const std::string bloque = "<pArEsAcTiVoS valores=' 2 , 3 '/>";
    const std::string filtro = "<FILTROS><!-- nota --><filtro nombre='ParesImpares' activado='1'>" + bloque +
                               "</filtro><Filtro nombre='OTRO' activado='1'/><raro/></FILTROS>";
    EXPECT_TRUE(base.Abrir("<?xml version='1.0'?><otro><nombre>" + filtro + "</nombre></otro>"));
    EXPECT_TRUE(base.Tiene("<ParesActivos valores='2,3' />"));
    EXPECT_TRUE(base.Tiene("<Filtro nombre='PARESIMPARES' activado='1'>"));
    for (const std::string& altura : {"<BASE>" + filtro + "</BASE>", "<a><b><c>" + filtro + "</c></b></a>"}) {
        EXPECT_TRUE(base.Abrir(altura));
        EXPECT_TRUE(base.Tiene("<ParesActivos valores='' />"));
    }
    EXPECT_EQ(base.Cajas, Textos{});
}

TEST(AbrirBaseXML, ActivadoSoloEncienteConUnUno) {
    for (const auto& [activado, encendida] : std::vector<std::pair<std::string, bool>>{
             {"1", true}, {"0", false}, {"2", false}, {"-1", false}, {"Sí", false}, {"", false}}) {
        Base base;
        EXPECT_TRUE(base.Abrir(Filtro("SUMAS", "", activado)));
        EXPECT_EQ(base.sesion.condiciones.lstFiltros[8].Activo, encendida) << activado;
        EXPECT_EQ(base.Cajas, Textos{}) << activado;
    }
}

TEST(AbrirBaseXML, LosSubgruposCierranHuecosYSusCondicionesNo) {
    Base base;
    EXPECT_TRUE(
        base.Abrir(Filtro("GRUPOSRELACIONADOS", "<grupo numero='2'><subgrupos><subgrupo numero='7' numeros='1,2'/>"
                                                "<subgrupo numero='9' numeros='3'/></subgrupos><condiciones>"
                                                "<aciertos bloque='1' valores='1'/><aciertos bloque='3' valores='0,1'/>"
                                                "</condiciones></grupo>")));
    const std::string texto = base.Texto();
    EXPECT_NE(texto.find("<subgrupo numero='7' numeros='1,2' />\r\n<subgrupo numero='8' numeros='3' />\r\n"
                         "</subgrupos>\r\n<condiciones>\r\n<aciertos bloque='1' valores='1' />\r\n"
                         "<aciertos bloque='3' valores='0,1' />\r\n"),
              std::string::npos);
    EXPECT_EQ(base.sesion.condiciones.lstFiltros[4].NumeroActivos, "1 de 60");
}

TEST(AbrirBaseXML, ConApuestasImportadasSoloCambianFiltrosYReduccion) {
    Base base;
    base.sesion.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    base.sesion.trabajo.txtFicheroASCII = "/datos/mias.txt";
    base.Marcar({40, 41});
    EXPECT_TRUE(base.Abrir(Documento("<Combinacion><Base_Numeros numeros='1,2'/></Combinacion><BaseASCII valor='x'/>"
                                     "<Reduccion><Porcentaje valor='50'/></Reduccion>")));
    EXPECT_EQ(base.Cajas, Textos{});
    EXPECT_TRUE(base.Tiene("<Base_Numeros numeros='40,41'/>"));
    EXPECT_TRUE(base.Tiene("<BaseASCII valor='/datos/mias.txt' />"));
    EXPECT_TRUE(base.Tiene("<Porcentaje valor='50' />"));
}

TEST(AbrirBaseXML, AvisaDeLaBaseImportadaDetrasDeLosErrores) {
    Base base;
    EXPECT_TRUE(base.Abrir(Documento("<BaseASCII valor='C:\\a&amp;b.txt'/><Complementario valor='x'/>")));
    ASSERT_EQ(base.Cajas.size(), 2u);
    EXPECT_EQ(base.Cajas[0], CajaErrores + "COMPLEMENTARIO : valor no válido: 'x'\n");
    EXPECT_EQ(base.Cajas[1], "[!] AVISO : La Base fue importada desde el fichero en ASCII: (C:\\a&b.txt)\nDebe "
                             "importarlo de nuevo con la opción 'Desde Archivo' si quiere que su Combinación parta de "
                             "dicho fichero.");
    EXPECT_TRUE(base.sesion.trabajo.txtFicheroASCII.empty());
}

// Every block with something bad in it: reported once under its name, and what is good around counts.
TEST(AbrirBaseXML, CadaBloqueInformaDeSuUltimoFalloYLoBuenoCuenta) {
    struct Caso {
        std::string documento, nombre, linea;
    };
    const std::string cienMil(200000, ',');
    const std::vector<Caso> casos{
        {Documento("<Combinacion><Base_Numeros numeros='0,5,50,70000,-1,x,,6'/></Combinacion>"), "NUMEROS-REINTEGROS",
         "<Base_Numeros numeros='5,6'/>"},
        {Documento("<Combinacion><Base_Reintegros numeros='3,10' tipo='1'/></Combinacion>"), "NUMEROS-REINTEGROS",
         "<Base_Reintegros numeros='3' tipo='1' tipoDescripcion='Secuenciales' />"},
        {Documento("<Combinacion><Base_Reintegros numeros='3' tipo='3'/></Combinacion>"), "NUMEROS-REINTEGROS",
         "<Base_Reintegros numeros='3' tipo='0' tipoDescripcion='Al directo' />"},
        {Documento("<CombinacionGanadora valor='1,2,300,4,5,6,7'/>"), "COMBINACION GANADORA",
         "<CombinacionGanadora valor='1,2,0,4,5,6' />"},
        {Documento("<Complementario valor='256'/>"), "COMPLEMENTARIO", "<Complementario valor='0' />"},
        {Documento("<Complementario valor=''/>"), "COMPLEMENTARIO", "<Complementario valor='0' />"},
        {Documento("<BaseASCII/>"), "BASE ASCII", "<BaseASCII valor='' />"},
        {Documento("<Reduccion><Tipo valor='2'/><Porcentaje valor='40000'/></Reduccion>"), "REDUCCION",
         "<Tipo descripcion='al 4' valor='2' />"},
        {Documento("<Reduccion><NuApuestas valor='3000000000'/></Reduccion>"), "REDUCCION", "<NuApuestas valor='1' />"},
        {Filtro("ALTOSBAJOS", "<Bajos valores='7,2'/><Altos/>"), "BAJOS Y ALTOS", "<Bajos valores='2' />"},
        {Filtro("DECENAS", "<FigurasDecenas valores='1,256,1,0,0,0,0,0,0,0,1'/>"), "DECENAS",
         "<FigurasDecenas valores='1,0,1,0,0,0,0,0,0,0'/>"},
        {Filtro("DISTANCIAS", "<Distancia12Minima valor='70000'/><Distancia12Maxima valor='9'/>"), "DISTANCIAS",
         "<Distancia12Maxima valor='9' />"},
        {Filtro("GRUPOS", "<grupo numero='211'><aciertos valores='1'/></grupo><grupo numero='210'><aciertos "
                          "valores='2'/><posiciones valores='0,0,0,0,0,1,1'/></grupo>"),
         "GRUPOS DE NUMEROS", "<posiciones valores='0,0,0,0,0,1' />"},
        {Filtro("GRUPOS", "<grupo numero='0'/><grupo/><grupo numero='1'><aciertos valores='3'/></grupo>"),
         "GRUPOS DE NUMEROS", "<aciertos valores='3' />"},
        {Filtro("GRUPOSRELACIONADOS", "<grupo numero='1'><subgrupos><s numeros='1'/><s numeros='2'/><s numeros='3'/>"
                                      "<s numeros='4'/><s numeros='5'/><s numeros='6'/><s numeros='7'/></subgrupos>"
                                      "<condiciones><aciertos bloque='7' valores='1'/></condiciones></grupo>"),
         "GRUPOS RELACIONADOS", "<subgrupo numero='6' numeros='6' />"},
        {Filtro("GRUPOSRELACIONADOS", "<grupo numero='61'><subgrupos><s numeros='1'/></subgrupos></grupo>"),
         "GRUPOS RELACIONADOS", "<Filtro nombre='GRUPOSRELACIONADOS' activado='0'>"},
        {Filtro("HOMOLOGOS", "<HomologosAcertados valores='1,,2'/>"), "HOMOLOGOS",
         "<HomologosAcertados valores='1,2' />"},
        {Filtro("PARESIMPARES", "<ParesActivos valores='3," + cienMil + "'/>"), "PARES E IMPARES",
         "<ParesActivos valores='3' />"},
        {Filtro("SEGUIDOS", "<NumerosSeguidos valores='6'/><FigurasSeguidos/>"), "SEGUIDOS",
         "<NumerosSeguidos valores='6' />"},
        {Filtro("SUMAS", "<intervalos><intervalo numero='11' suma='1-2'/><intervalo numero='1' suma='21-x'/>"
                         "<intervalo numero='2' suma='30'/></intervalos>"),
         "SUMAS", "<intervalo numero='2' suma='30-0'/>"},
        {Filtro("TERMINACIONES", "<TerminadosEn id='10' valores='1'/><SumaTerminaciones suma='3-256'/>"),
         "TERMINACIONES", "<SumaTerminaciones suma='3-53'/>"},
        {Filtro("POSICIONES", "<Bola id='7' valores='1'/><Bola id='6' valores='0,49,50'/>"), "POSICIONES",
         "<Bola id='6' valores='49' />"},
        {Filtro("EXTERIORESINTERIORES", "<ExterioresInterioresActivos valores='-1,1'/>"), "EXTERIORES INTERIORES",
         "<ExterioresInterioresActivos valores='1' />"},
        {Filtro("SUPERIORESINFERIORES", "<SuperioresInferioresActivos valores='1.5,1'/>"), "SUPERIORES INFERIORES",
         "<SuperioresInferioresActivos valores='1' />"},
        {Filtro("COLINDANTES", "<ColindantesAcertados valores='99999999999,4'/>"), "COLINDANTES",
         "<ColindantesAcertados valores='4' />"},
        {Filtro("SORTEOSANTERIORES", "<grupo numero='21'/><grupo numero='20'><sorteoDESDE numero='32768' anio='2023'/>"
                                     "<acertarEN valores='3'/></grupo>"),
         "SORTEOS ANTERIORES", "<sorteoDESDE numero='1' anio='2023'/>"},
        {Filtro("SUMASPORTRIOS", "<intervalosT2><intervalo numero='0' suma='1-2'/><intervalo numero='5' suma='6-7'/>"
                                 "</intervalosT2>"),
         "SUMASPORTRIOS", "<intervalo numero='5' suma='6-7'/>"},
        {Filtro("VALORACIONES", "<grupo numero='10'><intervalos><intervalo numero='4' valores='1-2'/><intervalo "
                                "numero='5' valores='1-2'/></intervalos><valoraciones valores='40000,7'/></grupo>"),
         "VALORACIONES", "<intervalo numero='4' valores='1-2'/>"},
        {Filtro("COEFICIENTERENTABILIDAD", "<PorcentajesReales valores='4.5,nan,inf,1e999,4;5,'/><RangosCR "
                                           "valores='101,100'/>"),
         "COEFICIENTERENTABILIDAD", "<RangosCR valores='100' />"},
        {Filtro("GRUPOSENTRELIMITES", "<aciertosMinimoGRUPOSENTRELIMITES/><aciertosMaximoGRUPOSENTRELIMITES "
                                      "valor='9'/>"),
         "GRUPOS ENTRE LIMITES", "<aciertosMaximoGRUPOSENTRELIMITES valor='9' />"},
        {Documento("<Filtros><Filtro nombre='SUMAS'/></Filtros>"), "SUMAS", "<Filtro nombre='SUMAS' activado='0'>"},
    };
    for (const Caso& caso : casos) {
        Base base;
        EXPECT_TRUE(base.Abrir(caso.documento));
        ASSERT_EQ(base.Cajas.size(), 1u) << caso.nombre;
        const std::string& caja = base.Cajas[0];
        EXPECT_TRUE(caja.starts_with(CajaErrores + caso.nombre + " : ")) << caja;
        EXPECT_EQ(std::count(caja.begin(), caja.end(), '\n'), 3) << caja;
        EXPECT_TRUE(base.Tiene(caso.linea)) << caso.nombre << " " << caja << base.Texto();
    }
}

TEST(AbrirBaseXML, LosBlancosYLasListasVaciasNoFallan) {
    Base base;
    EXPECT_TRUE(base.Abrir(Documento("<Combinacion><Base_Numeros numeros='  '/><Base_Reintegros numeros='' tipo='0'/>"
                                     "</Combinacion><Filtros><Filtro nombre='DECENAS' activado='0'><Decena0109 "
                                     "valores=' '/><FigurasDecenas valores=''/></Filtro></Filtros>")));
    EXPECT_EQ(base.Cajas, Textos{});
}

TEST(AbrirBaseXML, LoQueNoEsUnDocumentoDejaElEstadoReiniciado) {
    const std::vector<std::string> malos{
        "",
        " \r\n",
        "<XML><BASE>",
        "<XML></BASE></XML>",
        "texto",
        "<a/><b/>",
        "<a b=c/>",
        std::string(1000, '\0'),
        std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
    };
    for (const std::string& malo : malos) {
        Base base;
        base.Marcar({1, 2});
        base.sesion.trabajo.CombinacionGuardada = false;
        EXPECT_FALSE(base.Abrir(malo, "mala.xml"));
        EXPECT_EQ(base.Cajas, Textos{ErrorFichero}) << malo;
        EXPECT_TRUE(base.Tiene("<Base_Numeros numeros=''/>"));
        EXPECT_EQ(base.sesion.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : mala.xml");
        EXPECT_TRUE(base.sesion.trabajo.CombinacionGuardada);
    }
    Base base;
    for (const std::string& ruta :
         {base.carpeta.Ruta("no-existe.xml"), base.carpeta.Ruta(), std::string("/dev/zero")}) {
        base.Cajas.clear();
        EXPECT_FALSE(AbrirFicheroBase(ruta, base.sesion, base.entorno));
        EXPECT_EQ(base.Cajas, Textos{ErrorFichero}) << ruta;
    }
}

TEST(AbrirBaseXML, CortadaEnCualquierByteNoSeLee) {
    Base base;
    base.Marcar({1, 2, 3, 4, 5, 6});
    const std::string texto = base.Texto(), ruta = base.carpeta.Ruta("base.xml");
    EXPECT_TRUE(base.Abrir(texto.substr(0, texto.size() - 2))); // only the last line end is missing
    for (size_t n = texto.size() - 3; n > 0; --n) {
        std::filesystem::resize_file(ruta, n);
        base.Cajas.clear();
        EXPECT_FALSE(AbrirFicheroBase(ruta, base.sesion, base.entorno)) << n;
        EXPECT_EQ(base.Cajas, Textos{ErrorFichero}) << n;
    }
}

TEST(AbrirBaseXML, Codificaciones) {
    const std::string utf8 = Documento("<BaseASCII valor='peña.txt'/>");
    const std::string codigo8 = Documento("<BaseASCII valor='pe\xF1"
                                          "a.txt'/>");
    std::string utf16 = "\xFF\xFE";
    for (const char16_t c : std::u16string(u"<XML><BASE><BaseASCII valor='peña.txt'/></BASE></XML>"))
        utf16 += {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
    for (const std::string& texto : {utf8, "\xEF\xBB\xBF" + utf8, "<?xml version='1.0' encoding='UTF-8'?>" + utf8,
                                     codigo8, "<?xml version='1.0' encoding='windows-1252'?>" + codigo8,
                                     "<?xml version='1.0' encoding='ISO-8859-1'?>" + codigo8, utf16}) {
        Base base;
        EXPECT_TRUE(base.Abrir(texto));
        ASSERT_EQ(base.Cajas.size(), 1u);
        EXPECT_NE(base.Cajas[0].find("(peña.txt)"), std::string::npos) << base.Cajas[0];
    }
}

TEST(AbrirBaseXML, DocumentosDesmesurados) {
    Base base;
    std::string hondo, ancho = "<grupo numero='1'>";
    for (int i = 0; i < 300000; ++i) hondo += "<a>";
    for (int i = 0; i < 300000; ++i) hondo += "</a>";
    EXPECT_TRUE(base.Abrir(Documento("<Filtros>" + hondo + "</Filtros>")));
    for (int i = 0; i < 100000; ++i) ancho += "<numeros valores='7'/>";
    EXPECT_TRUE(base.Abrir(Filtro("GRUPOS", ancho + "<aciertos valores='1'/></grupo>")));
    EXPECT_TRUE(base.Tiene("<numeros valores='7' />"));
    EXPECT_EQ(base.Cajas, Textos{});
    EXPECT_FALSE(base.Abrir(Documento(std::string(40 << 20, ' '))));
    EXPECT_EQ(base.Cajas, Textos{ErrorFichero});
}
