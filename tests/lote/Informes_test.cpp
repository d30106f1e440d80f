#include <filesystem>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"
#include "TablaFiltros.h"
#include "Texto8bits.h"
#include "modXML.h"

namespace {

// A base of eight numbers with a condition and a reduction.
class Informes : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    Guion guion;

    Informes() {
        guion.Marcar({2, 5, 9, 14, 23, 31, 38, 47});
        guion.MarcarDigitos({6});
        guion.sesion.condiciones.SUMAS.intervalos[0] = {21, 91};
        guion.sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
    }
    Resultado Ejecutar(const Textos& argumentos) {
        EscribirTodo(carpeta.Ruta("base.xml"), GenerarXMLBase(guion.sesion, guion.entorno));
        return Correr(argumentos, {.Carpeta = carpeta.Ruta()});
    }
    // The report file as the standard output would tell it; all its line ends are CR LF.
    std::string Fichero(const std::string& nombre) {
        std::string texto = LeerTodo(carpeta.Ruta(nombre));
        for (size_t i = texto.find('\n'); i != std::string::npos; i = texto.find('\n', i)) {
            EXPECT_TRUE(i > 0 && texto[i - 1] == '\r');
            texto.erase(i - 1, 1);
        }
        return Codigo8AUtf8(texto);
    }
};

} // namespace

TEST_F(Informes, EliminadasCalculaYEscribeLoQueImprime) {
    guion.sesion.trabajo.Reduccion.TipoReduccion = 1;
    guion.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    const Resultado r = Ejecutar({"eliminadas", "base.xml"});
    EXPECT_EQ(r.Salida, "TOTAL Apuestas Iniciales     : 28\nTOTAL Apuestas Eliminadas    : 26\n"
                        "TOTAL Apuestas Condicionadas : 2\nTOTAL Apuestas Reducidas     : 1\n\n"
                        "Eliminadas por cada Filtro Activo:\nSUMAS: 26\n");
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(Fichero("TOMBOLERA_RESUMEN.txt"), r.Salida);
}

// The counts on the fly need no calculation, and so no digits either.
TEST_F(Informes, AlVueloCuentaLoQuePasaYLoQueCuestaCadaCondicion) {
    guion.sesion.condiciones.PARESIMPARES.ParesActivos[3] = 1;
    guion.sesion.condiciones.lstFiltros[kPARESIMPARES].Activo = true;
    guion.MarcarDigitos({});
    const Resultado r = Ejecutar({"al-vuelo", "base.xml"});
    EXPECT_EQ(r.Salida, "Iniciales: 28\nAl vuelo: 1\nSola PARESIMPARES: 18\nSólo ella PARESIMPARES: 1\n"
                        "Sola SUMAS: 26\nSólo ella SUMAS: 9\n");
    guion.sesion.trabajo.lblNumero.fill(false);
    const Resultado corta = Ejecutar({"al-vuelo", "base.xml"});
    EXPECT_EQ(corta.Estado, 1);
    EXPECT_EQ(corta.Errores, "AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS\n");
}

TEST_F(Informes, AnalisisEnApuestasYEnPorcentajes) {
    const Resultado cuentas = Ejecutar({"analisis", "base.xml"});
    EXPECT_NE(cuentas.Salida.find("\n9 2         19 --       29 --       39 --       49 --\n"), std::string::npos);
    EXPECT_NE(cuentas.Salida.find("\n1 --        11 --       21 --       31 1        41 --\n"), std::string::npos);
    EXPECT_TRUE(cuentas.Salida.ends_with("\n6 2\n7 --\n8 --\n9 --\n")) << cuentas.Salida;
    EXPECT_EQ(Fichero("TOMBOLERA_ANALISIS.txt"), cuentas.Salida);
    const Resultado partes = Ejecutar({"--carpeta", ".", "analisis", "--porcentajes", "base.xml"});
    EXPECT_NE(partes.Salida.find("\n1 --        11 --       21 --       31 50%      41 --\n"), std::string::npos);
    EXPECT_EQ(Fichero("TOMBOLERA_ANALISIS.txt"), partes.Salida);
    EXPECT_EQ(cuentas.Estado + partes.Estado, 0);
}

TEST_F(Informes, ElResumenNoCalcula) {
    std::filesystem::create_directory(carpeta.Ruta("informes"));
    const Resultado r = Ejecutar({"resumen", "base.xml", "--carpeta", "informes"});
    EXPECT_NE(r.Salida.find("\nNombre combinación : base.xml\nNº de Apuestas     : 28\n"), std::string::npos)
        << r.Salida;
    EXPECT_NE(r.Salida.find("\nFILTROS\n\nFiltro SUMAS:\nIntervalo 1(Suma Mín-Máx): 21-91\n"), std::string::npos);
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(Fichero("informes/TOMBOLERA_INFORME.txt"), r.Salida);
}

TEST_F(Informes, UnaCarpetaQueNoValeSeDice) {
    for (const std::string orden : {"resumen", "eliminadas", "analisis"}) {
        const Resultado r = Ejecutar({orden, "base.xml", "--carpeta", "no-hay"});
        EXPECT_EQ(r.Estado, 1) << orden;
        EXPECT_TRUE(r.Errores.starts_with("ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (")) << r.Errores;
        EXPECT_NE(r.Salida, "");
    }
}

TEST_F(Informes, SinSistemaNoHayInforme) {
    guion.sesion.trabajo.lblReintegro[6] = false;
    for (const std::string orden : {"eliminadas", "analisis"}) {
        const Resultado r = Ejecutar({orden, "base.xml"});
        EXPECT_EQ(r.Estado, 1);
        EXPECT_EQ(r.Salida, "");
        EXPECT_EQ(r.Errores, "AVISO: Hay que seleccionar mínimo 1 reintegro\n");
        EXPECT_EQ(Ejecutar({orden, "nada.xml"}).Estado, 1);
    }
    EXPECT_FALSE(std::filesystem::exists(carpeta.Ruta("TOMBOLERA_ANALISIS.txt")));
    EXPECT_FALSE(std::filesystem::exists(carpeta.Ruta("TOMBOLERA_RESUMEN.txt")));
}
