#include <gtest/gtest.h>

#include "Guion.h"
#include "HistoriaInventada.h"
#include "LogicaEstadisticas.h"
#include "ServicioLocal.h"

namespace {

using namespace std::chrono_literals;

const std::string Antes = "01,02,03,04,05,06 2007 1 J\r\n";
const std::string NoAbierto = "[X] ERROR AL ABRIR EL FICHERO DE ACTUALIZACION";

struct Actualizacion : Guion {
    CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("mi fichero.txt"), local = carpeta.Ruta("estadisticas_local.txt");
    const Sorteos sorteos = SorteosInventados(BONOLOTO, 700);
    std::string cuerpo = RespuestaXML(BONOLOTO, sorteos);
    LogicaEstadisticas l;
    std::string pedida; // address

    Actualizacion() : l(sesion.trabajo, EnCarpeta()) {
        entorno.Servicio = "https://servicio";
        entorno.PedirHttp = [this](const std::string& url, std::string& destino, std::string&) {
            pedida = url;
            EXPECT_TRUE(l.Actualizando && sesion.trabajo.FormularioBloqueado);
            destino = cuerpo;
            return true;
        };
        l.ElegirJuego(BONOLOTO);
    }
    ~Actualizacion() { EXPECT_FALSE(l.Actualizando || sesion.trabajo.FormularioBloqueado); }

    Entorno& EnCarpeta() {
        entorno.CarpetaInformes = carpeta.Ruta();
        return entorno;
    }
    void CargarUno() {
        EscribirTodo(ruta, Antes);
        ASSERT_TRUE(l.CargarFicheroSorteos(ruta));
    }
    std::string Pregunta(bool si) const {
        return "[?] Se van actualizar los datos del fichero '" + ruta +
               "' con los del fichero de INTERNET del juego BONOLOTO\n¿ Desea continuar ?" + (si ? " -> sí" : " -> no");
    }
    static std::string Hecho(const std::string& fichero) {
        return "[!] SE HAN ACTUALIZADO 700 COMBINACIONES EN EL FICHERO: " + fichero;
    }
};

TEST(ActualizarDesdeInternet, ElFicheroCargadoSeCambiaEnteroTrasPreguntar) {
    Actualizacion a;
    a.CargarUno();
    a.l.txtDatos = "lo de la consulta";
    EXPECT_FALSE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(a.Cajas, Textos{a.Pregunta(false)});
    EXPECT_EQ(LeerTodo(a.ruta), Antes);
    EXPECT_EQ(a.l.lblSorteosCargados, "1");

    a.Cajas.clear();
    a.Respuestas = {true};
    EXPECT_TRUE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(a.Cajas, (Textos{a.Pregunta(true), a.Hecho(a.ruta)}));
    EXPECT_EQ(a.pedida, "https://servicio/servicios/v1/xml2/eurodreams?temporada=todas&juego=BONOLOTO");
    EXPECT_EQ(LeerTodo(a.ruta), TextoFicheroSorteos(a.sorteos));
    EXPECT_EQ(a.l.lblSorteosCargados, "700");
    EXPECT_EQ(a.l.txtDatos, "");
}

TEST(ActualizarDesdeInternet, SinFicheroCargadoHaceUnoNuevo) {
    Actualizacion a;
    const std::string pregunta =
        "[?] No hay ningún fichero de sorteos cargado, se va a proceder a crear uno nuevo llamado "
        "'estadisticas_local.txt'\nEn la ruta: '" +
        a.carpeta.Ruta() + "', ¿ Desea continuar ?";
    EXPECT_FALSE(a.l.ActualizarDesdeInternet());
    EXPECT_FALSE(std::filesystem::exists(a.local));
    a.Respuestas = {true};
    EXPECT_TRUE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(a.Cajas, (Textos{pregunta + " -> no", pregunta + " -> sí", a.Hecho(a.local)}));
    EXPECT_EQ(LeerTodo(a.local), TextoFicheroSorteos(a.sorteos));
    EXPECT_EQ(a.l.txtFicheroASCII, a.local);
}

TEST(ActualizarDesdeInternet, ElFicheroLocalQueYaEstaSeCambiaSinPreguntar) {
    for (const std::string& habia : {Antes, std::string("nada que sea un sorteo")}) {
        Actualizacion a;
        EscribirTodo(a.local, habia);
        EXPECT_TRUE(a.l.ActualizarDesdeInternet());
        EXPECT_EQ(a.Cajas.back(), a.Hecho(a.local));
        EXPECT_EQ(a.Cajas.size(), habia == Antes ? 1u : 2u);
        EXPECT_EQ(LeerTodo(a.local), TextoFicheroSorteos(a.sorteos));
        EXPECT_EQ(a.l.lblSorteosCargados, "700");
    }
}

TEST(ActualizarDesdeInternet, UnaRespuestaMalaDejaElFicheroComoEstaba) {
    const auto con = [](const std::string& atributos) {
        return "<r><BONOLOTO><COMBINACIONES><COMBINACION numeros='1,2,3,4,5,6' anio='2010' sorteo='1' dia='L'/>"
               "<COMBINACION " +
               atributos + "/></COMBINACIONES></BONOLOTO></r>";
    };
    struct Caso {
        std::string Cuerpo, Caja;
        bool Pregunta;
    };
    const std::vector<Caso> casos{
        {"<html>", NoAbierto + " - las etiquetas de la respuesta no casan", false},
        {"", NoAbierto + " - la respuesta no tiene ningún elemento", false},
        {"<r/>", "[X] ERROR AL TRATAR EL FICHERO DE ACTUALIZACION DESDE INTERNET", true},
        {RespuestaXML(PRIMITIVA, SorteosInventados(PRIMITIVA, 3)),
         "[X] ERROR AL TRATAR EL FICHERO DE ACTUALIZACION DESDE INTERNET", true},
        {con("numeros='1,2,3,4,5,6' anio='2010' sorteo='2'"), NoAbierto + " (falta el atributo 'dia' de 'COMBINACION')",
         true},
        {con("numeros='1,2,3,4,5,6,7,8,9' anio='2010' sorteo='2' dia='M'"),
         NoAbierto + " (hay más de ocho números en un sorteo)", true},
        {con("numeros='1,2,3,4,5,6,7,8' anio='2010' sorteo='2' dia='K'"),
         NoAbierto + " (el día del sorteo 2 de 2010 no es ninguno de L, M, X, J, V, S y D)", true},
    };
    for (const Caso& caso : casos) {
        Actualizacion a;
        a.CargarUno();
        a.cuerpo = caso.Cuerpo;
        if (caso.Pregunta) a.Respuestas = {true};
        EXPECT_FALSE(a.l.ActualizarDesdeInternet());
        EXPECT_EQ(a.Cajas, caso.Pregunta ? (Textos{a.Pregunta(true), caso.Caja}) : Textos{caso.Caja});
        EXPECT_EQ(LeerTodo(a.ruta), Antes);
        EXPECT_EQ(a.l.lblSorteosCargados, "1");
    }
}

// Blank values are written as 00, which the reader then refuses among the six numbers.
TEST(ActualizarDesdeInternet, UnNumeroEnBlancoSeEscribeComo00) {
    Actualizacion a;
    a.CargarUno();
    a.Respuestas = {true};
    a.cuerpo = "<r><bonoloto><combinaciones><combinacion numeros=',2,3,4,5,6,,' anio='2010' sorteo='300' dia='s'/>"
               "</combinaciones></bonoloto></r>";
    EXPECT_FALSE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(LeerTodo(a.ruta), "\r\n00,02,03,04,05,06,00,00 2010 300 S\r\n");
    EXPECT_EQ(a.Cajas.back(), "[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO ()");
}

TEST(ActualizarDesdeInternet, SinServicioOSinDondeEscribir) {
    Actualizacion a;
    a.CargarUno();
    a.entorno.Servicio = "";
    EXPECT_FALSE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(a.Cajas, Textos{NoAbierto + " (no hay ningún servicio de sorteos configurado)"});

    a.Cajas.clear();
    a.entorno.Servicio = "https://servicio";
    a.l.txtFicheroASCII = "/dev/full";
    a.Respuestas = {true};
    EXPECT_FALSE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(a.Cajas.back(), NoAbierto + " (no queda espacio en el disco)");
    EXPECT_EQ(a.l.lblSorteosCargados, "1");
}

// Over a real connection, with all that can go wrong on it.
TEST(ActualizarDesdeInternet, ContraUnServicioQueFalla) {
    Actualizacion a;
    a.CargarUno();
    struct Caso {
        CertificadoLocal Certificado;
        RespuestaLocal Respuesta;
        std::string Caja;
    };
    const std::vector<Caso> casos{
        {{}, {.Cuerpo = a.cuerpo, .CortarTras = a.cuerpo.size() / 2}, NoAbierto + " (la conexión se ha cortado)"},
        {{.Conocido = false}, {.Cuerpo = a.cuerpo}, NoAbierto + " (el certificado del servidor no es válido)"},
        {{}, {.Callar = true}, NoAbierto + " (el servidor no contesta)"},
        {{},
         {.Cuerpo = "<html><p>Error<br></html>", .Estado = 500},
         NoAbierto + " - las etiquetas de la respuesta no casan"},
    };
    for (const Caso& caso : casos) {
        ServicioLocal servicio(caso.Certificado);
        servicio.Responder(caso.Respuesta);
        servicio.Conectar(a.entorno, {.SinBytes = 500ms});
        a.Cajas.clear();
        EXPECT_FALSE(a.l.ActualizarDesdeInternet());
        EXPECT_EQ(a.Cajas, Textos{caso.Caja});
        EXPECT_EQ(LeerTodo(a.ruta), Antes);
    }
    ServicioLocal servicio;
    servicio.Responder({.Cuerpo = a.cuerpo, .Estado = 500, .Trozo = 5000, .Pausa = 5ms});
    servicio.Conectar(a.entorno);
    a.Respuestas = {true};
    EXPECT_TRUE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(LeerTodo(a.ruta), TextoFicheroSorteos(a.sorteos));
}

TEST(ActualizarDesdeInternet, UnaRespuestaDeVeinteMegas) {
    Actualizacion a;
    const Sorteos muchos = SorteosInventados(BONOLOTO, 250000);
    ServicioLocal servicio;
    servicio.Responder({.Cuerpo = RespuestaXML(BONOLOTO, muchos)});
    servicio.Conectar(a.entorno);
    EscribirTodo(a.local, Antes);
    EXPECT_TRUE(a.l.ActualizarDesdeInternet());
    EXPECT_EQ(LeerTodo(a.local), TextoFicheroSorteos(muchos));
    EXPECT_EQ(a.l.lblSorteosCargados, "250000");
}

} // namespace
