#include "GuardarCombinacion.h"

#include <gtest/gtest.h>

#include "ComandosFichero.h"
#include "FicheroApuestasLiteral.h"
#include "Guion.h"
#include "Sesiones.h"
#include "modXML.h"

namespace {

const std::string CajaGuardar = "[X] ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (";

// A piece of work with a final system of two bets, not yet saved.
struct Trabajo : Guion {
    Trabajo() {
        Marcar({1, 2, 3, 4, 5, 6, 48});
        MarcarDigitos({7});
        EstadoTrabajo& t = sesion.trabajo;
        t.ApuestasReducidas.Dimensionar(7, 2);
        for (size_t i = 0; i < 2; ++i)
            for (size_t r = 0; r < 7; ++r)
                t.ApuestasReducidas(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) =
                    static_cast<uint8_t>(apuestas[i][r]);
        t.Contador.Reducidas = 2;
        t.CombinacionGuardada = false;
        entorno.CarpetaInformes = carpeta.Ruta();
    }
    const std::vector<Apuesta> apuestas{{1, 2, 3, 4, 5, 6, 7}, {2, 3, 4, 5, 6, 48, 7}};
    CarpetaTemporal carpeta;
};

} // namespace

TEST(GuardarBaseXML, GuardaTitulaYPropone) {
    Trabajo t;
    t.Ficheros = {t.carpeta.Ruta("mía.dat")};
    const std::string texto = GenerarXMLBase(t.sesion, t.entorno);
    EXPECT_TRUE(GuardarBaseXML(t.sesion, t.entorno));
    EXPECT_EQ(LeerTodo(t.carpeta.Ruta("mía.xml")), texto);
    EXPECT_EQ(t.sesion.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : mía.xml");
    EXPECT_TRUE(t.sesion.trabajo.CombinacionGuardada);
    EXPECT_EQ(t.Peticiones[0].Nombre, "Sin guardar.xml");
    EXPECT_EQ(t.Peticiones[0].Titulo, "Guardar Fichero BASE en XML");
    EXPECT_FALSE(GuardarBaseXML(t.sesion, t.entorno)); // cancelled
    EXPECT_EQ(t.Peticiones[1].Nombre, "mía.xml");
    EXPECT_EQ(t.Cajas, Textos{});
}

TEST(GuardarBaseXML, SiFallaElTrabajoSigueSinGuardar) {
    Trabajo t;
    std::filesystem::create_symlink("/dev/full", t.carpeta.Ruta("llena.xml"));
    for (const std::string& ruta : {t.carpeta.Ruta("no/hay.xml"), t.carpeta.Ruta("llena.xml")}) {
        t.Ficheros = {ruta};
        const std::string titulo = t.sesion.trabajo.Titulo;
        EXPECT_FALSE(GuardarBaseXML(t.sesion, t.entorno));
        EXPECT_FALSE(t.sesion.trabajo.CombinacionGuardada);
        EXPECT_EQ(t.sesion.trabajo.Titulo, titulo);
    }
    EXPECT_EQ(t.Cajas, (Textos{CajaGuardar + "no existe el fichero o la carpeta)",
                               CajaGuardar + "no queda espacio en el disco)"}));
}

TEST(GuardarCombinacion, EscribeLasApuestasYSuBase) {
    Trabajo t;
    t.Ficheros = {t.carpeta.Ruta("sistema")};
    bool bloqueado = false;
    t.entorno.PedirGuardar = [&, antes = t.entorno.PedirGuardar](const PeticionFichero& p) {
        bloqueado = t.sesion.trabajo.FormularioBloqueado;
        return antes(p);
    };
    EXPECT_TRUE(GuardarCombinacion(t.sesion, t.entorno));
    EXPECT_EQ(LeerTodo(t.carpeta.Ruta("sistema.TOM")), EscribirLiteral("01020304050648", t.apuestas));
    EXPECT_EQ(LeerTodo(t.carpeta.Ruta("sistema.xml")), GenerarXMLBase(t.sesion, t.entorno));
    EXPECT_EQ(t.sesion.trabajo.Titulo, "TOMBOLERA 11.1");
    EXPECT_TRUE(t.sesion.trabajo.CombinacionGuardada);
    EXPECT_FALSE(bloqueado);
    EXPECT_FALSE(t.sesion.trabajo.FormularioBloqueado);
    EXPECT_FALSE(t.sesion.trabajo.picVentanaEspera.Visible);
    EXPECT_EQ(t.Peticiones[0].Nombre, "Sin guardar.TOM");
    EXPECT_EQ(t.Peticiones[0].Titulo, "Guardar Combinación");
    EXPECT_EQ(t.Peticiones[0].Filtros[1].first, "todos los archivos (*.*)");
    t.sesion.trabajo.Titulo = "TOMBOLERA 11.1 - Fichero : semana.12.xml";
    EXPECT_FALSE(GuardarCombinacion(t.sesion, t.entorno)); // cancelled
    EXPECT_EQ(t.Peticiones[1].Nombre, "semana.12.TOM");
}

TEST(GuardarCombinacion, MientrasEscribeLaVentanaEstaBloqueada) {
    Trabajo t;
    EstadoTrabajo& trabajo = t.sesion.trabajo;
    trabajo.ApuestasReducidas.Dimensionar(7, 12000);
    for (int r = 1; r <= 6; ++r) std::fill_n(trabajo.ApuestasReducidas.Fila(r), 12000, static_cast<uint8_t>(r));
    trabajo.Contador.Reducidas = 12000;
    t.Ficheros = {t.carpeta.Ruta("a.TOM")};
    t.EnTurno(1, [&] {
        EXPECT_TRUE(trabajo.FormularioBloqueado && trabajo.picVentanaEspera.Visible);
        EXPECT_EQ(trabajo.picVentanaEspera.Fraccion, 0.5);
        EXPECT_FALSE(std::filesystem::exists(t.carpeta.Ruta("a.TOM")));
    });
    EXPECT_TRUE(GuardarCombinacion(t.sesion, t.entorno));
    EXPECT_EQ(t.Turnos, 2);
    EXPECT_FALSE(trabajo.FormularioBloqueado || trabajo.picVentanaEspera.Visible);
}

TEST(GuardarCombinacion, ComprobacionesEnSuOrden) {
    Trabajo t;
    t.sesion.trabajo.Contador.Reducidas = 0;
    t.sesion.trabajo.lblReintegro = {};
    EXPECT_FALSE(GuardarCombinacion(t.sesion, t.entorno));
    t.sesion.trabajo.Contador.Reducidas = 3000001;
    EXPECT_FALSE(GuardarCombinacion(t.sesion, t.entorno));
    t.MarcarDigitos({3});
    EXPECT_FALSE(GuardarCombinacion(t.sesion, t.entorno));
    t.sesion.trabajo.cboTipoJuego = BONOLOTO;
    t.sesion.trabajo.lblReintegro = {};
    t.sesion.trabajo.Contador.Reducidas = 3000000;
    EXPECT_FALSE(GuardarCombinacion(t.sesion, t.entorno)); // cancelled, nothing asked
    const std::string pregunta = "[?] Se han generado más de 3.000.000 de apuestas, ¿ Desea guardar ? -> no";
    EXPECT_EQ(t.Cajas, (Textos{"[X] ERROR: No se han generado apuestas",
                               "[!] AVISO: Hay que seleccionar mínimo 1 reintegro", pregunta}));
    EXPECT_EQ(t.Peticiones.size(), 1u);
}

// Whichever of the two files fails, the former pair stays as it was.
TEST(GuardarCombinacion, SiUnoFallaNoCambiaNinguno) {
    for (const std::string fallido : {"par.xml", "par.TOM"}) {
        Trabajo t;
        EscribirTodo(t.carpeta.Ruta("par.TOM"), "bets of last week");
        EscribirTodo(t.carpeta.Ruta("par.xml"), "base of last week");
        std::filesystem::remove(t.carpeta.Ruta(fallido));
        std::filesystem::create_directory(t.carpeta.Ruta(fallido));
        t.Ficheros = {t.carpeta.Ruta("par")};
        EXPECT_FALSE(GuardarCombinacion(t.sesion, t.entorno));
        EXPECT_EQ(t.Cajas, Textos{CajaGuardar + "es una carpeta)"});
        const std::string otro = fallido == "par.xml" ? "par.TOM" : "par.xml";
        EXPECT_TRUE(LeerTodo(t.carpeta.Ruta(otro)).ends_with("of last week"));
        EXPECT_FALSE(t.sesion.trabajo.CombinacionGuardada || t.sesion.trabajo.FormularioBloqueado);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(t.carpeta.Ruta()), {}), 2);
    }
}

TEST(VerApuestas, EscribeYEnsenaLasApuestas) {
    Trabajo t;
    EXPECT_TRUE(VerApuestas(t.sesion, t.entorno));
    const std::string ruta = t.carpeta.Ruta("TOMBOLERA_TEMP.txt");
    EXPECT_EQ(LeerTodo(ruta), "010203040506\r\n020304050648\r\n");
    EXPECT_EQ(t.Informes, Textos{ruta});
    t.sesion.trabajo.Contador.Reducidas = 3000001;
    EXPECT_FALSE(VerApuestas(t.sesion, t.entorno));
    t.sesion.trabajo.Contador.Reducidas = 0;
    EXPECT_FALSE(VerApuestas(t.sesion, t.entorno));
    t.sesion.trabajo.Contador.Reducidas = 2;
    t.entorno.CarpetaInformes = t.carpeta.Ruta("no-hay");
    EXPECT_FALSE(VerApuestas(t.sesion, t.entorno));
    EXPECT_EQ(t.Cajas,
              (Textos{"[?] Se han generado más de 3.000.000 de apuestas, ¿ desea continuar ? -> no",
                      "[X] ERROR: No hay apuestas generadas", CajaGuardar + "no existe el fichero o la carpeta)"}));
    EXPECT_EQ(t.Informes.size(), 1u);
}

TEST(ValidarOnLine, UnaPaginaParaCadaJuego) {
    Trabajo t;
    EXPECT_FALSE(ValidarOnLine(t.sesion, t.entorno));
    EXPECT_EQ(t.Cajas.size(), 1u);
    t.entorno.Sitio = "https://sitio.example/";
    for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
        CambiarJuego(t.sesion, juego);
        EXPECT_TRUE(ValidarOnLine(t.sesion, t.entorno));
    }
    EXPECT_EQ(t.Direcciones,
              (Textos{"https://sitio.example/primitiva/archivos", "https://sitio.example/bonoloto/archivos",
                      "https://sitio.example/eurodreams/archivos"}));
}
