#include <cmath>

#include <gtest/gtest.h>

#include "Guion.h"
#include "HistoriaInventada.h"

namespace {

struct Lectura {
    bool Legible = false, Bien = false;
    std::string Motivo, Fallo;
    Sorteos sorteos;
    std::vector<SorteoConPremios> premios;
};

Lectura Leer(const std::string& xml, bool premios = false, const std::string& juego = "BONOLOTO") {
    Lectura l;
    RespuestaServicio respuesta;
    l.Legible = respuesta.Analizar(xml);
    l.Motivo = respuesta.Motivo();
    EXPECT_EQ(l.Legible, l.Motivo.empty());
    if (l.Legible)
        l.Bien = premios ? respuesta.LeerSorteos(juego, l.premios) : respuesta.LeerCombinaciones(juego, l.sorteos);
    l.Fallo = respuesta.Fallo();
    EXPECT_EQ(l.Bien, l.Legible && l.Fallo.empty());
    return l;
}

std::string Combinacion(const std::string& atributos) {
    return "<r><BONOLOTO><COMBINACIONES><COMBINACION " + atributos + "/></COMBINACIONES></BONOLOTO></r>";
}

std::string UnSorteo(const std::string& atributos, const std::string& escrutinio) {
    return "<r><BONOLOTO><SORTEOS><SORTEO anio='2010' sorteo='300' dia='J' " + atributos + "><ESCRUTINIO>" +
           escrutinio + "</ESCRUTINIO></SORTEO></SORTEOS></BONOLOTO></r>";
}

TEST(RespuestaServicio, LaHistoriaEntera) {
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        const std::string nombre(Juegos[static_cast<size_t>(juego)].Nombre);
        const Sorteos sorteos = SorteosInventados(juego, 2000);
        const auto premios = PremiosInventados(sorteos);
        const std::string xml = RespuestaXML(juego, sorteos, premios);
        const Lectura l = Leer(xml, false, nombre), p = Leer(xml, true, nombre);
        ASSERT_EQ(l.sorteos.size(), sorteos.size()) << l.Fallo;
        ASSERT_EQ(p.premios.size(), premios.size()) << p.Fallo;
        for (size_t i = 0; i < sorteos.size(); ++i) {
            ASSERT_EQ(l.sorteos[i].numeros, sorteos[i].numeros) << i;
            ASSERT_EQ(l.sorteos[i].anio, sorteos[i].anio);
            ASSERT_EQ(l.sorteos[i].sorteo, sorteos[i].sorteo);
            ASSERT_EQ(l.sorteos[i].dia, sorteos[i].dia);
            ASSERT_EQ(p.premios[i].fecha, premios[i].fecha);
            ASSERT_EQ(p.premios[i].recaudacion, premios[i].recaudacion);
            ASSERT_EQ(p.premios[i].bote, premios[i].bote);
            for (size_t c = 0; c < NCategoriasServicio; ++c) {
                ASSERT_EQ(p.premios[i].categoria[c].premio, premios[i].categoria[c].premio);
                ASSERT_EQ(p.premios[i].categoria[c].acertantes, premios[i].categoria[c].acertantes);
            }
        }
        EXPECT_TRUE(Leer(xml, false, juego == PRIMITIVA ? "BONOLOTO" : "PRIMITIVA").sorteos.empty());
    }
}

TEST(RespuestaServicio, LosNombresVanEnCualquierLetraYLoDemasSeSalta) {
    const Lectura l = Leer("<?xml version='1.0' encoding='ISO-8859-1'?><!DOCTYPE x [<!ENTITY a 'b'>]><!-- a\xF1o -->"
                           "<Raíz><aviso/><PRIMITIVA><COMBINACIONES><COMBINACION/></COMBINACIONES></PRIMITIVA>"
                           "<bonoLOTO>texto<otro/><combinaciones><OTRA/><combinacion numeros=' 1, 2 ,,4,5,6 ' "
                           "anio=' 2003 ' sorteo='7' dia='d'/></combinaciones></bonoLOTO><BONOLOTO/></Raíz>");
    ASSERT_EQ(l.sorteos.size(), 1u) << l.Motivo << l.Fallo;
    EXPECT_EQ(l.sorteos[0].numeros, (std::array<uint8_t, 8>{1, 2, 0, 4, 5, 6, 0, 0}));
    EXPECT_EQ(l.sorteos[0].anio, 2003);
    EXPECT_EQ(l.sorteos[0].dia, 7);
}

TEST(RespuestaServicio, ValoresQueFaltanONoCaben) {
    const std::string momento = " anio='2010' sorteo='1' dia='J'", numeros = "numeros='1,2,3,4,5,6,7,8'";
    const std::vector<std::pair<std::string, std::string>> casos{
        {Combinacion("anio='2010' sorteo='1' dia='J'"), "falta el atributo 'numeros' de 'COMBINACION'"},
        {Combinacion(numeros + " sorteo='1' dia='J'"), "falta el atributo 'anio' de 'COMBINACION'"},
        {Combinacion(numeros + " anio='2010' dia='J'"), "falta el atributo 'sorteo' de 'COMBINACION'"},
        {Combinacion(numeros + " anio='2010' sorteo='1'"), "falta el atributo 'dia' de 'COMBINACION'"},
        {Combinacion("numeros='1,2,3,4,5,6,7,8,9'" + momento), "hay más de ocho números en un sorteo"},
        {Combinacion("numeros='1,2,3,uno,5,6'" + momento), "el valor 'uno' no es un número de sorteo"},
        {Combinacion("numeros='1,2,3,256,5,6'" + momento), "el valor '256' no es un número de sorteo"},
        {Combinacion("numeros='1,2,3,-1,5,6'" + momento), "el valor '-1' no es un número de sorteo"},
        {Combinacion(numeros + " anio='99999' sorteo='1' dia='J'"), "el valor '99999' de 'anio' no cabe en su campo"},
        {Combinacion(numeros + " anio='' sorteo='1' dia='J'"), "el valor '' de 'anio' no cabe en su campo"},
        {Combinacion(numeros + " anio='2010' sorteo='70000' dia='J'"),
         "el valor '70000' de 'sorteo' no cabe en su campo"},
        {Combinacion(numeros + " anio='2010' sorteo='&uno;' dia='J'"),
         "el valor '&uno;' de 'sorteo' no cabe en su campo"},
    };
    for (const auto& [xml, fallo] : casos) {
        const Lectura l = Leer(xml);
        EXPECT_EQ(l.Fallo, fallo);
        EXPECT_TRUE(l.sorteos.empty());
    }
    // An unknown day and a blank ninth value are none of these.
    EXPECT_EQ(Leer(Combinacion("numeros='1,2,3,4,5,6,7,8, ' anio='2010' sorteo='65535' dia='?'")).sorteos.size(), 1u);
}

TEST(RespuestaServicio, ImportesEnLasDosNotaciones) {
    const std::vector<std::pair<std::string, double>> casos{{"0", 0},
                                                            {"", 0},
                                                            {"  ", 0},
                                                            {"12", 12},
                                                            {"1234,56", 1234.56},
                                                            {"1234.56", 1234.56},
                                                            {"1.234,56", 1234.56},
                                                            {"1,234.56", 1234.56},
                                                            {"1.234", 1234},
                                                            {"1,234", 1234},
                                                            {"1.234.567,8", 1234567.8},
                                                            {"0,5", 0.5},
                                                            {",50", 0.5},
                                                            {"7,", 7},
                                                            {"-3,25", -3.25}};
    for (const auto& [texto, valor] : casos) {
        double importe = -1;
        EXPECT_TRUE(LeerImporte(texto, importe)) << texto;
        EXPECT_DOUBLE_EQ(importe, valor) << texto;
    }
    for (const std::string& malo : {std::string("-"), std::string(","), std::string("1e5"), std::string("12 €"),
                                    std::string("nan"), std::string("1-2"), std::string(400, '9')}) {
        double importe = 7;
        EXPECT_FALSE(LeerImporte(malo, importe)) << malo;
        EXPECT_EQ(importe, 7);
    }
}

TEST(RespuestaServicio, PremiosQueFaltanONoValen) {
    const std::string dinero = "fecha='1/2/2010' recaudacion='1,5' bote='2'";
    const Lectura blancos = Leer(UnSorteo(dinero, "<CAT6 premio='' acertantes=' '/><CAT9 premio='x'/>"), true);
    ASSERT_EQ(blancos.premios.size(), 1u) << blancos.Fallo;
    EXPECT_EQ(blancos.premios[0].categoria[CAT6].premio, 0);
    EXPECT_EQ(blancos.premios[0].sorteo, 300);

    const std::vector<std::pair<std::string, std::string>> casos{
        {UnSorteo("recaudacion='1' bote='2'", ""), "falta el atributo 'fecha' de 'SORTEO'"},
        {UnSorteo("fecha='' bote='2'", ""), "falta el atributo 'recaudacion' de 'SORTEO'"},
        {UnSorteo("fecha='' recaudacion='mucho' bote='2'", ""), "el importe 'mucho' no es un número"},
        {UnSorteo("fecha='' recaudacion='1' bote=' '", ""), "el importe '' no es un número"},
        {UnSorteo(dinero, "<CAT6R/>"), "falta el atributo 'premio' de 'CAT6R'"},
        {UnSorteo(dinero, "<cat3 premio='1'/>"), "falta el atributo 'acertantes' de 'cat3'"},
        {UnSorteo(dinero, "<CAT5 premio='1' acertantes='2147483648'/>"),
         "el valor '2147483648' de 'acertantes' no cabe en su campo"},
    };
    for (const auto& [xml, fallo] : casos) EXPECT_EQ(Leer(xml, true).Fallo, fallo);
}

TEST(RespuestaServicio, LoQueNoEsXML) {
    const std::vector<std::pair<std::string, std::string>> casos{
        {"", "la respuesta no tiene ningún elemento"},
        {"   \n", "la respuesta no tiene ningún elemento"},
        {"<?xml version=\"1.0\"?>", "la respuesta no tiene ningún elemento"},
        {"Servicio no disponible", "la respuesta no tiene ningún elemento"},
        {"<a x=1></a>", "la respuesta no es un documento XML bien formado"},
        {"<r><BONOLOTO>", "las etiquetas de la respuesta no casan"},
        {"<!DOCTYPE html><html><body><p>Error<br></body></html>", "las etiquetas de la respuesta no casan"},
    };
    for (const auto& [xml, motivo] : casos) EXPECT_EQ(Leer(xml).Motivo, motivo) << xml;
}

TEST(RespuestaServicio, NiBombasNiPilas) {
    // Entities are not expanded at all.
    std::string bomba = "<!DOCTYPE r [<!ENTITY a0 'xxxxxxxxxx'>";
    for (int i = 1; i < 12; ++i) {
        const std::string anterior = "&a" + std::to_string(i - 1) + ";";
        bomba += "<!ENTITY a" + std::to_string(i) + " '";
        for (int k = 0; k < 10; ++k) bomba += anterior;
        bomba += "'>";
    }
    const Lectura l = Leer(bomba + "]>" + Combinacion("numeros='&a11;' anio='1' sorteo='1' dia='L'"));
    EXPECT_EQ(l.Fallo, "el valor '&a11;' no es un número de sorteo");

    const size_t hondo = 1'000'000;
    std::string nido;
    for (size_t i = 0; i < hondo; ++i) nido += "<BONOLOTO>";
    EXPECT_FALSE(Leer(nido).Legible);
    for (size_t i = 0; i < hondo; ++i) nido += "</BONOLOTO>";
    EXPECT_TRUE(Leer(nido).Bien);
    std::string condiciones = "<!DOCTYPE r ";
    for (size_t i = 0; i < hondo; ++i) condiciones += "<![";
    EXPECT_FALSE(Leer(condiciones).Legible);

    std::string muchos = "<r><BONOLOTO><COMBINACIONES>";
    for (int i = 0; i < 1'000'000; ++i) muchos += "<x/>";
    muchos += "</COMBINACIONES></BONOLOTO></r>";
    EXPECT_TRUE(Leer(muchos).Bien);
}

} // namespace
