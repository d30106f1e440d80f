#include <filesystem>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"
#include "TablaFiltros.h"
#include "modXML.h"

namespace {

// The text of a base file without the line of its date.
std::string SinFecha(const std::string& texto) {
    const size_t desde = texto.find("<DatosGeneracionFicheroXML");
    return std::string(texto).erase(desde, texto.find('\n', desde) - desde);
}

TEST(Base, LaVuelveAGuardarIgual) {
    CarpetaTemporal carpeta;
    Guion guion;
    guion.Marcar({1, 22, 49});
    guion.sesion.condiciones.DISTANCIAS.Distancia[2] = {3, 17};
    guion.sesion.condiciones.lstFiltros[kDISTANCIAS].Activo = true;
    const std::string texto = GenerarXMLBase(guion.sesion, guion.entorno);
    EscribirTodo(carpeta.Ruta("base.xml"), texto);
    const Resultado r = Correr({"base", "base.xml", "--guardar", "otra"}, {.Carpeta = carpeta.Ruta()});
    EXPECT_EQ(r.Estado, 0);
    EXPECT_EQ(r.Salida + r.Errores, "");
    EXPECT_EQ(SinFecha(LeerTodo(carpeta.Ruta("otra.xml"))), SinFecha(texto));
}

TEST(Base, UnBloqueMaloSeDiceYLaOrdenSigue) {
    CarpetaTemporal carpeta;
    Guion guion;
    guion.Marcar({1, 2, 3, 4, 5, 6});
    std::string texto = GenerarXMLBase(guion.sesion, guion.entorno);
    const std::string bueno = "<Complementario valor='0'";
    texto.replace(texto.find(bueno), bueno.size(), "<Complementario valor='x'");
    EscribirTodo(carpeta.Ruta("base.xml"), texto);
    const Resultado r = Correr({"base", "base.xml", "--guardar", "otra.xml"}, {.Carpeta = carpeta.Ruta()});
    EXPECT_EQ(r.Estado, 0);
    EXPECT_TRUE(r.Errores.starts_with("ERRORES detectados al abrir la BASE: |  | COMPLEMENTARIO : ")) << r.Errores;
    EXPECT_EQ(std::count(r.Errores.begin(), r.Errores.end(), '\n'), 1);
    EXPECT_NE(LeerTodo(carpeta.Ruta("otra.xml")).find("numeros='1,2,3,4,5,6'"), std::string::npos);
}

TEST(Base, LaQueFaltaONoSeLeeTerminaLaOrden) {
    CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("rota.xml"), "<XML><BASE>");
    for (const std::string fichero : {"nada.xml", "rota.xml", "."}) {
        const Resultado r = Correr({"base", fichero, "--guardar", "otra.xml"}, {.Carpeta = carpeta.Ruta()});
        EXPECT_EQ(r.Estado, 1) << fichero;
        EXPECT_EQ(r.Errores, "ERRORES detectados al abrir la BASE: |  | FICHERO : ERROR AL ABRIR EL FICHERO\n");
        EXPECT_FALSE(std::filesystem::exists(carpeta.Ruta("otra.xml")));
        const Resultado calculo = Correr({"calcular", fichero}, {.Carpeta = carpeta.Ruta()});
        EXPECT_EQ(calculo.Estado, 1);
        EXPECT_EQ(calculo.Errores, r.Errores);
    }
}

} // namespace
