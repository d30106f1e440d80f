// The fast evaluators against the literal ones, on random bases, bets and records, for every
// processor that the vector code is compiled for and this machine has.
#include "Evaluadores.h"

#include <gtest/gtest.h>

#include "Boleto.h"
#include "CasosFiltros.h"
#include "Guion.h"
#include "TablaFiltros.h"

namespace {

class Evaluadores : public testing::TestWithParam<CasoEvaluador> {};

} // namespace

TEST_P(Evaluadores, ComoLosLiterales) {
    CompararConLiteral(GetParam());
}

TEST_P(Evaluadores, CedenElTurnoCadaCuatroMil) {
    for (const int32_t apuestas : {3999, 4000, 4001, 12000, 15999}) {
        Guion guion;
        guion.MarcarHasta(49);
        LeerBase(guion.sesion.trabajo);
        guion.sesion.trabajo.ApuestasEnTabla = apuestas;
        guion.sesion.trabajo.TablaApuestas.Dimensionar(6, apuestas);
        guion.sesion.trabajo.ApuestaEliminada.Dimensionar(1, apuestas);
        Condiciones& c = guion.sesion.condiciones;
        c.ALTOSBAJOS.Altos[0] = c.DECENAS.Decena[0][0] = c.HOMOLOGOS.HomologosAcertados[2] = 1;
        c.PARESIMPARES.ParesActivos[0] = c.SEGUIDOS.NumerosSeguidos[2] = c.COLINDANTES.ColindantesAcertados[2] = 1;
        c.EXTERIORESINTERIORES.ExterioresInterioresActivos[0] = 1;
        c.SUPERIORESINFERIORES.SuperioresInferioresActivos[0] = 1;
        c.DISTANCIAS.Distancia[0] = c.SUMAS.intervalos[0] = c.SUMASPORTRIOS.intervalosT1[0] = {10, 20};
        GetParam().rapido(guion.sesion, guion.entorno);
        EXPECT_EQ(guion.Turnos, apuestas / 4000) << apuestas;
    }
}

TEST_P(Evaluadores, SinNadaElegidoNoEliminan) {
    Guion guion;
    guion.PonerApuestas({{1, 2, 3, 4, 5, 6}, {9, 19, 29, 39, 48, 49}, {10, 11, 20, 30, 40, 41}});
    EXPECT_EQ(GetParam().rapido(guion.sesion, guion.entorno), 0);
}

INSTANTIATE_TEST_SUITE_P(, Evaluadores, testing::ValuesIn(CasosSencillos()),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

namespace {

// Whether a bet stays when only `elegir` has been chosen.
struct Ejemplo {
    Evaluador filtrar;
    void (*elegir)(Condiciones&);
    Apuesta apuesta;
    bool queda;
};

const Ejemplo Ejemplos[] = {
    {FiltrarALTOSBAJOS,
     [](Condiciones& c) { c.ALTOSBAJOS.Bajos[6] = c.ALTOSBAJOS.Altos[0] = 1; },
     {1, 2, 3, 4, 5, 24},
     true},
    {FiltrarALTOSBAJOS,
     [](Condiciones& c) { c.ALTOSBAJOS.Bajos[2] = c.ALTOSBAJOS.Altos[3] = 1; },
     {1, 2, 3, 25, 26, 27},
     false},
    {FiltrarDECENAS, [](Condiciones& c) { c.DECENAS.FigurasDecenas[0] = 1; }, {1, 2, 3, 4, 5, 9}, true},
    {FiltrarDECENAS, [](Condiciones& c) { c.DECENAS.FigurasDecenas[6] = 1; }, {10, 20, 30, 40, 41, 49}, true},
    {FiltrarDECENAS, [](Condiciones& c) { c.DECENAS.FigurasDecenas[8] = 1; }, {10, 20, 30, 40, 41, 49}, false},
    {FiltrarPARESIMPARES, [](Condiciones& c) { c.PARESIMPARES.ParesActivos[3] = 1; }, {1, 2, 3, 4, 5, 6}, true},
    {FiltrarEXTERIORESINTERIORES,
     [](Condiciones& c) { c.EXTERIORESINTERIORES.ExterioresInterioresActivos[2] = 1; },
     {10, 11, 18, 28, 31, 40},
     true},
    {FiltrarSUPERIORESINFERIORES,
     [](Condiciones& c) { c.SUPERIORESINFERIORES.SuperioresInferioresActivos[4] = 1; },
     {1, 2, 3, 4, 5, 6},
     true},
    {FiltrarSUMAS,
     [](Condiciones& c) {
         c.SUMAS.intervalos[3] = {279, 279};
     },
     {44, 45, 46, 47, 48, 49},
     true},
    {FiltrarSUMAS,
     [](Condiciones& c) {
         c.SUMAS.intervalos[9] = {21, 278};
     },
     {44, 45, 46, 47, 48, 49},
     false},
    {FiltrarSUMAS,
     [](Condiciones& c) {
         c.SUMAS.intervalos[0] = {0, 255};
     },
     {38, 39, 43, 44, 45, 47},
     false},
    {FiltrarSUMASPORTRIOS,
     [](Condiciones& c) {
         c.SUMASPORTRIOS.intervalosT2[4] = {144, 500};
     },
     {1, 2, 3, 47, 48, 49},
     true},
    {FiltrarDISTANCIAS,
     [](Condiciones& c) {
         c.DISTANCIAS.Distancia[0] = {0, 1};
     },
     {4, 6, 7, 8, 9, 10},
     false},
    {FiltrarDISTANCIAS,
     [](Condiciones& c) {
         c.DISTANCIAS.Distancia[5] = {48, 48};
     },
     {1, 6, 7, 8, 9, 49},
     true},
    {FiltrarTERMINACIONES, [](Condiciones& c) { c.TERMINACIONES.SumaMaxima = 2; }, {10, 11, 20, 30, 40, 41}, true},
    {FiltrarTERMINACIONES, [](Condiciones& c) { c.TERMINACIONES.SumaMinima = 53; }, {9, 19, 29, 39, 48, 49}, true},
    {FiltrarTERMINACIONES,
     [](Condiciones& c) { c.TERMINACIONES.FigurasTerminaciones[0] = 1; },
     {1, 2, 11, 21, 31, 41},
     true},
    {FiltrarTERMINACIONES,
     [](Condiciones& c) { c.TERMINACIONES.FigurasTerminaciones[2] = 1; },
     {1, 2, 10, 20, 30, 40},
     true},
    {FiltrarSEGUIDOS, [](Condiciones& c) { c.SEGUIDOS.FigurasSeguidos[7] = 1; }, {1, 2, 4, 5, 7, 8}, true},
    {FiltrarSEGUIDOS, [](Condiciones& c) { c.SEGUIDOS.NumerosSeguidos[2] = 1; }, {9, 10, 20, 30, 40, 42}, true},
    {FiltrarSEGUIDOS, [](Condiciones& c) { c.SEGUIDOS.NumerosSeguidos[1] = 1; }, {1, 3, 5, 7, 9, 49}, true},
    {FiltrarHOMOLOGOS, [](Condiciones& c) { c.HOMOLOGOS.HomologosAcertados[6] = 1; }, {1, 10, 19, 28, 37, 46}, true},
    {FiltrarHOMOLOGOS, [](Condiciones& c) { c.HOMOLOGOS.HomologosAcertados[0] = 1; }, {1, 2, 3, 4, 5, 6}, true},
    {FiltrarCOLINDANTES,
     [](Condiciones& c) { c.COLINDANTES.ColindantesAcertados[0] = 1; },
     {9, 10, 23, 41, 45, 49},
     true},
    {FiltrarCOLINDANTES,
     [](Condiciones& c) { c.COLINDANTES.ColindantesAcertados[4] = 1; },
     {1, 11, 23, 34, 45, 49},
     false},
    {FiltrarCOLINDANTES,
     [](Condiciones& c) { c.COLINDANTES.ColindantesAcertados[5] = 1; },
     {1, 11, 23, 34, 45, 49},
     true},
};

} // namespace

TEST(EvaluadoresEjemplos, ApuestasConocidas) {
    for (size_t i = 0; i < std::size(Ejemplos); ++i) {
        SCOPED_TRACE(i);
        Guion guion;
        guion.PonerApuestas({Ejemplos[i].apuesta});
        Ejemplos[i].elegir(guion.sesion.condiciones);
        EXPECT_EQ(Ejemplos[i].filtrar(guion.sesion, guion.entorno), Ejemplos[i].queda ? 0 : 1);
    }
}
