#include "LogicaCoeficienteRentabilidad.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "Sesiones.h"
#include "modEncriptarFichero.h"

namespace {

// Six bets, two of them the same; their coefficients under the tables of the test are 1.0 but for those
// with numbers 1 to 6.
struct Utilidad : Guion {
    CarpetaTemporal carpeta;
    LogicaCoeficienteRentabilidad logica{sesion, entorno};
    const std::string fichero = carpeta.Ruta("f.txt"), res = carpeta.Ruta("res.TOM");

    Utilidad() {
        EscribirTodo(fichero, "070809101112\n010203040506\n010708091011\n131415161718\n070809101112\n020708091011\n");
        logica.Abrir();
        logica.txtPorcentajesApostados.fill("12,25");
        for (size_t n = 1; n <= 6; ++n) logica.txtPorcentajesApostados[n - 1] = "10.0";
    }
    void Calcular() {
        EXPECT_TRUE(logica.Cargar(fichero));
        EXPECT_TRUE(logica.imgCalcular());
    }
    std::vector<Apuesta> Guardado() {
        Tabla tabla;
        LeerFicheroApuestas(res, tabla, nullptr, Juegos[PRIMITIVA], entorno);
        return Apuestas(tabla, 7);
    }
};

} // namespace

TEST(LogicaCoeficienteRentabilidad, AbreConSusPropiasTablas) {
    Utilidad u;
    u.sesion.condiciones.COEFICIENTERENTABILIDAD.PorcentajesReales.fill(1);
    u.logica.Abrir();
    EXPECT_EQ(u.logica.txtPorcentajesApostados[0], "12,6");
    EXPECT_EQ(u.logica.txtPorcentajesApostados[48], "11,05");
    EXPECT_EQ(u.logica.txtPorcentajesReales[48], "12,25");
    EXPECT_EQ(u.logica.lblApuCargadas, "0");
    EXPECT_EQ(u.logica.lblApuestasSeleccionadasCR(), "Apuestas: 0");
    EXPECT_TRUE(u.logica.lstCR.empty());
}

TEST(LogicaCoeficienteRentabilidad, CuentaEligeYGuardaPorFilas) {
    Utilidad u;
    u.Ficheros = {u.fichero, u.carpeta.Ruta("res")};
    u.logica.cmdDesdeFichero();
    EXPECT_EQ(u.logica.lblApuCargadas, "6");
    ASSERT_TRUE(u.logica.imgCalcular());
    ASSERT_EQ(u.logica.lstCR.size(), 100u);
    EXPECT_EQ(u.logica.lstCR[10], "1,0: 3");
    EXPECT_EQ(u.logica.lstCR[12], "1,2: 2");
    EXPECT_EQ(u.logica.lstCR[34], "3,4: 1");
    EXPECT_EQ(u.logica.lstCR[99], "9,9: 0");
    EXPECT_TRUE(u.logica.Copiar().starts_with("Coeficiente\tApuestas\n0,0\t0\n"));
    EXPECT_NE(u.logica.Copiar().find("\n1,0\t3\n"), std::string::npos);
    u.logica.ElegirCR(34, true);
    u.logica.ElegirCR(10, true);
    u.logica.ElegirCR(12, true);
    EXPECT_EQ(u.logica.lblApuestasSeleccionadasCR(), "Apuestas: 6");
    u.logica.ElegirCR(12, false);
    EXPECT_EQ(u.logica.lblApuestasSeleccionadasCR(), "Apuestas: 4");
    EXPECT_TRUE(u.logica.imgGrabarApuestasCR());
    EXPECT_EQ(u.Peticiones[1].Titulo, "Guardar Apuestas");
    EXPECT_EQ(u.Peticiones[1].Nombre, "Singuardar_4.TOM");
    EXPECT_EQ(u.Cajas, Textos{"[!] SE HAN GUARDADO 4 APUESTAS"});
    EXPECT_EQ(
        u.Guardado(),
        (std::vector<Apuesta>{
            {7, 8, 9, 10, 11, 12, 0}, {13, 14, 15, 16, 17, 18, 0}, {7, 8, 9, 10, 11, 12, 0}, {1, 2, 3, 4, 5, 6, 0}}));
}

TEST(LogicaCoeficienteRentabilidad, LasComprobacionesEnSuOrden) {
    Utilidad u;
    u.logica.txtPorcentajesReales[0] = "";
    EXPECT_FALSE(u.logica.imgCalcular());
    EXPECT_FALSE(u.logica.imgGrabarApuestasCR());
    u.logica.Cargar(u.fichero);
    EXPECT_FALSE(u.logica.imgCalcular());
    u.logica.txtPorcentajesApostados[48] = " ";
    u.logica.txtPorcentajesApostados[1] = "1.2.3";
    EXPECT_FALSE(u.logica.imgCalcular());
    u.logica.CambiarPorcentaje(TablaCR::Apostados, 48, "1a1,5");
    u.logica.txtPorcentajesReales[0] = "1";
    EXPECT_FALSE(u.logica.imgCalcular());
    EXPECT_EQ(u.logica.txtPorcentajesApostados[48], "11,5");
    u.logica.txtPorcentajesApostados[1] = "12";
    EXPECT_TRUE(u.logica.imgCalcular());
    u.logica.ElegirCR(99, true);
    EXPECT_FALSE(u.logica.imgGrabarApuestasCR());
    EXPECT_EQ(u.Cajas, (Textos{"[!] No hay ningún fichero de apuestas cargado",
                               "[X] ANTES DE GUARDAR LAS APUESTAS HAY QUE CALCULAR LOS COEFICIENTES DE RENTABILIDAD",
                               "[X] ERROR EN NUMERO 1: EL % ESTA EN BLANCO (% REALES)",
                               "[X] ERROR EN NUMERO 49: EL % ESTA EN BLANCO (% APOSTADOS)",
                               "[X] ERROR EN NUMERO 2: EL % NO ES UN NUMERO VALIDO (% APOSTADOS)",
                               "[X] ERROR: TIENE QUE SELECCIONAR ALGUN COEFICIENTE DE RENTABILIDAD CON APUESTAS, HAY 0 "
                               "SELECCIONADAS"}));
    EXPECT_TRUE(u.Peticiones.empty());
}

TEST(LogicaCoeficienteRentabilidad, OtroFicheroVaciaLaLista) {
    Utilidad u;
    EscribirTodo(u.carpeta.Ruta("vacio.txt"), "");
    EscribirTodo(u.carpeta.Ruta("malo.txt"), "010203040566\n");
    Entorno callado;
    Tabla una(7, 1);
    for (int r = 1; r <= 6; ++r) una(r, 1) = static_cast<uint8_t>(r);
    ASSERT_TRUE(GuardarFicheroApuestas(u.carpeta.Ruta("primitiva.TOM"), "0", 1, una, nullptr, callado));
    CambiarJuego(u.sesion, EURODREAMS);
    const std::string aviso = "[!] AVISO: Se han importado 0 apuestas.\nEl fichero ha de estar en formato: "
                              "010203040506 o 01,02,03,04,05,06 o 01 02 03 04 05 06";
    for (const auto& [nombre, cajas] :
         {std::pair{"vacio.txt", 1u}, {"malo.txt", 2u}, {"primitiva.TOM", 2u}, {"no-existe.TOM", 2u}}) {
        u.Calcular();
        u.logica.ElegirCR(10, true);
        u.Cajas.clear();
        EXPECT_FALSE(u.logica.Cargar(u.carpeta.Ruta(nombre)));
        EXPECT_EQ(u.Cajas.size(), cajas) << nombre;
        EXPECT_EQ(u.Cajas.back(), aviso);
        EXPECT_EQ(u.logica.lblApuCargadas, "0");
        EXPECT_EQ(u.logica.lblApuestasSeleccionadasCR(), "Apuestas: 0");
        EXPECT_TRUE(u.logica.lstCR.empty());
        EXPECT_FALSE(u.logica.imgCalcular());
    }
}

TEST(LogicaCoeficienteRentabilidad, UnDestinoImposibleOElOrigen) {
    Utilidad u;
    u.Calcular();
    u.logica.ElegirCR(10, true);
    u.Ficheros = {u.carpeta.Ruta("no/hay.TOM"), "", u.res, u.res};
    EXPECT_FALSE(u.logica.imgGrabarApuestasCR());
    EXPECT_FALSE(u.logica.imgGrabarApuestasCR());
    ASSERT_EQ(u.Cajas.size(), 1u);
    EXPECT_TRUE(u.Cajas[0].starts_with("[X] ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (")) << u.Cajas[0];
    EXPECT_FALSE(u.logica.Trabajando);
    EXPECT_TRUE(u.logica.imgGrabarApuestasCR());
    ASSERT_TRUE(u.logica.Cargar(u.res));
    ASSERT_TRUE(u.logica.imgCalcular());
    EXPECT_EQ(u.logica.ApuestasPorCR[10], 3);
    u.logica.ElegirCR(10, true);
    EXPECT_TRUE(u.logica.imgGrabarApuestasCR()); // over its own origin
    EXPECT_EQ(u.Guardado().size(), 3u);
}

TEST(LogicaCoeficienteRentabilidad, LosPorcentajesVanYVienenPorFicheros) {
    Utilidad u;
    const std::string ruta = u.carpeta.Ruta("p.txt");
    u.Ficheros = {u.carpeta.Ruta("p"), ruta};
    u.logica.imgGuardarPorcentajes(TablaCR::Apostados);
    u.logica.imgINIPorcentajes(TablaCR::Reales);
    EXPECT_EQ(u.logica.txtPorcentajesReales[30], "0");
    u.logica.imgAbrirPorcentajes(TablaCR::Reales);
    EXPECT_EQ(u.logica.txtPorcentajesReales, u.logica.txtPorcentajesApostados);
    EscribirTodo(ruta, "7 x 9");
    EXPECT_FALSE(u.logica.CargarPorcentajes(TablaCR::Reales, ruta));
    EXPECT_EQ(u.logica.txtPorcentajesReales[0], "7"); // those before the bad one stay
    EXPECT_EQ(u.Cajas, Textos{"[X] ERROR AL ABRIR LOS PORCENTAJES"});
}

// Whatever is pressed while the work runs, only the stop has an effect.
TEST(LogicaCoeficienteRentabilidad, DetenerYCerrarAMedias) {
    Utilidad u;
    u.Calcular();
    for (const int turno : {1, 2}) {
        u.EnTurno(u.Turnos + turno, [&] {
            EXPECT_TRUE(u.logica.lstCR.empty());
            EXPECT_FALSE(u.logica.PuedeCerrar());
            EXPECT_FALSE(u.logica.imgCalcular());
            EXPECT_FALSE(u.logica.imgGrabarApuestasCR());
            EXPECT_FALSE(u.logica.Cargar(u.fichero));
            u.logica.Detener();
        });
        EXPECT_FALSE(u.logica.imgCalcular());
        EXPECT_TRUE(u.logica.lstCR.empty());
        EXPECT_TRUE(u.logica.PuedeCerrar());
    }
    EXPECT_EQ(u.Cajas, Textos(2, "[!] AVISO: El cálculo se ha detenido, no hay coeficientes"));
    EXPECT_TRUE(u.logica.imgCalcular());
}
