#include "LogicaAlgebra.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "AlgebraLiteral.h"
#include "Guion.h"
#include "Sesiones.h"
#include "modEncriptarFichero.h"
#include "modImportarASCII.h"

namespace {

const std::string Aviso = "[!] AVISO: El cálculo se ha detenido, no hay sistema resultante";

// Bets of seven elements, the last one the digit.
void EscribirTom(const std::string& ruta, const std::vector<Apuesta>& apuestas) {
    Entorno entorno;
    Tabla tabla(7, static_cast<int64_t>(apuestas.size()));
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (size_t r = 0; r < apuestas[i].size(); ++r)
            tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
    ASSERT_TRUE(GuardarFicheroApuestas(ruta, "0", static_cast<int32_t>(apuestas.size()), tabla, nullptr, entorno));
}

struct Algebra : Guion {
    CarpetaTemporal carpeta;
    LogicaAlgebra logica{sesion, entorno};
    const std::string s1 = carpeta.Ruta("s1.TOM"), s2 = carpeta.Ruta("s2.txt"), res = carpeta.Ruta("res.TOM");

    Algebra() {
        EscribirTom(s1, {{1, 2, 3, 4, 5, 6, 7}, {49, 3, 21, 8, 40, 11, 0}, {1, 2, 3, 4, 5, 6, 2}});
        EscribirTodo(s2, "01,02,03,04,05,06+9\r\n10,20,30,40,41,49+3\r\n");
        logica.Abrir();
    }
    Textos Log(int tipo) {
        logica.ElegirTipo(tipo);
        EXPECT_TRUE(logica.imgCalcular());
        return logica.txtVentanaResultados;
    }
    std::vector<Apuesta> Guardado() {
        Ficheros = {res};
        EXPECT_TRUE(logica.imgGuardar());
        Tabla tabla;
        LeerFicheroApuestas(res, tabla, nullptr, Juegos[PRIMITIVA], entorno);
        return Apuestas(tabla, 7);
    }
};

} // namespace

TEST(LogicaAlgebra, CargaOrdenaLosNumerosYLosMarca) {
    Algebra a;
    a.Ficheros = {a.s1};
    a.logica.cmdDesdeFichero(0);
    EXPECT_EQ(a.Peticiones[0].Titulo, "Abrir Fichero");
    EXPECT_EQ(a.Peticiones[0].FiltroElegido, 1u);
    const SistemaCargado& s = a.logica.Sistema[0];
    EXPECT_EQ(s.txtApuCargadas, "3");
    EXPECT_EQ(s.txtFicheroASCII, a.s1);
    EXPECT_EQ(s.lblTipoCombinacion(), "11 Números");
    EXPECT_EQ(Apuestas(s.Apuestas)[1], (Apuesta{3, 8, 11, 21, 40, 49}));
    EXPECT_EQ(s.AparicionesNumero[1], 2);
    EXPECT_EQ(s.AparicionesNumero[3], 3);
    EXPECT_TRUE(s.lblNumero[49]);
    EXPECT_FALSE(s.lblNumero[48]);
    a.logica.cmdDesdeFichero(0); // cancelled
    EXPECT_EQ(a.logica.Sistema[0].N(), 3);
    a.logica.imgINICombinacion(0);
    EXPECT_EQ(a.logica.Sistema[0].N(), 0);
    EXPECT_EQ(a.logica.Sistema[0].txtApuCargadas, "0");
    EXPECT_EQ(a.logica.Sistema[0].lblTipoCombinacion(), "0 Números");
    EXPECT_EQ(a.Cajas, Textos{});
    EXPECT_EQ(a.logica.Titulo(), "ALGEBRA DE COMBINACIONES (TIPO DE JUEGO SELECCIONADO: PRIMITIVA)");
}

TEST(LogicaAlgebra, LasComprobacionesEnSuOrden) {
    Algebra a;
    EXPECT_FALSE(a.logica.imgCalcular());
    a.logica.ElegirTipo(Resta);
    EXPECT_FALSE(a.logica.imgCalcular());
    a.logica.Cargar(0, a.s1);
    EXPECT_FALSE(a.logica.imgCalcular());
    EXPECT_FALSE(a.logica.imgGuardar());
    EXPECT_EQ(a.Log(OrdenarSistema1).size(), 2u); // without system 2
    a.logica.ElegirTipo(Resta);                   // clears the log
    EXPECT_FALSE(a.logica.imgGuardar());
    a.logica.Cargar(1, a.s1);
    EXPECT_EQ(a.Log(Resta), (Textos{"Proceso de RESTA de sistemas (sistema 1 - sistema 2) terminado CORRECTAMENTE",
                                    "Nº Apuestas Sistema Resultante : 0"}));
    EXPECT_FALSE(a.logica.imgGuardar());
    a.logica.Cargar(1, a.s2); // clears the log, too
    EXPECT_FALSE(a.logica.imgGuardar());
    const std::string ninguno = "[X] ERROR: NO HAY NINGUN SISTEMA GENERADO PARA GUARDARLO";
    EXPECT_EQ(a.Cajas, (Textos{"[X] ERROR: NO ESTA CARGADO EL SISTEMA 1", "[X] ERROR: NO ESTA CARGADO EL SISTEMA 1",
                               "[X] ERROR: NO ESTA CARGADO EL SISTEMA 2", ninguno, ninguno,
                               "[X] ERROR: NO SE PUEDE GUARDAR, EL SISTEMA RESULTANTE TIENE 0 APUESTAS", ninguno}));
    EXPECT_TRUE(a.Peticiones.empty());
}

TEST(LogicaAlgebra, CadaOperacionConSuLogYSuFichero) {
    Algebra a;
    a.logica.Cargar(0, a.s1);
    a.logica.Cargar(1, a.s2);
    const Apuesta uno{1, 2, 3, 4, 5, 6, 0}, tres{3, 8, 11, 21, 40, 49, 0}, diez{10, 20, 30, 40, 41, 49, 0};
    EXPECT_EQ(a.Log(OrdenarSistema1),
              (Textos{"Proceso de ORDENACION (Ascendente) terminado CORRECTAMENTE", "Nº Apuestas Ordenadas : 3"}));
    EXPECT_EQ(a.Guardado(), (std::vector<Apuesta>{uno, uno, tres}));
    EXPECT_EQ(a.Peticiones[0].Nombre, "singuardar.TOM");
    a.logica.cboTipoOrdenacion = 1;
    EXPECT_EQ(a.Log(OrdenarSistema1)[0], "Proceso de ORDENACION (Descendente) terminado CORRECTAMENTE");
    EXPECT_EQ(a.Guardado(), (std::vector<Apuesta>{tres, uno, uno}));
    EXPECT_EQ(a.Log(SumaDirecta), (Textos{"Proceso de SUMA de Sistemas (directo) terminado CORRECTAMENTE",
                                          "Nº Apuestas Sistema Resultante : 5"}));
    EXPECT_EQ(a.Guardado(), (std::vector<Apuesta>{uno, tres, uno, uno, diez}));
    EXPECT_EQ(a.Log(SumaSinRepetidas),
              (Textos{"Proceso de SUMA de sistemas (quitar repetidas) terminado CORRECTAMENTE",
                      "Nº Apuestas Sistema Sumado : 5", "Nº Apuestas repetidas : 2", "Nº Apuestas FINALES : 3"}));
    EXPECT_EQ(a.logica.Copiar(), "Proceso de SUMA de sistemas (quitar repetidas) terminado CORRECTAMENTE\n"
                                 "Nº Apuestas Sistema Sumado\t5\nNº Apuestas repetidas\t2\nNº Apuestas FINALES\t3\n");
    EXPECT_EQ(a.Guardado(), (std::vector<Apuesta>{uno, tres, diez}));
    EXPECT_EQ(a.Log(Interseccion),
              (Textos{"Proceso de INTERSECCION de sistemas (coger comunes) terminado CORRECTAMENTE",
                      "Nº Apuestas Sistema Sumado : 5", "Nº Apuestas COMUNES : 1"}));
    EXPECT_EQ(a.Guardado(), std::vector<Apuesta>{uno});
    EXPECT_EQ(a.Log(Resta).back(), "Nº Apuestas Sistema Resultante : 1");
    EXPECT_EQ(a.Guardado(), std::vector<Apuesta>{tres});
    EXPECT_EQ(a.Cajas, Textos{});
}

TEST(LogicaAlgebra, LoSoltadoVaDondeFalta) {
    Algebra a;
    const auto cuantas = [&] { return std::pair(a.logica.Sistema[0].N(), a.logica.Sistema[1].N()); };
    a.logica.Soltar({a.s1});
    EXPECT_EQ(cuantas(), std::pair(3, 0));
    a.logica.Soltar({a.s2});
    EXPECT_EQ(cuantas(), std::pair(3, 2));
    a.logica.Soltar({a.s2});
    EXPECT_EQ(cuantas(), std::pair(2, 2));
    a.logica.Soltar({a.s2, a.s1, a.carpeta.Ruta("otro.txt")});
    EXPECT_EQ(cuantas(), std::pair(2, 3));
    EXPECT_EQ(a.Cajas, Textos{});
}

// The bets are in memory: an origin may give its place to the result.
TEST(LogicaAlgebra, ElDestinoPuedeSerUnOrigen) {
    Algebra a;
    a.logica.Cargar(0, a.s1);
    a.logica.Cargar(1, a.s1);
    a.Log(SumaDirecta);
    a.Ficheros = {a.s1, a.s1};
    EXPECT_TRUE(a.logica.imgGuardar());
    EXPECT_TRUE(a.logica.imgGuardar());
    a.logica.Cargar(0, a.s1);
    EXPECT_EQ(a.logica.Sistema[0].N(), 6);
    EXPECT_EQ(a.Cajas, Textos{});
}

TEST(LogicaAlgebra, LoQueNoSeLeeDejaElSistemaVacio) {
    Algebra a;
    EscribirTodo(a.carpeta.Ruta("malo.txt"), "06,05,04,03,02,01\n");
    EscribirTodo(a.carpeta.Ruta("corto.TOM"), "xx");
    EscribirTom(a.carpeta.Ruta("cero.TOM"), {});
    CambiarJuego(a.sesion, EURODREAMS);
    struct Caso {
        std::string ruta, final;
    };
    for (const Caso& caso : {Caso{a.carpeta.Ruta("no-existe.TOM"), ")"},
                             {a.carpeta.Ruta("malo.txt"), " Apuestas con números no en orden ascendente (Apuesta 1))"},
                             {a.carpeta.Ruta("corto.TOM"), ")"},
                             {a.s1, " SUEÑOS INCORRECTOS)"}, // a file of another game
                             {a.carpeta.Ruta("cero.TOM"), ""}}) {
        a.Cajas.clear();
        a.logica.Cargar(0, a.s2);
        EXPECT_EQ(a.logica.Sistema[0].lblTipoCombinacion(), "12 Números"); // 41 and 49 too
        a.logica.Cargar(0, caso.ruta);
        EXPECT_EQ(a.Cajas.size(), caso.final.empty() ? 0u : 1u) << caso.ruta;
        for (const std::string& caja : a.Cajas) EXPECT_TRUE(caja.ends_with(caso.final)) << caja;
        EXPECT_EQ(a.logica.Sistema[0].N(), 0);
        EXPECT_EQ(a.logica.Sistema[0].txtApuCargadas, "0");
        EXPECT_FALSE(a.logica.imgCalcular());
        EXPECT_TRUE(a.logica.PuedeCerrar());
    }
}

TEST(LogicaAlgebra, UnDestinoImposibleConservaElResultado) {
    Algebra a;
    a.logica.Cargar(0, a.s1);
    a.Log(OrdenarSistema1);
    EscribirTodo(a.res, "lo de antes");
    std::filesystem::permissions(a.res, std::filesystem::perms::owner_read);
    a.Ficheros = {a.carpeta.Ruta("no/hay/carpeta.TOM"), "/dev/full/x"};
    EXPECT_FALSE(a.logica.imgGuardar());
    EXPECT_FALSE(a.logica.imgGuardar());
    EXPECT_FALSE(a.logica.imgGuardar()); // cancelled
    ASSERT_EQ(a.Cajas.size(), 2u);
    for (const std::string& caja : a.Cajas)
        EXPECT_TRUE(caja.starts_with("[X] ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (")) << caja;
    EXPECT_FALSE(a.logica.Trabajando);
    EXPECT_FALSE(a.logica.picVentanaEspera.Visible);
    EXPECT_EQ(a.logica.txtVentanaResultados.size(), 2u);
    EXPECT_EQ(LeerTodo(a.res), "lo de antes");
    std::filesystem::remove(a.res);
    EXPECT_EQ(a.Guardado().size(), 3u);
}

// Whatever is pressed while the work runs, only the stop has an effect.
TEST(LogicaAlgebra, DetenerYCerrarAMedias) {
    for (const int tipo : {OrdenarSistema1, SumaDirecta, SumaSinRepetidas, Interseccion, Resta}) {
        Algebra a;
        a.logica.Cargar(0, a.s1);
        a.logica.Cargar(1, a.s2);
        a.Log(SumaDirecta);
        a.logica.ElegirTipo(tipo);
        for (const int turno : {1, 2}) {
            a.EnTurno(a.Turnos + turno, [&] {
                EXPECT_EQ(a.logica.txtVentanaResultados, Textos{"Calculando ..."});
                EXPECT_FALSE(a.logica.PuedeCerrar());
                EXPECT_FALSE(a.logica.imgCalcular());
                EXPECT_FALSE(a.logica.imgGuardar());
                a.logica.Cargar(0, a.s2);
                a.logica.imgINICombinacion(1);
                a.logica.ElegirTipo(Resta);
                a.logica.cmdDesdeFichero(0);
                a.logica.Detener();
            });
            EXPECT_FALSE(a.logica.imgCalcular());
            EXPECT_EQ(a.Cajas, Textos(static_cast<size_t>(turno), Aviso));
            EXPECT_TRUE(a.logica.txtVentanaResultados.empty());
            EXPECT_TRUE(a.logica.PuedeCerrar());
        }
        a.logica.Detener(); // nothing runs
        EXPECT_TRUE(a.logica.imgCalcular());
    }
}
