// estadisticas and actualizar.
#include <csignal>

#include <gtest/gtest.h>

#include "Guion.h"
#include "HistoriaInventada.h"
#include "Proceso.h"
#include "ServicioLocal.h"

namespace {

struct SorteosLote : testing::Test {
    CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("sorteos.txt");
    const Sorteos sorteos = SorteosInventados(BONOLOTO, 500);
    const std::string texto = TextoFicheroSorteos(sorteos);

    Resultado Actualizar(const std::string& servicio, bool si = true) {
        Textos argumentos{"--servicio", servicio, "actualizar", "sorteos.txt", "--juego", "BONOLOTO"};
        if (si) argumentos.insert(argumentos.begin(), "--si");
        return Correr(argumentos, {.Carpeta = carpeta.Ruta()});
    }
};

TEST_F(SorteosLote, UnaEstadisticaConSuTituloYSuCuenta) {
    EscribirTodo(ruta, "01,02,03,04,05,16 2010 10 J\r\n11,22,33,44,45,47 2011 10 J\r\n01,02,03,04,05,06 2011 11 S\r\n");
    const Resultado r = Correr({"estadisticas", ruta, "--tipo", "2"});
    EXPECT_EQ(r.Salida, "Decena            Apariciones\n01-09 ---> 11\n10-19 ---> 2\n20-29 ---> 1\n30-39 ---> 1\n"
                        "40-49 ---> 3\nSorteos consultados: 3\n");
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
    const Resultado parte =
        Correr({"estadisticas", ruta, "--tipo", "6", "--anios", "2010-2011", "--sorteo", "10-10", "--dia", "4"});
    EXPECT_EQ(parte.Salida, "Sumas                 Apariciones\n021-032 ---> 1\n031-042 ---> 1\n201-212 ---> 1\n"
                            "Sorteos consultados: 2\n");
}

TEST_F(SorteosLote, LasCajasDeUnaEstadistica) {
    EscribirTodo(ruta, texto);
    struct Caso {
        Textos Argumentos;
        int Estado;
        std::string Salida, Errores;
    };
    const std::string mayor = "ERROR: Año mínimo mayor que año máximo\n";
    const std::vector<Caso> casos{
        {{"noexiste.txt", "--tipo", "0"},
         1,
         "",
         "ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (no existe el fichero o la carpeta)\n"},
        {{"sorteos.txt", "--tipo", "0", "--anios", "2012-2010"}, 1, "", mayor},
        {{"sorteos.txt", "--tipo", "0", "--anios", "1990-99999"},
         1,
         "",
         "ERROR: Algún campo de la consulta no es válido\n"},
        {{"sorteos.txt", "--tipo", "0", "--anios", "1900-1901"},
         0,
         "Número     Apariciones\nSorteos consultados: 0\n",
         "Ningún dato coincide con la consulta realizada\n"},
    };
    for (const Caso& caso : casos) {
        Textos argumentos{"estadisticas"};
        argumentos.insert(argumentos.end(), caso.Argumentos.begin(), caso.Argumentos.end());
        const Resultado r = Correr(argumentos, {.Carpeta = carpeta.Ruta()});
        EXPECT_EQ(r.Estado, caso.Estado);
        EXPECT_EQ(r.Salida, caso.Salida);
        EXPECT_EQ(r.Errores, caso.Errores);
    }
}

TEST_F(SorteosLote, ActualizarCambiaElFicheroOLoHace) {
    ServicioLocal servicio;
    servicio.Responder({.Cuerpo = RespuestaXML(BONOLOTO, sorteos), .Estado = 503});
    const std::string hecho = "SE HAN ACTUALIZADO 500 COMBINACIONES EN EL FICHERO: sorteos.txt\n";
    const std::string nuevo = "No hay ningún fichero de sorteos cargado, se va a proceder a crear uno nuevo llamado "
                              "'sorteos.txt' | En la ruta: '.', ¿ Desea continuar ? -> ";
    const std::string cambio = "Se van actualizar los datos del fichero 'sorteos.txt' con los del fichero de INTERNET "
                               "del juego BONOLOTO | ¿ Desea continuar ? -> ";
    struct Caso {
        bool Si;
        std::string Errores;
    };
    for (const Caso& caso : {Caso{false, nuevo + "no\n"},
                             {true, nuevo + "sí\n" + hecho},
                             {false, cambio + "no\n"},
                             {true, cambio + "sí\n" + hecho}}) {
        const Resultado r = Actualizar(servicio.Direccion() + "/", caso.Si);
        EXPECT_EQ(r.Estado, caso.Si ? 0 : 1);
        EXPECT_EQ(r.Salida, "");
        EXPECT_EQ(r.Errores, caso.Errores);
        EXPECT_EQ(servicio.Peticiones().back(), "/servicios/v1/xml2/eurodreams?temporada=todas&juego=BONOLOTO");
    }
    EXPECT_EQ(LeerTodo(ruta), texto);
}

TEST_F(SorteosLote, UnFicheroQueNoEsDeSorteosSeRespeta) {
    EscribirTodo(ruta, "la lista de la compra\r\n");
    ServicioLocal servicio;
    servicio.Responder({.Cuerpo = RespuestaXML(BONOLOTO, sorteos)});
    const Resultado r = Actualizar(servicio.Direccion());
    EXPECT_EQ(r.Estado, 1);
    EXPECT_EQ(LeerTodo(ruta), "la lista de la compra\r\n");
    EXPECT_TRUE(servicio.Peticiones().empty());
}

TEST_F(SorteosLote, ElServicioSaleDelEntornoYLaOpcionPuedeMas) {
    EscribirTodo(ruta, texto);
    const Textos argumentos{"actualizar", ruta};
    setenv("TOMBOLERA_SERVICIO", "", 1);
    EXPECT_EQ(Correr(argumentos).Errores, "ERROR AL ABRIR EL FICHERO DE ACTUALIZACION (no hay ningún servicio de "
                                          "sorteos configurado)\n");
    ServicioLocal servicio, otro;
    servicio.Responder({.Cuerpo = "<"});
    otro.Responder({.Cuerpo = RespuestaXML(BONOLOTO, sorteos)});
    setenv("TOMBOLERA_SERVICIO", servicio.Direccion().c_str(), 1);
    EXPECT_EQ(Correr(argumentos).Errores,
              "ERROR AL ABRIR EL FICHERO DE ACTUALIZACION (el certificado del servidor no es válido)\n");
    EXPECT_EQ(Actualizar(otro.Direccion()).Estado, 0);
    unsetenv("TOMBOLERA_SERVICIO");
}

TEST_F(SorteosLote, CtrlCInterrumpeLaEspera) {
    EscribirTodo(ruta, texto);
    ServicioLocal servicio;
    servicio.Responder({.Callar = true});
    ComoCorrer como{.Terminal = true};
    como.AlLeerErrores = [](pid_t hijo, const std::string& errores) {
        const bool espera = errores.find("Esperando") != std::string::npos;
        if (espera) kill(hijo, SIGINT);
        return espera;
    };
    const Resultado r = Correr({"--servicio", servicio.Direccion(), "actualizar", ruta}, como);
    EXPECT_EQ(r.Estado, 130);
    EXPECT_NE(r.Errores.find("ERROR AL ABRIR EL FICHERO DE ACTUALIZACION (se ha interrumpido)"), std::string::npos);
    EXPECT_EQ(LeerTodo(ruta), texto);
}

} // namespace
