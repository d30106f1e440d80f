#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"

namespace {

class AlgebraLote : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    const ComoCorrer aqui{carpeta.Ruta()};

    AlgebraLote() {
        EscribirTodo(carpeta.Ruta("uno.txt"), "040506070809\n010203040506\n010203040506\n");
        EscribirTodo(carpeta.Ruta("dos.txt"), "010203040506\n444546474849\n");
    }
    std::string Ver(const std::string& fichero) const { return Correr({"ver", fichero}, aqui).Salida; }
};

TEST_F(AlgebraLote, CadaOperacionEscribeSuLogYSuFichero) {
    const std::string a = "01,02,03,04,05,06+00\n", b = "04,05,06,07,08,09+00\n", c = "44,45,46,47,48,49+00\n";
    struct Caso {
        Textos argumentos;
        std::string ultima, apuestas;
    };
    for (const Caso& caso :
         {Caso{{"ordenar", "uno.txt"}, "Nº Apuestas Ordenadas : 3\n", a + a + b},
          {{"ordenar", "uno.txt", "--descendente"}, "Nº Apuestas Ordenadas : 3\n", b + a + a},
          {{"sumar", "uno.txt", "dos.txt"}, "Nº Apuestas Sistema Resultante : 5\n", b + a + a + a + c},
          {{"unir", "uno.txt", "dos.txt"}, "Nº Apuestas FINALES : 3\n", a + b + c},
          {{"comunes", "uno.txt", "dos.txt"}, "Nº Apuestas COMUNES : 1\n", a},
          {{"restar", "uno.txt", "dos.txt"}, "Nº Apuestas Sistema Resultante : 1\n", b}}) {
        SCOPED_TRACE(testing::PrintToString(caso.argumentos));
        Textos argumentos{"algebra"};
        argumentos.insert(argumentos.end(), caso.argumentos.begin(), caso.argumentos.end());
        argumentos.insert(argumentos.end(), {"--guardar", "res"});
        const Resultado r = Correr(argumentos, aqui);
        EXPECT_TRUE(r.Salida.starts_with("Proceso de ")) << r.Salida;
        EXPECT_TRUE(r.Salida.ends_with(caso.ultima)) << r.Salida;
        EXPECT_EQ(r.Errores, "");
        EXPECT_EQ(r.Estado, 0);
        EXPECT_EQ(Ver("res.TOM"), caso.apuestas);
    }
}

TEST_F(AlgebraLote, SinResultadoNoEscribeNada) {
    struct Caso {
        Textos argumentos;
        int estado;
        std::string ultimaCaja;
    };
    for (const Caso& caso : {Caso{{"restar", "uno.txt", "uno.txt"},
                                  1,
                                  "ERROR: NO SE PUEDE GUARDAR, EL SISTEMA RESULTANTE TIENE 0 APUESTAS\n"},
                             {{"unir", "uno.txt"}, 1, "ERROR: NO ESTA CARGADO EL SISTEMA 2\n"},
                             {{"ordenar", "no-existe.TOM"}, 1, "ERROR: NO ESTA CARGADO EL SISTEMA 1\n"},
                             {{"multiplicar", "uno.txt"}, 2, "Ayuda: tombolera-lote algebra --ayuda\n"}}) {
        Textos argumentos{"algebra"};
        argumentos.insert(argumentos.end(), caso.argumentos.begin(), caso.argumentos.end());
        argumentos.insert(argumentos.end(), {"--guardar", "res.TOM"});
        const Resultado r = Correr(argumentos, aqui);
        EXPECT_EQ(r.Estado, caso.estado);
        EXPECT_TRUE(r.Errores.ends_with(caso.ultimaCaja)) << r.Errores;
        EXPECT_FALSE(std::filesystem::exists(carpeta.Ruta("res.TOM")));
    }
}

} // namespace
