#include <filesystem>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"

namespace {

class RentabilidadLote : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    const ComoCorrer aqui{carpeta.Ruta()};

    // The played percentages of 1 to 6 are 10 %, and of all others 12.25 %, the real ones too.
    RentabilidadLote() {
        EscribirTodo(carpeta.Ruta("f.txt"), "070809101112\n010203040506\n010708091011\n131415161718\n");
        std::string linea;
        for (int n = 1; n <= 49; ++n) linea += n <= 6 ? "10 " : "12,25 ";
        EscribirTodo(carpeta.Ruta("p.txt"), linea);
        EscribirTodo(carpeta.Ruta("malo.txt"), "10 x");
    }
};

TEST_F(RentabilidadLote, CienFilasYLasApuestasElegidas) {
    const Resultado r =
        Correr({"rentabilidad", "f.txt", "--apostados", "p.txt", "--cr", "3.4,1.0", "--guardar", "res.txt"}, aqui);
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(r.Errores, "SE HAN GUARDADO 3 APUESTAS\n");
    EXPECT_TRUE(r.Salida.starts_with("0,0: 0\n0,1: 0\n")) << r.Salida;
    EXPECT_NE(r.Salida.find("\n1,0: 2\n1,1: 0\n1,2: 1\n"), std::string::npos) << r.Salida;
    EXPECT_NE(r.Salida.find("\n3,4: 1\n"), std::string::npos) << r.Salida;
    EXPECT_TRUE(r.Salida.ends_with("\n9,9: 0\n")) << r.Salida;
    EXPECT_EQ(Correr({"ver", "res.TOM"}, aqui).Salida,
              "07,08,09,10,11,12+00\n13,14,15,16,17,18+00\n01,02,03,04,05,06+00\n");
}

TEST_F(RentabilidadLote, LoQueNoVaNoEscribeNada) {
    struct Caso {
        Textos argumentos;
        int estado;
        std::string errores;
    };
    const std::string uso = "Ayuda: tombolera-lote rentabilidad --ayuda\n";
    for (const Caso& caso :
         {Caso{{"f.txt", "--cr", "5.0", "--guardar", "res.TOM"},
               1,
               "ERROR: TIENE QUE SELECCIONAR ALGUN COEFICIENTE DE RENTABILIDAD CON APUESTAS, HAY 0 SELECCIONADAS\n"},
          {{"f.txt", "--reales", "malo.txt"}, 1, "ERROR AL ABRIR LOS PORCENTAJES\n"},
          {{"no-existe.TOM"}, 1, " o 01,02,03,04,05,06 o 01 02 03 04 05 06\n"},
          {{"f.txt", "--cr", "1.0"}, 2, uso},
          {{"f.txt", "--guardar", "res.TOM"}, 2, uso},
          {{"f.txt", "--cr", "1.05", "--guardar", "res.TOM"}, 2, uso},
          {{"f.txt", "--cr", "10.0", "--guardar", "res.TOM"}, 2, uso}}) {
        SCOPED_TRACE(testing::PrintToString(caso.argumentos));
        Textos argumentos{"rentabilidad"};
        argumentos.insert(argumentos.end(), caso.argumentos.begin(), caso.argumentos.end());
        const Resultado r = Correr(argumentos, aqui);
        EXPECT_EQ(r.Estado, caso.estado);
        EXPECT_TRUE(r.Errores.ends_with(caso.errores)) << r.Errores;
        EXPECT_FALSE(std::filesystem::exists(carpeta.Ruta("res.TOM")));
    }
}

} // namespace
