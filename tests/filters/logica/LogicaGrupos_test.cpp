// The dialogs that mark groups of numbers.
#include <gtest/gtest.h>

#include "Boleto.h"
#include "Guion.h"
#include "LogicaFiltroGRUPOS.h"
#include "LogicaFiltroGRUPOSENTRELIMITES.h"
#include "LogicaFiltroGRURELACIONADOS.h"
#include "LogicaFiltroPOSICIONES.h"
#include "Sesiones.h"

namespace {

template <class Logica>
void Elegir(Logica& logica, size_t i, std::initializer_list<int> valores) {
    LogicaAciertos aciertos = logica.AbrirModificar(i);
    for (const int v : valores) aciertos.Pulsar(v);
    logica.CerrarModificar(i, aciertos);
}

} // namespace

TEST(SelectorBloque, VaALaPaginaDelGrupoODiceQueNoExiste) {
    const struct {
        SelectorBloque bloque;
        const char* texto;
        int pagina; ///< 0 for a refusal
    } casos[] = {
        {{.Paginas = 70, .PorPagina = 3}, "1", 1},
        {{.Paginas = 70, .PorPagina = 3}, "3", 1},
        {{.Paginas = 70, .PorPagina = 3}, "4", 2},
        {{.Paginas = 70, .PorPagina = 3}, "210", 70},
        {{.Paginas = 70, .PorPagina = 3}, "211", 0},
        {{.Paginas = 70, .PorPagina = 3}, "0", 0},
        {{.Paginas = 70, .PorPagina = 3}, "", 0},
        {{.Paginas = 70, .PorPagina = 3}, "99999999999", 0},
        {{.Paginas = 60}, "60", 60},
        {{.Paginas = 60}, "61", 0},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.texto);
        Guion guion;
        SelectorBloque bloque = caso.bloque;
        bloque.Actual = 5;
        EXPECT_EQ(bloque.Ir(guion.entorno, caso.texto), caso.pagina != 0);
        EXPECT_EQ(bloque.Actual, caso.pagina != 0 ? caso.pagina : 5);
        const std::string falta =
            "[X] ERROR: EL NUMERO DE GRUPO DEBE ESTAR ENTRE 1 y " + std::to_string(bloque.Paginas);
        EXPECT_EQ(guion.Cajas, caso.pagina != 0 ? Textos{} : Textos{falta});
    }
}

TEST(SelectorBloque, LosBotonesSeDesactivanEnLosExtremos) {
    SelectorBloque bloque{.Paginas = 3, .PorPagina = 3};
    EXPECT_FALSE(bloque.cmdMENOSBloque());
    for (int i = 0; i < 5; ++i) bloque.Mas();
    EXPECT_EQ(bloque.Actual, 3);
    EXPECT_FALSE(bloque.cmdMASBloque());
    EXPECT_EQ(bloque.Grupo(2), 8u);
    for (int i = 0; i < 5; ++i) bloque.Menos();
    EXPECT_EQ(bloque.Actual, 1);
    EXPECT_EQ(bloque.TextoMaximo(), " (Máx. 9)");
}

TEST(LogicaFiltroPOSICIONES, LasCeldasEscribenEnSuBola) {
    Guion guion;
    LogicaFiltroPOSICIONES logica{guion.sesion, guion.entorno};
    auto& bola = guion.sesion.condiciones.POSICIONES.Bola;
    EXPECT_EQ(logica.lblTitBola(5), "BOLA 6");
    logica.lblNumero(5).Pulsar(49);
    EXPECT_TRUE(logica.marco.Activo());
    logica.lblNumero(0).Pegar(guion.entorno, "1, 2; 50 x");
    logica.lblNumero(0).Pulsar(2);
    EXPECT_EQ(bola[5][49], 1);
    EXPECT_EQ(logica.lblNumero(0).Copiar(), "1");
    EXPECT_EQ(guion.Cajas, Textos{"[!] AVISO: No se ha podido marcar: 50, x. Se esperan números del 1 al 49"});
    logica.lblNumero(5).imgININumeros();
    EXPECT_FALSE(EnVigor(bola[5]));
    EXPECT_TRUE(EnVigor(bola[0]));
}

TEST(MarcasDeRejilla, ConCuarentaNumerosNoSeTocaLoQueNoSeVe) {
    Guion guion;
    LogicaFiltroPOSICIONES logica{guion.sesion, guion.entorno};
    auto& bola = guion.sesion.condiciones.POSICIONES.Bola[2];
    bola[41] = 1;
    CambiarJuego(guion.sesion, EURODREAMS);
    logica.lblNumero(2).Pulsar(41);
    logica.lblNumero(2).Pulsar(0);
    EXPECT_FALSE(logica.marco.Activo());
    logica.lblNumero(2).Pegar(guion.entorno, "40 42");
    EXPECT_EQ(logica.lblNumero(2).Copiar(), "40");
    EXPECT_EQ(bola[41] + bola[42], 1);
    EXPECT_EQ(guion.Cajas.size(), 1u);
}

TEST(LogicaFiltroGRUPOS, CadaPanelEscribeEnSuGrupo) {
    Guion guion;
    auto& grupo = guion.sesion.condiciones.GRUPOS.grupo;
    LogicaFiltroGRUPOS logica{guion.sesion, guion.entorno};
    logica.Abrir();
    Elegir(logica, 1, {0, 2});
    EXPECT_TRUE(logica.marco.Activo());
    logica.IrAGrupo("210");
    EXPECT_EQ(logica.lblTitGrupo(2), "GRUPO 210");
    EXPECT_EQ(logica.txtAciertos[1], "");
    logica.lblNumero(2).Pulsar(7);
    logica.PulsarPosicion(2, 5);
    EXPECT_FALSE(logica.lblAciertosG(2, 5));
    EXPECT_EQ(grupo[209].numeros[7], 1);
    EXPECT_EQ(grupo[209].posiciones, (std::array<uint8_t, 6>{1, 1, 1, 1, 1, 0}));
    logica.lblNumero(2).imgININumeros();
    EXPECT_EQ(grupo[209].posiciones[5], 0);
    logica.cmdMENOSBloque();
    EXPECT_EQ(logica.lblTitGrupo(0), "GRUPO 205");
    logica.IrAGrupo("1");
    EXPECT_EQ(logica.txtAciertos[1], "0,2");
    EXPECT_EQ(grupo[1].aciertos, (TablaAciertos{1, 0, 1, 0, 0, 0, 0}));
}

TEST(LogicaFiltroGRUPOS, ElPrimerFalloDelPrimerGrupoImpideCerrar) {
    const std::string sinAciertos = " : Debe rellenar al menos un acierto",
                      sinPosiciones = " : Debe rellenar al menos una posición",
                      sobranAciertos = " : El acierto máximo es mayor que las posiciones marcadas",
                      sinNumeros = " : No ha marcado ningún número y hay aciertos seleccionados",
                      faltanPosiciones = " : No ha marcado ningún número por tanto todas las posiciones del grupo "
                                         "tienen que estar marcadas";
    const struct {
        int numeros;
        TablaAciertos aciertos;
        std::array<uint8_t, 6> posiciones;
        std::string falta;
    } casos[] = {
        {0, {}, {1, 1, 1, 1, 1, 1}, ""},
        {10, {}, {}, sinAciertos},
        {10, {0, 0, 1}, {}, sinPosiciones},
        {10, {0, 0, 1}, {1}, sobranAciertos},
        {10, {0, 0, 1}, {1, 0, 0, 0, 0, 1}, ""},
        {10, {1}, {0, 1}, ""},
        {10, {0, 0, 0, 0, 0, 0, 1}, {1, 1, 1, 1, 1, 2}, sobranAciertos},
        {0, {1}, {1}, sinNumeros},
        {0, {}, {1, 1, 1, 1, 1}, faltanPosiciones},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.falta);
        Guion guion;
        auto& grupo = guion.sesion.condiciones.GRUPOS.grupo;
        for (int n = 1; n <= caso.numeros; ++n) grupo[41].numeros[static_cast<size_t>(n)] = 1;
        grupo[41].aciertos = caso.aciertos;
        grupo[41].posiciones = caso.posiciones;
        if (!caso.falta.empty()) grupo[100].numeros[1] = 1;
        LogicaFiltroGRUPOS logica{guion.sesion, guion.entorno};
        EXPECT_EQ(logica.PuedeCerrar(), caso.falta.empty());
        EXPECT_EQ(guion.Cajas, caso.falta.empty() ? Textos{} : Textos{"[X] ERROR en GRUPO42" + caso.falta});
        EXPECT_EQ(logica.bloque.Actual, 1);
    }
}

TEST(LogicaFiltroGRUPOSENTRELIMITES, ValidaLosGruposYLuegoLosLimites) {
    Guion guion;
    auto& registro = guion.sesion.condiciones.GRUPOSENTRELIMITES;
    LogicaFiltroGRUPOSENTRELIMITES logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_EQ(logica.cboIntervalo1, 0);
    EXPECT_EQ(logica.cboIntervalo2, 210);
    logica.ElegirIntervalo1(9);
    logica.ElegirIntervalo2(8);
    EXPECT_TRUE(logica.marco.Activo());
    logica.IrAGrupo("6");
    logica.lblNumero(2).Pulsar(3);
    EXPECT_FALSE(logica.PuedeCerrar());
    EXPECT_EQ(registro.aciertosMinimoGRUPOSENTRELIMITES, 0);
    Elegir(logica, 2, {1});
    Elegir(logica, 1, {4});
    EXPECT_FALSE(logica.PuedeCerrar());
    logica.lblNumero(1).Pulsar(5);
    EXPECT_FALSE(logica.PuedeCerrar());
    EXPECT_EQ(registro.aciertosMinimoGRUPOSENTRELIMITES, 9);
    logica.ElegirIntervalo2(9);
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(registro.aciertosMaximoGRUPOSENTRELIMITES, 9);
    EXPECT_EQ(guion.Cajas,
              (Textos{"[X] ERROR en GRUPO6 : Debe rellenar al menos un acierto",
                      "[X] ERROR en GRUPO5 : No ha marcado ningún número y hay aciertos seleccionados",
                      "[X] ERROR en LIMITE DE GRUPOS : El número de aciertos máximo es menor que el mínimo"}));
    EXPECT_EQ(logica.bloque.Actual, 2);
}

TEST(LogicaFiltroGRUPOSENTRELIMITES, LimitesQueLasListasNoTienen) {
    Guion guion;
    auto& registro = guion.sesion.condiciones.GRUPOSENTRELIMITES;
    registro.aciertosMinimoGRUPOSENTRELIMITES = -7;
    registro.aciertosMaximoGRUPOSENTRELIMITES = 2000000000;
    LogicaFiltroGRUPOSENTRELIMITES logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_EQ(logica.cboIntervalo1, 0);
    EXPECT_EQ(logica.cboIntervalo2, 210);
}

TEST(LogicaFiltroGRURELACIONADOS, CadaFilaEscribeEnSuRanura) {
    Guion guion;
    auto& registro = guion.sesion.condiciones.GRUPOSRELACIONADOS;
    LogicaFiltroGRURELACIONADOS logica{guion.sesion, guion.entorno};
    logica.Abrir();
    EXPECT_EQ(logica.lblTitGrupo(0), "SUBGRUPO 1");
    logica.IrAGrupo("60");
    EXPECT_EQ(logica.lblNumeroGrupo(), "GRUPO 60");
    EXPECT_EQ(logica.lblTitGrupo(5), "SUBGRUPO 360");
    logica.lblNumero(5).Pulsar(49);
    Elegir(logica, 4, {2, 3});
    EXPECT_EQ(registro.subgrupos[359][49], 1);
    EXPECT_EQ(TextoLista(registro.condiciones[358]), "2,3");
    logica.cmdMENOSBloque();
    EXPECT_EQ(logica.txtAciertos[4], "");
    logica.cmdMASBloque();
    EXPECT_EQ(logica.txtAciertos[4], "2,3");
    EXPECT_TRUE(logica.marco.Activo());
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(LogicaFiltroGRURELACIONADOS, ValidaTodosLosGruposYDespuesJuntaLosSubgrupos) {
    Guion guion;
    auto& registro = guion.sesion.condiciones.GRUPOSRELACIONADOS;
    LogicaFiltroGRURELACIONADOS logica{guion.sesion, guion.entorno};
    registro.subgrupos[2][30] = registro.subgrupos[5][40] = 1; // group 1, rows 3 and 6
    registro.condiciones[4][1] = 1;
    registro.subgrupos[12 + 1][7] = 1; // group 3
    EXPECT_FALSE(logica.PuedeCerrar());
    registro.condiciones[12][0] = registro.condiciones[13][0] = 1;
    EXPECT_FALSE(logica.PuedeCerrar());
    EXPECT_EQ(registro.subgrupos[2][30], 1);
    registro.condiciones[13][0] = 0;
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(guion.Cajas,
              (Textos{"[X] ERROR en GRUPO3 : Si activa un subgrupo, debe de haber al menos una condición marcada",
                      "[X] ERROR en GRUPO3 : No puede haber más condiciones que subgrupos activados"}));
    EXPECT_EQ(registro.subgrupos[0][30] + registro.subgrupos[1][40] + registro.subgrupos[12][7], 3);
    for (const size_t vacia : {2u, 3u, 4u, 5u, 13u}) EXPECT_FALSE(EnVigor(registro.subgrupos[vacia])) << vacia;
    EXPECT_EQ(registro.condiciones[4][1], 1);
}
