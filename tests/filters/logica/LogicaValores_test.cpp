// The dialogs of marks and of the coefficient of profitability, with their percentage files.
#include <gtest/gtest.h>

#include "Guion.h"
#include "LogicaFiltroCR.h"
#include "LogicaFiltroVALORACIONES.h"
#include "Sesiones.h"

namespace {

// A line of 49 values, each `valor` but for those of the first numbers.
std::string Linea(std::vector<std::string> valores, const std::string& valor = "0", size_t cuantos = 49) {
    valores.resize(cuantos, valor);
    std::string linea;
    for (const std::string& v : valores) linea += (linea.empty() ? "" : " ") + v;
    return linea;
}

} // namespace

TEST(LogicaFiltroVALORACIONES, SoloLosNumerosDeLaBaseTienenMarca) {
    Guion guion;
    guion.Marcar({3, 7});
    auto& grupo = guion.sesion.condiciones.VALORACIONES.grupo[0];
    grupo.valoraciones[3] = 50;
    grupo.valoraciones[7] = 101;
    grupo.valoraciones[9] = 20;
    LogicaFiltroVALORACIONES logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_EQ(logica.lblSumaPorcentajes(), "50");
    EXPECT_EQ(logica.lblTitNumeros(), "1 Valoraciones Seleccionadas");
    EXPECT_FALSE(logica.marco.Activo());
    logica.ElegirPorcentaje(9, 1);
    logica.ElegirPorcentaje(7, 101);
    logica.ElegirPorcentaje(50, 1);
    EXPECT_FALSE(logica.marco.Activo());
    logica.ElegirPorcentaje(7, 100);
    EXPECT_TRUE(logica.marco.Activo());
    logica.CambiarMinima(2, "1");
    logica.CambiarMaxima(2, "150");
    EXPECT_EQ(logica.lblSumaPorcentajes(), "150");
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(grupo.valoraciones[7], 100);
    EXPECT_EQ(grupo.valoraciones[9], 0);
    EXPECT_EQ(grupo.intervalos[2], (Intervalo{1, 150}));
}

TEST(LogicaFiltroVALORACIONES, ElPrimerFalloDelGrupoImpideCerrarYCambiar) {
    const std::string nulos = ": No se permiten valores nulos en los intervalos",
                      cruzados = ": El valor mínimo de un intervalo no puede ser mayor que el valor máximo",
                      grande = ": El valor máximo de un intervalo no puede ser mayor que 32767",
                      sinMarcas = ": Hay intervalos activos y no ha seleccionado ninguna valoración en los números",
                      sinIntervalos = ": Hay seleccionadas valoraciones de números y no ha activado ningún intervalo";
    const struct {
        const char *minima, *maxima;
        int marca;
        std::string falta;
    } casos[] = {
        {"", "5", 1, nulos},
        {"5", " ", 1, nulos},
        {"6", "5", 1, cruzados},
        {"6", "0", 1, cruzados},
        {"0", "40000", 1, grande},
        {"0", "99999999999", 1, grande},
        {"99999999999", "5", 1, cruzados},
        {"0", "5", 0, sinMarcas},
        {"0", "0", 1, sinIntervalos},
        {"0", "0", 0, ""},
        {"0", "32767", 1, ""},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.falta + caso.minima);
        Guion guion;
        guion.MarcarHasta(10);
        LogicaFiltroVALORACIONES logica{guion.sesion, guion.entorno};
        logica.Abrir();
        logica.cmdMASBloque();
        logica.ElegirPorcentaje(4, caso.marca);
        logica.txtValoracionMinima[3] = caso.minima;
        logica.txtValoracionMaxima[3] = caso.maxima;
        const bool bien = caso.falta.empty();
        EXPECT_EQ(logica.PuedeCerrar(), bien);
        logica.cmdMENOSBloque();
        EXPECT_EQ(logica.lblNumeroGrupo(), bien ? "GRUPO 1" : "GRUPO 2");
        EXPECT_EQ(guion.Cajas, bien ? Textos{} : Textos(2, "[X] ERROR GRUPO 2" + caso.falta));
    }
}

TEST(LogicaFiltroVALORACIONES, LasMarcasSeGuardanAunqueFalteElIntervalo) {
    Guion guion;
    guion.Marcar({1, 2});
    auto& grupo = guion.sesion.condiciones.VALORACIONES.grupo[0];
    grupo.valoraciones[2] = 8;
    grupo.valoraciones[3] = 9;
    LogicaFiltroVALORACIONES logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_FALSE(logica.PuedeCerrar());
    EXPECT_EQ(grupo.valoraciones[2], 8);
    EXPECT_EQ(grupo.valoraciones[3], 0);
    logica.imgININumeros();
    EXPECT_EQ(logica.lblTitNumeros(), "0 Valoraciones Seleccionadas");
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(grupo.valoraciones[2], 0);
}

TEST(LogicaFiltroVALORACIONES, FicherosQueSusCasillasTomanONo) {
    const std::string error = "[X] ERROR AL CARGAR ALGUNOS O TODOS LOS VALORES DE LOS PORCENTAJES";
    const struct {
        std::string contenido;
        bool bien;
        int primera, segunda; ///< marks of the numbers 1 and 2 afterwards
    } casos[] = {
        {Linea({"30", "0"}) + "\r\n", true, 30, 5},
        {Linea({"100", "1"}, "0", 50), true, 100, 1},
        {Linea({"30", "40"}, "0", 48), false, 30, 40},
        {Linea({"30", "101"}), false, 30, 5},
        {Linea({"30", "2,5"}), false, 30, 5},
        {Linea({"-1", "40"}), false, 5, 5},
        {Linea({"30", "40", "50"}), false, 30, 40}, // 3 is not in the base
        {Linea({"x", "40"}), false, 5, 5},
        {"", false, 5, 5},
    };
    CarpetaTemporal carpeta;
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.contenido);
        Guion guion;
        guion.Marcar({1, 2});
        EscribirTodo(carpeta.Ruta("p.txt"), caso.contenido);
        LogicaFiltroVALORACIONES logica{guion.sesion, guion.entorno};
        logica.Abrir();
        logica.ElegirPorcentaje(1, 5);
        logica.ElegirPorcentaje(2, 5);
        guion.Ficheros = {carpeta.Ruta("p.txt")};
        logica.cmdAbrirPorcentajes();
        EXPECT_EQ(guion.Cajas, caso.bien ? Textos{} : Textos{error});
        EXPECT_EQ(logica.cboPorcentaje[0], caso.primera);
        EXPECT_EQ(logica.cboPorcentaje[1], caso.segunda);
        EXPECT_EQ(logica.lblSumaPorcentajes(), std::to_string(caso.primera + caso.segunda));
    }
}

TEST(LogicaFiltroVALORACIONES, LoGuardadoVuelveIgual) {
    CarpetaTemporal carpeta;
    Guion guion;
    guion.MarcarHasta(49);
    LogicaFiltroVALORACIONES logica{guion.sesion, guion.entorno};
    logica.Abrir();
    for (int n = 1; n <= 49; ++n) logica.ElegirPorcentaje(n, n % 4 * 33);
    const auto antes = logica.cboPorcentaje;
    guion.Ficheros = {carpeta.Ruta("mis.marcas.dat"), carpeta.Ruta("mis.marcas.txt")};
    logica.cmdGuardarPorcentajes();
    logica.imgININumeros();
    logica.cmdAbrirPorcentajes();
    EXPECT_EQ(logica.cboPorcentaje, antes);
    EXPECT_TRUE(LeerTodo(carpeta.Ruta("mis.marcas.txt")).starts_with("33 66 99 0 33 "));
    EXPECT_EQ(guion.Peticiones[0].Titulo, "Guardar Porcentajes");
    EXPECT_EQ(guion.Peticiones[1].Titulo, "Cargar Porcentajes");
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(LogicaFiltroCR, MuestraYGuardaLasTablas) {
    Guion guion;
    auto& registro = guion.sesion.condiciones.COEFICIENTERENTABILIDAD;
    registro.RangosCR[10] = registro.RangosCR[100] = 1;
    LogicaFiltroCR logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_EQ(logica.txtPorcentajesApostados[0], "12,6");
    EXPECT_EQ(logica.txtPorcentajesApostados[42], "11");
    EXPECT_EQ(logica.txtPorcentajesReales[48], "12,25");
    EXPECT_TRUE(logica.lstCR[10]);
    EXPECT_EQ(logica.TextoItem(99), "9,9");
    logica.CambiarPorcentaje(TablaCR::Apostados, 0, "4,5a");
    logica.CambiarPorcentaje(TablaCR::Reales, 1, "6.75");
    logica.CambiarPorcentaje(TablaCR::Reales, 2, "");
    logica.ElegirCR(10, false);
    logica.ElegirCR(99, true);
    EXPECT_TRUE(logica.marco.Activo());
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_DOUBLE_EQ(registro.PorcentajesApostados[1], 4.5);
    EXPECT_DOUBLE_EQ(registro.PorcentajesReales[2], 6.75);
    EXPECT_DOUBLE_EQ(registro.PorcentajesReales[3], 12.25);
    EXPECT_EQ(TextoLista(registro.RangosCR), "99,100");
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(LogicaFiltroCR, AbrirYCerrarNoCambiaNingunDecimal) {
    Guion guion;
    auto& registro = guion.sesion.condiciones.COEFICIENTERENTABILIDAD;
    registro.PorcentajesReales[1] = 0.1 + 0.2;
    registro.PorcentajesReales[2] = 1e-300;
    registro.PorcentajesReales[3] = -1.7e308;
    const auto apostados = registro.PorcentajesApostados, reales = registro.PorcentajesReales;
    LogicaFiltroCR logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(registro.PorcentajesApostados, apostados);
    EXPECT_EQ(registro.PorcentajesReales, reales);
}

TEST(LogicaFiltroCR, LosBlancosSeDicenAlCalcularYLosQueNoSonNumerosAlCerrar) {
    Guion guion;
    LogicaFiltroCR logica{guion.sesion, guion.entorno};
    logica.Abrir();
    bool habilitados = true;
    guion.EnTurno(1, [&] { habilitados = logica.ControlesHabilitados; });
    logica.imgCalcular();
    EXPECT_FALSE(habilitados);
    EXPECT_TRUE(logica.ControlesHabilitados);
    logica.txtPorcentajesReales[0] = " ";
    logica.imgCalcular();
    logica.txtPorcentajesApostados[48] = "";
    logica.imgCalcular();
    EXPECT_EQ(guion.Turnos, 1);
    logica.txtPorcentajesReales[1] = "1.2.3";
    logica.lstCR[5] = true;
    EXPECT_FALSE(logica.PuedeCerrar());
    EXPECT_EQ(guion.sesion.condiciones.COEFICIENTERENTABILIDAD.RangosCR[5], 0);
    EXPECT_EQ(guion.Cajas, (Textos{"[X] ERROR EN NUMERO 1: EL % ESTA EN BLANCO (% REALES)",
                                   "[X] ERROR EN NUMERO 49: EL % ESTA EN BLANCO (% APOSTADOS)",
                                   "[X] ERROR EN NUMERO 2: EL % NO ES UN NUMERO VALIDO (% REALES)"}));
}

TEST(LogicaFiltroCR, FicherosQueSusCamposTomanONo) {
    const struct {
        std::string contenido;
        bool bien;
        const char *primero, *segundo; ///< fields of the numbers 1 and 2 afterwards
    } casos[] = {
        {Linea({"12.25", "0"}, "7,5") + "\r\n", true, "12.25", "9"},
        {"\xEF\xBB\xBF  " + Linea({"12,25", "3"}) + " \nsegunda línea", true, "12,25", "3"},
        {Linea({"1", "2"}, "0", 50), true, "1", "2"},
        {Linea({"1", "2"}, "0", 48), false, "1", "2"},
        {Linea({"1", "1e999"}), false, "1", "9"},
        {Linea({"1", std::string(400, '9')}), false, "1", "9"},
        {Linea({"1", "1.234,5"}), false, "1", "9"},
        {Linea({"1", "doce"}), false, "1", "9"},
        {Linea({"1", std::string("2\0", 2)}), false, "1", "9"},
        {"\n" + Linea({"1", "2"}), false, "9", "9"},
        {std::string(3 << 20, '1'), false, "9", "9"},
    };
    CarpetaTemporal carpeta;
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.contenido.substr(0, 60));
        Guion guion;
        EscribirTodo(carpeta.Ruta("p.txt"), caso.contenido);
        LogicaFiltroCR logica{guion.sesion, guion.entorno};
        logica.txtPorcentajesReales.fill("9");
        guion.Ficheros = {carpeta.Ruta("p.txt")};
        logica.imgAbrirPorcentajes(TablaCR::Reales);
        EXPECT_EQ(guion.Cajas, caso.bien ? Textos{} : Textos{"[X] ERROR AL ABRIR LOS PORCENTAJES"});
        EXPECT_EQ(logica.txtPorcentajesReales[0], caso.primero);
        EXPECT_EQ(logica.txtPorcentajesReales[1], caso.segundo);
    }
}

TEST(LogicaFiltroCR, GuardaCerosPorLosBlancosYDiceLoQueNoPuede) {
    CarpetaTemporal carpeta;
    Guion guion;
    LogicaFiltroCR logica{guion.sesion, guion.entorno};
    logica.imgINIPorcentajes(TablaCR::Reales);
    EXPECT_TRUE(logica.marco.Activo());
    logica.txtPorcentajesReales[0] = "12,25";
    logica.txtPorcentajesReales[1] = "";
    logica.txtPorcentajesReales[2] = "0,00";
    guion.Ficheros = {carpeta.Ruta("reales"), carpeta.Ruta("no/hay")};
    logica.imgGuardarPorcentajes(TablaCR::Reales);
    EXPECT_EQ(LeerTodo(carpeta.Ruta("reales.txt")), Linea({"12,25"}) + "\r\n");
    logica.imgGuardarPorcentajes(TablaCR::Reales);
    logica.txtPorcentajesReales[4] = "..";
    logica.imgGuardarPorcentajes(TablaCR::Reales);
    EXPECT_EQ(guion.Cajas, (Textos{"[X] ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (no existe el fichero o la "
                                   "carpeta)",
                                   "[X] ERROR EN NUMERO 5: EL % NO ES UN NUMERO VALIDO (% REALES)"}));
}

TEST(LogicaFiltroCR, UnFicheroQueNoEstaOQueEsUnaCarpeta) {
    CarpetaTemporal carpeta;
    Guion guion;
    LogicaFiltroCR logica{guion.sesion, guion.entorno};
    guion.Ficheros = {carpeta.Ruta("nada.txt"), carpeta.Ruta(), ""};
    for (int i = 0; i < 3; ++i) logica.imgAbrirPorcentajes(TablaCR::Apostados);
    EXPECT_EQ(guion.Cajas, Textos(2, "[X] ERROR AL ABRIR LOS PORCENTAJES"));
}
