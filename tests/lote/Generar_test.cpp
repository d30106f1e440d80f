// generar-numeros, generar-porcentajes and sistema-propio.
#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"

TEST(Generar, LoGeneradoSeLeeDeVuelta) {
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("azar.TOM");
    EXPECT_EQ(Correr({"generar-numeros", "--numeros", "1,2,3,4,5,6", "--apuestas", "1", "--guardar", ruta}).Estado, 0);
    EXPECT_EQ(Correr({"ver", ruta}).Salida, "01,02,03,04,05,06+01\n");

    std::string valores = "100 100 100 100 99";
    for (int n = 6; n <= 49; ++n) valores += n == 49 ? " 99" : " 0";
    EscribirTodo(carpeta.Ruta("p.txt"), valores + "\r\n");
    const Resultado r = Correr({"generar-porcentajes", "--porcentajes", carpeta.Ruta("p.txt"), "--apuestas", "100",
                                "--guardar", carpeta.Ruta("p")});
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
    const std::string apuestas = Correr({"ver", carpeta.Ruta("p.TOM")}).Salida;
    EXPECT_EQ(apuestas.size(), 100 * std::string("01,02,03,04,05,06+01\n").size());
    EXPECT_TRUE(apuestas.starts_with("01,02,03,04,05,49+01\n")) << apuestas.substr(0, 60);
}

TEST(Generar, UnNumeroQueElBoletoNoTiene) {
    const Resultado r = Correr({"generar-numeros", "--juego", "EURODREAMS", "--numeros", "1,2,3,4,5,41", "--apuestas",
                                "1", "--guardar", "/dev/null"});
    EXPECT_EQ(r.Estado, 1);
    EXPECT_EQ(r.Errores, "ERROR: El boleto no tiene el número 41\n");
    EXPECT_EQ(Correr({"generar-numeros", "--numeros", "0,50", "--apuestas", "1", "--guardar", "a"}).Estado, 2);
}

TEST(SistemaPropio, PorRangoYConOrden) {
    const CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("f.txt"), "010203040506\r\n");
    const Textos comun{"sistema-propio",  carpeta.Ruta("f.txt"), "--guardar",
                       carpeta.Ruta("p"), "--destino",           "49,8,9,10,11,12"};
    const Resultado r = Correr(comun);
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(r.Errores, "AVISO: El nuevo Sistema Propio generado se creará con el REINTEGRO igual a 0.\n");
    EXPECT_EQ(Correr({"ver", carpeta.Ruta("p.TOM")}).Salida, "08,09,10,11,12,49+00\n");
    Textos conOrden = comun;
    conOrden.insert(conOrden.end(), {"--origen", "6,5,4,3,2"});
    EXPECT_EQ(Correr(conOrden).Estado, 1); // the sixth destination has no origin
}
