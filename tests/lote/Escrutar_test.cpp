#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"

namespace {

struct Comprobacion : testing::Test {
    CarpetaTemporal carpeta;
    const std::string sistema = carpeta.Ruta("sistema.txt"), respuesta = carpeta.Ruta("respuesta.xml");

    void SetUp() override {
        EscribirTodo(sistema, "01,02,03,04,05,06,1\r\n01,02,03,04,05,07,2\r\n01,02,03,08,09,10,2\r\n");
        EscribirTodo(respuesta, "<r><BONOLOTO><SORTEOS><SORTEO anio='2020' sorteo='9' dia='J' fecha='02/01/2020' "
                                "recaudacion='1' bote='0'><ESCRUTINIO><CAT6 premio='1.000,50' acertantes='1'/>"
                                "<CAT5C premio='200' acertantes='1'/><CAT3 premio='4' acertantes='1'/></ESCRUTINIO>"
                                "</SORTEO></SORTEOS></BONOLOTO></r>");
    }

    Resultado Lote(Textos argumentos) {
        argumentos.insert(argumentos.begin(), {"--carpeta", carpeta.Ruta()});
        return Correr(argumentos);
    }
};

TEST_F(Comprobacion, EscrutarEscribeUnaFilaPorCategoria) {
    const Resultado r = Lote(
        {"escrutar", sistema, "--numeros", "6,5,4,3,2,1", "--complementario", "7", "--digito", "2", "--reintegros"});
    EXPECT_EQ(r.Salida, "6\t1\n5+C\t1\n5\t0\n4\t0\n3\t1\n2\t0\n1\t0\n0\t0\nReinteg.\t2\nApuestas\t3\nBoletos\t1\n");
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
    EXPECT_FALSE(std::filesystem::exists(carpeta.Ruta("TOMBOLERA_PREMIOS.txt")));
}

TEST_F(Comprobacion, ElDigitoPorDefectoEsElPrimeroDelJuego) {
    const Resultado r =
        Lote({"escrutar", sistema, "--juego", "EURODREAMS", "--numeros", "1,2,3,4,5,6", "--reintegros"});
    EXPECT_EQ(r.Salida, "6+S\t1\n6\t1\n5\t1\n4\t0\n3\t1\n2\t0\n1\t0\n0\t0\nSueños:\t1\nApuestas\t3\nBoletos\t1\n");
}

TEST_F(Comprobacion, ElInformeVaALaCarpeta) {
    const Resultado r = Lote({"escrutar", sistema, "--juego", "BONOLOTO", "--numeros", "1,2,3", "--informe"});
    EXPECT_EQ(r.Estado, 0) << r.Errores;
    EXPECT_EQ(LeerTodo(carpeta.Ruta("TOMBOLERA_PREMIOS.txt")),
              "BOLETO 01  02  03  04  05  06  07  08\r\n     1  3   3   3  \r\n");
}

TEST_F(Comprobacion, PremiosEscribeElInformeDelSorteo) {
    const Textos orden{"premios",          sistema, "--juego", "BONOLOTO",   "--numeros", "1,2,3,4,5,6",
                       "--complementario", "7",     "--fecha", "02/01/2020", "--sorteos", respuesta};
    const Resultado r = Lote(orden);
    EXPECT_EQ(r.Estado, 0) << r.Errores;
    EXPECT_NE(r.Salida.find("\nNúmero Sorteo            : 9\n"), std::string::npos) << r.Salida;
    EXPECT_TRUE(r.Salida.ends_with("6         1         1000,5\n5+C       1         200\n5         0         0\n"
                                   "4         0         0\n3         1         4\nInvertido             : 3,00 Euros\n"
                                   "Total Cobrado         : 1204,50 Euros\nPorcentaje Recuperado : 40150%\n"))
        << r.Salida;
    EXPECT_TRUE(LeerTodo(carpeta.Ruta("TOMBOLERA_TEMP.txt")).ends_with("Porcentaje Recuperado : 40150%\r\n"));
}

TEST_F(Comprobacion, UnMensajeTerminaLaOrden) {
    struct Caso {
        Textos Argumentos;
        std::string Errores;
    };
    const std::vector<Caso> casos{
        {{"escrutar", sistema, "--numeros", "1,2", "--complementario", "2"},
         "El número complementario ha de ser distinto de los números elegidos\n"},
        {{"premios", sistema, "--juego", "EURODREAMS", "--numeros", "1", "--fecha", "02/01/2020"},
         "CALCULADORA DE PREMIOS NO DISPONIBLE PARA EL JUEGO EURODREAMS\n"},
        {{"premios", sistema, "--juego", "BONOLOTO", "--numeros", "1", "--fecha", "31/02/2020", "--sorteos", respuesta},
         "ERROR: FECHA DE SORTEO INCORRECTA\n"},
        {{"premios", sistema, "--juego", "BONOLOTO", "--numeros", "1", "--fecha", "2/1/2020", "--sorteos", respuesta},
         "ERROR: SORTEO NO ENCONTRADO\n"},
        {{"premios", sistema, "--numeros", "1", "--fecha", "02/01/2020", "--sorteos", carpeta.Ruta("no.xml")},
         "ERROR AL CARGAR EL FICHERO DE SORTEOS (no existe el fichero o la carpeta)\n"},
    };
    for (const Caso& caso : casos) {
        const Resultado r = Lote(caso.Argumentos);
        EXPECT_EQ(r.Errores, caso.Errores);
        EXPECT_EQ(r.Salida, "");
        EXPECT_EQ(r.Estado, 1);
    }
}

TEST_F(Comprobacion, LosArgumentosFueraDelJuegoNoValen) {
    const std::vector<std::pair<Textos, std::string>> casos{
        {{"--numeros", "1,50"}, "--numeros: no es un número del boleto 50"},
        {{"--numeros", "1,uno"}, "--numeros: no es un número del boleto uno"},
        {{"--numeros", "41", "--juego", "EURODREAMS"}, "--numeros: se espera un número de 1 a 40, no 41"},
        {{"--numeros", "1,2,3,4,5,6,7"}, "--numeros: son más de seis"},
        {{"--numeros", "1,2,1"}, "--numeros: hay alguno repetido"},
        {{"--numeros", "1", "--complementario", "50"}, "--complementario: se espera un número de 0 a 49, no 50"},
        {{"--numeros", "1", "--digito", "6", "--juego", "EURODREAMS"}, "--digito: se espera un número de 1 a 5, no 6"},
        {{"--numeros", "1", "--digito", "10"}, "--digito: se espera un número de 0 a 9, no 10"},
    };
    for (const auto& [argumentos, motivo] : casos) {
        Textos todos{"escrutar", sistema};
        todos.insert(todos.end(), argumentos.begin(), argumentos.end());
        const Resultado r = Lote(todos);
        EXPECT_EQ(r.Estado, 2);
        EXPECT_TRUE(r.Errores.starts_with("tombolera-lote: " + motivo + "\nUso: tombolera-lote escrutar "))
            << r.Errores;
    }
}

} // namespace
