#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"
#include "modXML.h"

namespace {

// A base of seven numbers, and a system of three of its seven bets.
class Garantias : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    Guion guion;

    Garantias() {
        guion.Marcar({2, 5, 9, 14, 23, 31, 38});
        guion.MarcarDigitos({6});
        EscribirBase();
        EscribirTodo(carpeta.Ruta("tres.txt"), "020509142331\r\n020509142338\r\n020509142331\r\n");
    }
    void EscribirBase() { EscribirTodo(carpeta.Ruta("base.xml"), GenerarXMLBase(guion.sesion, guion.entorno)); }
    Resultado Ejecutar(const Textos& argumentos) { return Correr(argumentos, {.Carpeta = carpeta.Ruta()}); }
    std::string Informe(int k) { return LeerTodo(carpeta.Ruta("TOMBOLERA_GARANTIAS_si" + std::to_string(k) + ".txt")); }
    int Informes() {
        int cuantos = 0;
        for (const auto& entrada : std::filesystem::directory_iterator(carpeta.Ruta()))
            cuantos += entrada.path().filename().string().starts_with("TOMBOLERA_GARANTIAS_si");
        return cuantos;
    }
};

// The three bets are all within one number of the seven of the base: none is left out al 5, five al 6.
TEST_F(Garantias, LosHuecosDeUnSistema) {
    const Resultado cinco = Ejecutar({"huecos", "base.xml", "--sistema", "tres.txt"});
    EXPECT_EQ(cinco.Salida, "Huecos: 0 de 7 (0,00 %)\n");
    EXPECT_EQ(cinco.Estado, 0);
    const Resultado seis = Ejecutar({"huecos", "base.xml", "--sistema", "tres.txt", "--aciertos", "6"});
    EXPECT_EQ(seis.Salida, "020509143138\n020509233138\n020514233138\n020914233138\n050914233138\n"
                           "Huecos: 5 de 7 (71,43 %)\n");
}

TEST_F(Garantias, SobreElTotalEscribeElResumenYElInforme) {
    const Resultado r = Ejecutar({"garantias", "base.xml", "--sistema", "tres.txt"});
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
    // One draw is the bet that comes twice, another the single one; the other five miss one of its six.
    EXPECT_EQ(r.Salida, "028.571% 6 si 6  1-2 de 6, 1-2 de 5, 0-0 de 4, 0-0 de 3, 0-0 de 2, 0-0 de 1, 0-0 de 0\n"
                        "100.000% 5 si 6  3-3 de 5, 0-0 de 4, 0-0 de 3, 0-0 de 2, 0-0 de 1, 0-0 de 0\n"
                        "100.000% 4 si 6\n100.000% 3 si 6\n100.000% 2 si 6\n100.000% 1 si 6\n100.000% 0 si 6\n");
    EXPECT_TRUE(Informe(6).starts_with("2         028.571% 6 si 6      1-2          1-2          0-0     "))
        << Informe(6);
    EXPECT_EQ(Informes(), 1);
}

TEST_F(Garantias, UnNumeroDeAciertosOTodas) {
    const Resultado uno =
        Ejecutar({"--carpeta", ".", "garantias", "base.xml", "--sistema", "tres.txt", "--aciertos", "1"});
    EXPECT_EQ(uno.Salida, "100.000% 1 si 1  1-3 de 1, 0-2 de 0\n100.000% 0 si 1\n");
    EXPECT_EQ(Informes(), 1);
    const Resultado todas = Ejecutar({"garantias", "base.xml", "--sistema", "tres.txt", "--aciertos", "todas"});
    EXPECT_EQ(todas.Salida, Ejecutar({"garantias", "base.xml", "--sistema", "tres.txt"}).Salida);
    EXPECT_EQ(Informes(), 6);
    EXPECT_TRUE(Informe(2).starts_with("20        095.238% 2 si 2 ")) << Informe(2);
}

TEST_F(Garantias, SobreElCondicionadoConUnaReduccion) {
    guion.sesion.trabajo.Reduccion.TipoReduccion = 1;
    guion.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    EscribirBase();
    const Resultado r = Ejecutar({"garantias", "base.xml", "--tipo", "condicionado"});
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(r.Salida, "014.286% 6 si 6  1-1 de 6, 0-0 de 5, 0-0 de 4, 0-0 de 3, 0-0 de 2, 0-0 de 1, 0-0 de 0\n"
                        "100.000% 5 si 6  1-1 de 5, 0-0 de 4, 0-0 de 3, 0-0 de 2, 0-0 de 1, 0-0 de 0\n"
                        "100.000% 4 si 6\n100.000% 3 si 6\n100.000% 2 si 6\n100.000% 1 si 6\n100.000% 0 si 6\n");
}

TEST_F(Garantias, LasExtendidas) {
    const Resultado r = Ejecutar({"minigarantias", "base.xml", "--sistema", "tres.txt"});
    EXPECT_EQ(r.Estado, 0);
    EXPECT_TRUE(r.Salida.starts_with("DETALLE DE MINI GARANTIAS\n095.238% 2 si 2 (20 Apu.)\n\n")) << r.Salida;
    EXPECT_TRUE(r.Salida.ends_with("\n028.571% 6 si 6 (2 Apu.)\n100.000% 5 si 6 (7 Apu.)\n100.000% 4 si 6 (7 Apu.)\n"
                                   "100.000% 3 si 6 (7 Apu.)\n100.000% 2 si 6 (7 Apu.)\n\n"))
        << r.Salida;
    EXPECT_EQ(Informes(), 0);
}

TEST_F(Garantias, LoQueFallaLoDiceYAcabaConEstado1) {
    EscribirTodo(carpeta.Ruta("vacio.txt"), "");
    const Resultado vacio = Ejecutar({"garantias", "base.xml", "--sistema", "vacio.txt"});
    EXPECT_EQ(vacio.Estado, 1);
    EXPECT_NE(vacio.Errores.find("AVISO: Se han importado 0 apuestas."), std::string::npos) << vacio.Errores;
    for (const std::string aciertos : {"6", "todas"}) {
        const Resultado r = Ejecutar({"--carpeta", "no/hay", "garantias", "base.xml", "--aciertos", aciertos});
        EXPECT_EQ(r.Estado, 1);
        EXPECT_TRUE(r.Errores.starts_with("ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (")) << r.Errores;
        EXPECT_EQ(r.Errores.find('\n'), r.Errores.size() - 1) << "told once: " << r.Errores;
        EXPECT_TRUE(r.Salida.starts_with("100.000% 6 si 6  1-1 de 6, 6-6 de 5, ")) << r.Salida;
    }
}

// The progress line of the terminal tells when the measure runs; then the user stops.
TEST_F(Garantias, InterrumpidaNoEscribeNingunInforme) {
    guion.MarcarHasta(49);
    EscribirBase();
    const auto parar = [](pid_t hijo, const std::string& errores) {
        const bool midiendo = errores.find("Calculando garantías y porcentajes") != std::string::npos;
        if (midiendo) kill(hijo, SIGINT);
        return midiendo;
    };
    const Resultado r =
        Correr({"garantias", "base.xml"}, {.Carpeta = carpeta.Ruta(), .Terminal = true, .AlLeerErrores = parar});
    EXPECT_EQ(r.Estado, 130);
    EXPECT_EQ(r.Salida, "Proceso de cálculo de porcentajes/garantías detenido\n");
    EXPECT_EQ(Informes(), 0);
}

} // namespace
