#include <filesystem>

#include <gtest/gtest.h>

#include "Guion.h"
#include "HistoriaInventada.h"
#include "Proceso.h"

namespace {

class Multi : public testing::Test {
  protected:
    CarpetaTemporal carpeta;

    Multi() {
        const Sorteos sorteos = SorteosInventados(PRIMITIVA, 600);
        Escribir("r.xml", RespuestaXML(PRIMITIVA, sorteos, PremiosInventados(sorteos)));
        Escribir("a.txt", "010203040506\r\n101112131415\r\n");
        Escribir("sorteos.txt", "010203040506\r\n010203101112\r\n");
        std::filesystem::create_directory(carpeta.Ruta("inf"));
    }
    void Escribir(const std::string& nombre, const std::string& texto) { EscribirTodo(carpeta.Ruta(nombre), texto); }
    Resultado Ejecutar(const Textos& argumentos) {
        Textos todos{"--carpeta", "inf"};
        todos.insert(todos.end(), argumentos.begin(), argumentos.end());
        return Correr(todos, {.Carpeta = carpeta.Ruta()});
    }
    std::string Informe(const std::string& nombre) {
        std::string texto = LeerTodo(carpeta.Ruta("inf/" + nombre));
        std::erase(texto, '\r');
        return texto;
    }
};

TEST_F(Multi, ElEscrutinioDeLaHistoriaSeEscribeYSeGraba) {
    const Resultado r = Ejecutar({"multiescrutinio", "a.txt", "--juego", "PRIMITIVA", "--sorteos", "r.xml", "--anios",
                                  "1991-1991", "--sorteo", "10-12", "--dia", "0"});
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
    EXPECT_TRUE(r.Salida.starts_with("000001. 1991  010  J   ")) << r.Salida;
    EXPECT_NE(r.Salida.find("\nSorteos Escrutados    : 3\n"), std::string::npos);
    std::string informe = Informe("TOMBOLERA_ESCRUTINIO.txt");
    informe.replace(informe.find('\xF3'), 1, "ó");
    EXPECT_EQ(r.Salida, informe);
}

TEST_F(Multi, LosMensajesTerminanElEscrutinio) {
    const std::vector<std::pair<Textos, std::string>> casos{
        {{"falta.txt", "--sorteos", "r.xml"}, "AVISO: Se han importado 0 apuestas."},
        {{"a.txt", "--sorteos", "falta.xml"},
         "ERROR AL CARGAR EL FICHERO DE SORTEOS (no existe el fichero o la carpeta)"},
        {{"a.txt", "--sorteos", "a.txt"}, "ERROR AL CARGAR EL FICHERO DE SORTEOS - "},
        {{"a.txt", "--sorteos", "r.xml", "--juego", "BONOLOTO"}, "ERROR: No hay ningún fichero de sorteos cargado"},
        {{"a.txt", "--sorteos", "r.xml", "--anios", "2012-2010"}, "ERROR: Año mínimo mayor que año máximo"},
        {{"a.txt", "--sorteos", "r.xml", "--sorteo", "1-99999"}, "ERROR: Los campos de la consulta"},
    };
    for (const auto& [argumentos, caja] : casos) {
        SCOPED_TRACE(caja);
        Textos todos{"multiescrutinio"};
        todos.insert(todos.end(), argumentos.begin(), argumentos.end());
        const Resultado r = Ejecutar(todos);
        EXPECT_EQ(r.Estado, 1);
        EXPECT_EQ(r.Salida, "");
        EXPECT_NE(r.Errores.find(caja), std::string::npos) << r.Errores;
        EXPECT_TRUE(std::filesystem::is_empty(carpeta.Ruta("inf")));
    }
}

TEST_F(Multi, LosArgumentosMalosSeDicen) {
    for (const auto& [argumentos, motivo] :
         std::vector<std::pair<Textos, std::string>>{{{"multiescrutinio"}, "falta F"},
                                                     {{"multiescrutinio", "a.txt", "--juego", "EURODREAMS"},
                                                      "--juego: se espera PRIMITIVA o BONOLOTO, no EURODREAMS"},
                                                     {{"multiescrutinio", "a.txt", "--anios", "2010"}, "--anios: "},
                                                     {{"multiescrutinio", "a.txt", "--dia", "7"}, "--dia: "},
                                                     {{"multifichero", "sorteos.txt"}, "falta F"}}) {
        const Resultado r = Ejecutar(argumentos);
        EXPECT_EQ(r.Estado, 2);
        EXPECT_TRUE(r.Errores.starts_with("tombolera-lote: " + motivo)) << r.Errores;
    }
}

TEST_F(Multi, VariosFicherosEnResumenYEnDetalle) {
    Resultado r = Ejecutar({"multifichero", "sorteos.txt", "a.txt", "falta.TOM", "a.txt"});
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(
        r.Salida,
        "FICHERO                    APUESTAS   DE6       DE5       DE4       DE3       DE2       DE1       DE0\n"
        "a.txt                      2          1         0         0         2         0         0         1         \n"
        "falta.TOM                  0          (error al leer el fichero)\n"
        "a.txt                      2          1         0         0         2         0         0         1         "
        "\n");
    EXPECT_EQ(r.Errores, "ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO ( no existe el fichero o la carpeta )\n");
    r = Ejecutar({"multifichero", "sorteos.txt", "a.txt", "--detalle"});
    EXPECT_EQ(r.Salida, "Fichero 1: a.txt\nApuestas Fichero 1: 2\n");
    EXPECT_EQ(Informe("TOMBOLERA_DETALLEPREMIOS_FICHERO1.txt"),
              "000001. 01,02,03,04,05,06 = 1         0         0         0         0         0         1         \n"
              "000002. 01,02,03,10,11,12 = 0         0         0         2         0         0         0         \n");
    r = Ejecutar({"multifichero", "inf", "a.txt"});
    EXPECT_EQ(r.Estado, 1);
    EXPECT_EQ(r.Salida, "");
    EXPECT_TRUE(r.Errores.ends_with("ERROR: No hay Fichero de SORTEOS cargado para escrutar\n")) << r.Errores;
}

} // namespace
