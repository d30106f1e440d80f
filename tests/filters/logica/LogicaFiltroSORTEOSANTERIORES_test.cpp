// The dialog of earlier draws: its load, its boxes and its groups.
#include <gtest/gtest.h>

#include "Guion.h"
#include "HistoriaInventada.h"
#include "LogicaFiltroSORTEOSANTERIORES.h"
#include "Sesiones.h"

namespace {

using Logica = LogicaFiltroSORTEOSANTERIORES;

// 700 draws: 300 of 1990, 300 of 1991 and 100 of 1992.
const Sorteos Historia = SorteosInventados(PRIMITIVA, 700);

class SorteosAnterioresLogica : public testing::Test {
  protected:
    Guion guion;
    Condiciones& condiciones = guion.sesion.condiciones;
    std::array<BloqueSorteos, 20>& grupo = condiciones.SORTEOSANTERIORES.grupo;
    Logica logica{guion.sesion, guion.entorno};
    std::string direccion; // asked for last

    SorteosAnterioresLogica() {
        guion.entorno.Servicio = "https://sorteos.ejemplo";
        Responder(RespuestaXML(PRIMITIVA, Historia));
        logica.Abrir();
    }
    void Responder(const std::string& respuesta) {
        guion.entorno.PedirHttp = [this, respuesta](const std::string& url, std::string& cuerpo, std::string&) {
            EXPECT_TRUE(logica.Cargando);
            EXPECT_FALSE(logica.cmdCargar()) << "a second load begins while the first one waits";
            direccion = url;
            cuerpo = respuesta;
            return true;
        };
    }
    void ElegirAciertos(std::initializer_list<int> valores) {
        LogicaAciertos aciertos = logica.AbrirModificar();
        for (const int v : valores) aciertos.Pulsar(v);
        logica.CerrarModificar(aciertos);
    }
    void ElegirTramo(int anioINI, int sorteoINI, int anioFIN, int sorteoFIN) {
        logica.ElegirEnCaja(&Logica::cboAnioINI, anioINI);
        logica.ElegirEnCaja(&Logica::cboSorteoINI, sorteoINI);
        logica.ElegirEnCaja(&Logica::cboAnioFIN, anioFIN);
        logica.ElegirEnCaja(&Logica::cboSorteoFIN, sorteoFIN);
    }
    Textos Rotulos() const {
        return {logica.lblSorteosCargados, logica.lblSorteoDESDE, logica.lblTemporadaDESDE, logica.lblSorteoHASTA,
                logica.lblTemporadaHASTA};
    }
};

const Textos SinSorteos{"0", "-", "-", "-", "-"};
const std::string FalloAlAbrir = "[X] ERROR AL ABRIR EL FICHERO DE SORTEOS";

std::string RespuestaCon(const std::string& combinacion) {
    return "<r><primitiva><combinaciones><combinacion numeros='1,2,3,4,5,6' anio='2000' sorteo='1' dia='j'/>" +
           combinacion + "</combinaciones></primitiva></r>";
}

} // namespace

TEST_F(SorteosAnterioresLogica, CargaLosSorteosYPoneLosMaximosQueSonCero) {
    grupo[4].aciertosMaximoSORTEOS = 5;
    EXPECT_EQ(Rotulos(), SinSorteos);
    EXPECT_TRUE(logica.cmdCargar());
    EXPECT_EQ(direccion, "https://sorteos.ejemplo/servicios/v1/xml2/eurodreams?temporada=todas&juego=PRIMITIVA");
    EXPECT_EQ(Rotulos(), (Textos{"700", "1", "1990", "100", "1992"}));
    EXPECT_EQ(condiciones.SorteosFiltro.size(), 700u);
    EXPECT_EQ(condiciones.SorteosFiltro[699].numeros, Historia[699].numeros);
    EXPECT_EQ(logica.txtSorteoMAXIMO, "700");
    EXPECT_EQ(grupo[19].aciertosMaximoSORTEOS, 700);
    EXPECT_EQ(grupo[4].aciertosMaximoSORTEOS, 5);
    EXPECT_FALSE(logica.marco.Activo());
    EXPECT_FALSE(logica.Cargando);
    Logica otra{guion.sesion, guion.entorno};
    otra.Abrir();
    EXPECT_EQ(otra.lblSorteosCargados, "700");
    EXPECT_EQ(otra.lblTemporadaHASTA, "1992");
}

TEST_F(SorteosAnterioresLogica, LosSorteosDeOtroJuegoNoCuentan) {
    CambiarJuego(guion.sesion, BONOLOTO);
    EXPECT_TRUE(logica.cmdCargar());
    EXPECT_EQ(Rotulos(), SinSorteos);
    EXPECT_EQ(direccion.substr(direccion.find('&')), "&juego=BONOLOTO");
}

TEST_F(SorteosAnterioresLogica, UnaRespuestaMalaSeDiceYNoDejaSorteosAMedias) {
    const struct {
        std::string respuesta, caja;
        size_t quedan;
    } casos[] = {
        {"<r><primitiva>", " - ", 700},
        {"no hay servicio", " - ", 700},
        {RespuestaCon("<combinacion numeros='1,2' anio='2000' sorteo='70000' dia='J'/>"),
         " (el valor '70000' de 'sorteo' no cabe en su campo)", 0},
        {RespuestaCon("<combinacion numeros='1,2' anio='2000' sorteo='32768' dia='J'/>"),
         " (el valor '32768' de 'sorteo' no cabe en su campo)", 0},
        {RespuestaCon("<combinacion numeros='1,2' anio='99999' sorteo='7' dia='J'/>"), " (", 0},
        {RespuestaCon("<combinacion anio='2000' sorteo='7' dia='J'/>"), " (", 0},
        {RespuestaCon("<combinacion numeros='1,2,3,4,5,6,7,8,9' anio='2000' sorteo='7' dia='J'/>"), " (", 0},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.respuesta);
        Responder(RespuestaXML(PRIMITIVA, Historia));
        ASSERT_TRUE(logica.cmdCargar());
        guion.Cajas.clear();
        Responder(caso.respuesta);
        EXPECT_FALSE(logica.cmdCargar());
        ASSERT_EQ(guion.Cajas.size(), 1u);
        EXPECT_TRUE(guion.Cajas[0].starts_with(FalloAlAbrir + caso.caja)) << guion.Cajas[0];
        EXPECT_EQ(condiciones.SorteosFiltro.size(), caso.quedan);
        EXPECT_EQ(Rotulos() == SinSorteos, caso.quedan == 0);
        EXPECT_FALSE(logica.Cargando);
    }
}

TEST_F(SorteosAnterioresLogica, SinConexionLosRotulosSeVacianYLaTablaQueda) {
    ASSERT_TRUE(logica.cmdCargar());
    guion.entorno.PedirHttp = [](const std::string&, std::string&, std::string& fallo) {
        fallo = "conexión rechazada";
        return false;
    };
    EXPECT_FALSE(logica.cmdCargar());
    guion.entorno.Servicio.clear();
    EXPECT_FALSE(logica.cmdCargar());
    EXPECT_EQ(guion.Cajas, (Textos{FalloAlAbrir + " (conexión rechazada)",
                                   FalloAlAbrir + " (no hay ningún servicio de sorteos configurado)"}));
    EXPECT_EQ(Rotulos(), SinSorteos);
    EXPECT_EQ(condiciones.SorteosFiltro.size(), 700u);
}

TEST_F(SorteosAnterioresLogica, CadaCajaRecuentaLosSorteosDeLaConsulta) {
    EXPECT_EQ(logica.lblSorteosConsultados, "0");
    ASSERT_TRUE(logica.cmdCargar());
    ElegirTramo(1990, 1, 1990, 99);
    EXPECT_EQ(logica.lblSorteosConsultados, "99");
    logica.ElegirEnCaja(&Logica::cboSorteoFIN, 100); // 1990100: takes in 99 of 1991 and of 1992 as well
    EXPECT_EQ(logica.lblSorteosConsultados, "298");
    ElegirTramo(1991, 5, 1991, 5);
    EXPECT_EQ(logica.lblSorteosConsultados, "1");
    ElegirTramo(1990, 1, 1990, 70);
    logica.ElegirEnCaja(&Logica::cboDia, 1);
    EXPECT_EQ(logica.lblSorteosConsultados, "10");
    EXPECT_FALSE(logica.marco.Activo());
}

TEST_F(SorteosAnterioresLogica, SoloLosAciertosActivanElFiltro) {
    logica.CambiarMinimo("1x2");
    logica.CambiarMaximo("9");
    EXPECT_EQ(logica.txtSorteoMINIMO, "12");
    EXPECT_FALSE(logica.marco.Activo());
    ElegirAciertos({3, 6});
    EXPECT_TRUE(logica.marco.Activo());
    EXPECT_EQ(logica.txtAciertos, "3,6");
    EXPECT_EQ(grupo[0].acertarEN, (TablaAciertos{0, 0, 0, 1, 0, 0, 1}));
}

TEST_F(SorteosAnterioresLogica, LasFaltasDelGrupoEnSuOrden) {
    const std::string error = "[X] ERROR en GRUPO 2: ";
    ElegirTramo(2024, 9, 2023, 1);
    logica.CambiarMinimo("5");
    logica.CambiarMaximo("4");
    logica.cmdMASBloque(); // without hits nothing is tested
    EXPECT_EQ(grupo[0].HASTA.anio, 2023);
    EXPECT_EQ(grupo[0].aciertosMinimoSORTEOS, 5);
    ElegirAciertos({3});
    ElegirTramo(2024, 9, 2023, 1);
    logica.CambiarMinimo("5");
    logica.CambiarMaximo("4");
    const auto falta = [&](const std::string& texto) {
        guion.Cajas.clear();
        EXPECT_FALSE(logica.PuedeCerrar());
        logica.cmdMASBloque();
        logica.cmdMENOSBloque();
        EXPECT_EQ(guion.Cajas, Textos(3, error + texto));
        EXPECT_EQ(logica.bloque.Actual, 2);
        EXPECT_EQ(grupo[1].aciertosMinimoSORTEOS, 0);
    };
    falta("El número de año inicial es mayor que el final");
    logica.ElegirEnCaja(&Logica::cboAnioFIN, 2024);
    falta("El número de sorteo inicial es mayor que el final");
    logica.ElegirEnCaja(&Logica::cboSorteoFIN, 9);
    falta("El condición de mínimo de sorteos es mayor que el máximo de sorteos");
    logica.CambiarMinimo(" ");
    falta("No se ha cargado el fichero general de sorteos");
    EXPECT_EQ(logica.txtSorteoMINIMO, "0");
    logica.CambiarMaximo("2147483648");
    falta("El número de sorteos no puede ser mayor que 2147483647");
    logica.CambiarMaximo("2147483647");
    ASSERT_TRUE(logica.cmdCargar());
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(grupo[1].aciertosMaximoSORTEOS, 2147483647);
    EXPECT_EQ(grupo[1].DESDE.numero, 9);
}

TEST_F(SorteosAnterioresLogica, CadaGrupoSeGuardaAlCambiarYSeInicializaSolo) {
    EXPECT_EQ(logica.lblNumeroGrupo(), "GRUPO 1 (Máx. 20)");
    EXPECT_EQ(logica.cboAnioINI, 2024);
    ElegirTramo(1990, 2, 1992, 3);
    logica.ElegirEnCaja(&Logica::cboDia, 6);
    logica.CambiarMinimo("7");
    logica.cmdMASBloque();
    EXPECT_EQ(logica.lblNumeroGrupo(), "GRUPO 2 (Máx. 20)");
    EXPECT_EQ(logica.txtSorteoMINIMO, "0");
    logica.cmdMENOSBloque();
    EXPECT_EQ(logica.cboDia, 6);
    EXPECT_EQ(logica.txtSorteoMINIMO, "7");
    EXPECT_EQ(grupo[0].HASTA.numero, 3);
    logica.imgINIGrupo();
    EXPECT_EQ(logica.cboAnioINI, 2024);
    EXPECT_EQ(logica.cboDia, 0);
    EXPECT_EQ(grupo[0].DESDE.numero, 1);
}

// What a base file brings and no box offers goes through the dialog unharmed.
TEST_F(SorteosAnterioresLogica, LoQueLasCajasNoOfrecenSeConserva) {
    const BloqueSorteos raro{{-7, -8}, {1970, 32767}, 7, -3, -2, {}};
    grupo[0] = raro;
    logica.Abrir();
    EXPECT_EQ(logica.txtSorteoMINIMO, "-3");
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(grupo[0].DESDE.numero, -8);
    EXPECT_EQ(grupo[0].HASTA.numero, 32767);
    EXPECT_EQ(grupo[0].sorteoDIAS, 7);
    EXPECT_EQ(grupo[0].aciertosMaximoSORTEOS, -2);
}
