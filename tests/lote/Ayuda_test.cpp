// Help, version and wrong arguments. TOMBOLERA_REGENERAR=1 in the environment writes the help texts
// anew instead of comparing them.
#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"

namespace {

// By the name of the saved text; "programa" is the help of all.
class Ayuda : public testing::TestWithParam<std::string> {};

TEST_P(Ayuda, EsLaGuardada) {
    const Resultado r = Correr(GetParam() == "programa" ? Textos{"--ayuda"} : Textos{GetParam(), "--ayuda"});
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(r.Errores, "");
    const std::string ruta = std::string(AYUDAS) + "/" + GetParam() + ".txt";
    if (std::getenv("TOMBOLERA_REGENERAR") != nullptr) EscribirTodo(ruta, r.Salida);
    EXPECT_EQ(r.Salida, LeerTodo(ruta));
}

INSTANTIATE_TEST_SUITE_P(Ordenes, Ayuda,
                         testing::Values("programa", "calcular", "al-vuelo", "reparto", "base", "ver", "resumen",
                                         "eliminadas", "analisis", "garantias", "minigarantias", "escrutar",
                                         "multiescrutinio", "multifichero", "premios", "estadisticas", "actualizar",
                                         "algebra", "rentabilidad", "generar-numeros", "generar-porcentajes",
                                         "sistema-propio", "huecos"),
                         [](const auto& caso) {
                             std::string nombre = caso.param;
                             std::replace(nombre.begin(), nombre.end(), '-', '_');
                             return nombre;
                         });

TEST(Argumentos, VersionEnUnaLinea) {
    const Resultado r = Correr({"--version"});
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(r.Salida, "tombolera-lote 11.1\n");
    EXPECT_EQ(r.Errores, "");
}

TEST(Argumentos, LosMalosDicenQueFallaYComoSeUsa) {
    struct Caso {
        Textos Argumentos;
        std::string Motivo, Orden;
    };
    const std::vector<Caso> casos{
        {{}, "falta la orden", ""},
        {{"adivinar"}, "no se espera adivinar", ""},
        {{"--nada", "ver", "a.TOM"}, "no se espera --nada", "ver"},
        {{"--help"}, "no se espera --help", ""},
        {{"calcular"}, "falta BASE.xml", "calcular"},
        {{"calcular", ""}, "BASE.xml: el nombre del fichero está vacío", "calcular"},
        {{"calcular", "a.xml", "b.xml"}, "no se espera b.xml", "calcular"},
        {{"calcular", "a.xml", "--guardar"}, "--guardar necesita un valor", "calcular"},
        {{"calcular", "a.xml", "--texto", "a", "--texto", "b"}, "--texto se ha dado más de una vez", "calcular"},
        {{"calcular", "a.xml", "--ciclos", "0"}, "--ciclos: se espera un número entero desde 1, no 0", "calcular"},
        {{"calcular", "a.xml", "--segundos", "99999999999"},
         "--segundos: se espera un número entero desde 1, no 99999999999",
         "calcular"},
        {{"reparto", "a.xml"}, "falta --filtro", "reparto"},
        {{"reparto", "a.xml", "--filtro", "Sumas"},
         "--filtro: se espera el nombre de una condición, como SUMAS, no Sumas",
         "reparto"},
        {{"base", "a.xml"}, "falta --guardar", "base"},
        {{"garantias", "a.xml", "--tipo", "parcial"},
         "--tipo: se espera total o condicionado, no parcial",
         "garantias"},
        {{"garantias", "a.xml", "--aciertos", "7"},
         "--aciertos: se espera un número de 1 a 6 o todas, no 7",
         "garantias"},
        {{"ver", "a.TOM", "--juego", "QUINIELA"},
         "--juego: se espera PRIMITIVA, BONOLOTO o EURODREAMS, no QUINIELA",
         "ver"},
        {{"estadisticas", "a.txt"}, "falta --tipo", "estadisticas"},
        {{"estadisticas", "a.txt", "--tipo", "10"}, "--tipo: se espera un número de 0 a 9, no 10", "estadisticas"},
        {{"estadisticas", "a.txt", "--tipo", "1", "--anios", "2010"},
         "--anios: se esperan dos números como 10-20, no 2010",
         "estadisticas"},
        {{"estadisticas", "a.txt", "--tipo", "1", "--sorteo", "1--2"},
         "--sorteo: se esperan dos números como 10-20, no 1--2",
         "estadisticas"},
        {{"estadisticas", "a.txt", "--tipo", "1", "--dia", "7"},
         "--dia: se espera un número de 0 a 6, no 7",
         "estadisticas"},
        {{"--servicio", "servidor", "ver", "a.TOM"},
         "--servicio: se espera una dirección como https://servidor:puerto, no servidor",
         "ver"},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(testing::PrintToString(caso.Argumentos));
        const Resultado r = Correr(caso.Argumentos);
        EXPECT_EQ(r.Estado, 2);
        EXPECT_EQ(r.Salida, "");
        const std::string nombre = "tombolera-lote" + (caso.Orden.empty() ? "" : " " + caso.Orden);
        EXPECT_TRUE(r.Errores.starts_with("tombolera-lote: " + caso.Motivo + "\nUso: " + nombre + " [opciones] "))
            << r.Errores;
        EXPECT_TRUE(r.Errores.ends_with("\nAyuda: " + nombre + " --ayuda\n")) << r.Errores;
    }
}

} // namespace
