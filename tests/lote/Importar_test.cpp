#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"
#include "Sesiones.h"
#include "TablaFiltros.h"
#include "modXML.h"

namespace {

// Text files of bets, and a base file whose marks the import replaces.
class Importar : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    Guion guion;

    Importar() {
        guion.Marcar({2, 5, 9, 14, 23, 31, 38, 47});
        guion.MarcarDigitos({6});
    }
    Resultado Ejecutar(const Textos& argumentos, const std::string& texto) {
        EscribirTodo(carpeta.Ruta("base.xml"), GenerarXMLBase(guion.sesion, guion.entorno));
        EscribirTodo(carpeta.Ruta("a.txt"), texto);
        return Correr(argumentos, {.Carpeta = carpeta.Ruta()});
    }
};

const std::string DosApuestas = "07,08,09,10,11,12+5\r\n01,02,03,04,05,06+5\r\n";

TEST_F(Importar, CalculaLasApuestasDelFicheroConLasCondicionesDeLaBase) {
    guion.sesion.condiciones.SUMAS.intervalos[0] = {50, 60};
    guion.sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
    const Resultado r =
        Ejecutar({"calcular", "base.xml", "--importar", "a.txt", "--reintegros", "--texto", "b.txt"}, DosApuestas);
    EXPECT_EQ(r.Salida, "Iniciales: 2\nCondicionadas: 1\nReducidas: 1\nCiclos: 0\nEliminadas SUMAS: 1\n");
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(LeerTodo(carpeta.Ruta("b.txt")), "070809101112\r\n");
}

TEST_F(Importar, ElSistemaGuardadoLlevaElDigitoDelFicheroOElUno) {
    for (const auto& [con, digito] : {std::pair{true, "05"}, {false, "01"}}) {
        Textos argumentos{"calcular", "base.xml", "--importar", "a.txt", "--guardar", "s.TOM"};
        if (con) argumentos.push_back("--reintegros");
        EXPECT_EQ(Ejecutar(argumentos, DosApuestas).Estado, 0);
        EXPECT_EQ(Correr({"ver", carpeta.Ruta("s.TOM")}).Salida,
                  std::string("07,08,09,10,11,12+") + digito + "\n01,02,03,04,05,06+" + digito + "\n");
    }
}

TEST_F(Importar, UnFicheroMaloTerminaLaOrden) {
    const Resultado r = Ejecutar({"calcular", "base.xml", "--importar", "a.txt"}, "010203040550\r\n");
    EXPECT_EQ(r.Estado, 1);
    EXPECT_EQ(r.Salida, "");
    EXPECT_NE(r.Errores.find("Apuestas con números fuera del intervalo 1-49 (Apuesta 1))\nAVISO: Se han importado 0"),
              std::string::npos)
        << r.Errores;
    EXPECT_EQ(Ejecutar({"calcular", "base.xml", "--reintegros"}, "").Estado, 2);
}

TEST_F(Importar, VerMuestraTextosConDigitoYSinEl) {
    EXPECT_EQ(Ejecutar({"ver", "a.txt"}, DosApuestas).Salida, "07,08,09,10,11,12+00\n01,02,03,04,05,06+00\n");
    EXPECT_EQ(Ejecutar({"ver", "a.txt", "--reintegros"}, DosApuestas).Salida,
              "07,08,09,10,11,12+05\n01,02,03,04,05,06+05\n");
    const Resultado euro = Ejecutar({"ver", "a.txt", "--reintegros", "--juego", "EURODREAMS"}, "010203044149 1\n");
    EXPECT_EQ(euro.Estado, 1);
    EXPECT_TRUE(euro.Errores.starts_with("ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (")) << euro.Errores;
}

} // namespace
