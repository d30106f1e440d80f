#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"
#include "TablaFiltros.h"
#include "modXML.h"

namespace {

class RepartoLote : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    Guion guion;

    RepartoLote() { guion.Marcar({1, 2, 3, 4, 5, 7, 8}); }
    Resultado Ejecutar(const Textos& argumentos) {
        EscribirTodo(carpeta.Ruta("base.xml"), GenerarXMLBase(guion.sesion, guion.entorno));
        EscribirTodo(carpeta.Ruta("a.txt"), "010203040506\r\n010203044849\r\n");
        EscribirTodo(carpeta.Ruta("sorteos.xml"), "<r><Primitiva><Combinaciones>"
                                                  "<Combinacion numeros='1,2,3,4,5,7' anio='2000' sorteo='1' dia='J'/>"
                                                  "</Combinaciones></Primitiva></r>");
        Textos todos{"reparto", "base.xml"};
        todos.insert(todos.end(), argumentos.begin(), argumentos.end());
        return Correr(todos, {.Carpeta = carpeta.Ruta()});
    }
};

TEST_F(RepartoLote, UnaLineaPorValorYAlFinalLasQuePasan) {
    Condiciones& c = guion.sesion.condiciones;
    c.PARESIMPARES.ParesActivos[2] = 1; // off, and told all the same
    c.lstFiltros[kSUMAS].Activo = true;
    c.SUMAS.intervalos[0] = {21, 22};
    c.SORTEOSANTERIORES.grupo[4] = {{1999, 1}, {2001, 1}, 0, 1, 1, {0, 0, 0, 0, 0, 1, 1}};
    struct Caso {
        Textos argumentos;
        std::string salida, avisos;
    };
    for (const Caso& caso : {
             Caso{{"--filtro", "PARESIMPARES"}, "0\t0\n1\t0\n2\t3\n3\t4\n4\t0\n5\t0\n6\t0\nPasan: 3 de 7\n", ""},
             {{"--filtro", "PARESIMPARES", "--importar", "a.txt"},
              "0\t0\n1\t0\n2\t0\n3\t2\n4\t0\n5\t0\n6\t0\nPasan: 0 de 2\n",
              "AVISO: La combinación importada no tiene reintegros, se le ha asignado a la combinación el REINTEGRO 1 "
              "por "
              "defecto.\n"},
             {{"--filtro", "SUMASPORTRIOS"},
              "Tres primeros\n6\t4\n7\t1\n8\t1\n9\t1\nTres últimos\n16\t1\n17\t1\n18\t0\n19\t1\n20\t4\nPasan: 7 de "
              "7\n",
              ""},
             {{"--filtro", "GRUPOS"}, "0\t7\nPasan: 7 de 7\n", ""},
             {{"--filtro", "SORTEOSANTERIORES", "--sorteos", "sorteos.xml"}, "1\t7\nPasan: 7 de 7\n", ""},
         }) {
        SCOPED_TRACE(testing::PrintToString(caso.argumentos));
        const Resultado r = Ejecutar(caso.argumentos);
        EXPECT_EQ(r.Salida, caso.salida);
        EXPECT_EQ(r.Errores, caso.avisos);
        EXPECT_EQ(r.Estado, 0);
    }
    const std::string figuras = Ejecutar({"--filtro", "SEGUIDOS"}).Salida;
    EXPECT_NE(figuras.find("Figuras\n6-0\t0\n5-1\t2\n"), std::string::npos) << figuras;
}

TEST_F(RepartoLote, UnaBaseDeMenosDeSeisTerminaLaOrden) {
    guion.sesion.trabajo.lblNumero[8] = guion.sesion.trabajo.lblNumero[7] = false;
    const Resultado pocos = Ejecutar({"--filtro", "SUMAS"});
    EXPECT_EQ(pocos.Estado, 1);
    EXPECT_EQ(pocos.Errores, "AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS\n");
    EXPECT_EQ(pocos.Salida, "");
}

} // namespace
