// The fast evaluators against the literal ones, on random bases, bets and records, for every
// processor that the vector code is compiled for and this machine has.
#include "Evaluadores.h"

#include <algorithm>
#include <numeric>

#include "Objetivos.h"
#include <gtest/gtest.h>

#include <hwy/targets.h>

#include "Boleto.h"
#include "FiltrosLiterales.h"
#include "Guion.h"
#include "Rnd.h"
#include "TablaFiltros.h"

namespace {

// Random records: each part may be empty, and a flag may hold what a base file can put there.
struct Sorteo {
    Azar azar;

    bool UnaDe(int32_t n) { return azar.Entero(n) == 0; }
    int16_t Entre(int32_t minimo, int32_t maximo) {
        return static_cast<int16_t>(minimo + azar.Entero(maximo - minimo + 1));
    }
    template <class Marcas>
    void Llenar(Marcas& marcas) {
        const bool vacia = UnaDe(3);
        const int32_t densidad = Entre(1, 3);
        for (auto& marca : marcas)
            marca = vacia ? 0 : static_cast<uint8_t>(UnaDe(12) ? Entre(2, 255) : UnaDe(densidad));
    }
    template <class Intervalos>
    void LlenarIntervalos(Intervalos& intervalos, int minimo, int maximo) {
        for (Intervalo& i : intervalos) {
            i = {};
            if (UnaDe(2)) continue;
            i = {Entre(minimo, maximo), Entre(minimo, maximo)};
            if (i.Minimo > i.Maximo && !UnaDe(10)) std::swap(i.Minimo, i.Maximo);
            if (UnaDe(10)) i.Minimo = Entre(-32768, 32767);
            if (UnaDe(10)) i.Maximo = Entre(-32768, 32767);
        }
    }
};

struct Caso {
    const char* nombre;
    Evaluador rapido;
    int32_t (*literal)(Sesion&);
    void (*sortear)(Sorteo&, Condiciones&);
    bool soloAscendentes = false;
};

void PrintTo(const Caso& caso, std::ostream* salida) {
    *salida << caso.nombre;
}

const Caso Casos[] = {
    {"ALTOSBAJOS", FiltrarALTOSBAJOS, LiteralALTOSBAJOS,
     [](Sorteo& s, Condiciones& c) {
         s.Llenar(c.ALTOSBAJOS.Altos);
         s.Llenar(c.ALTOSBAJOS.Bajos);
     }},
    {"DECENAS", FiltrarDECENAS, LiteralDECENAS,
     [](Sorteo& s, Condiciones& c) {
         for (auto& decena : c.DECENAS.Decena) s.Llenar(decena);
         s.Llenar(c.DECENAS.FigurasDecenas);
     }},
    {"DISTANCIAS", FiltrarDISTANCIAS, LiteralDISTANCIAS,
     [](Sorteo& s, Condiciones& c) { s.LlenarIntervalos(c.DISTANCIAS.Distancia, -5, 45); }},
    {"HOMOLOGOS", FiltrarHOMOLOGOS, LiteralHOMOLOGOS,
     [](Sorteo& s, Condiciones& c) { s.Llenar(c.HOMOLOGOS.HomologosAcertados); }},
    {"PARESIMPARES", FiltrarPARESIMPARES, LiteralPARESIMPARES,
     [](Sorteo& s, Condiciones& c) { s.Llenar(c.PARESIMPARES.ParesActivos); }},
    {"SEGUIDOS", FiltrarSEGUIDOS, LiteralSEGUIDOS,
     [](Sorteo& s, Condiciones& c) {
         s.Llenar(c.SEGUIDOS.NumerosSeguidos);
         s.Llenar(c.SEGUIDOS.FigurasSeguidos);
     }},
    {"SUMAS", FiltrarSUMAS, LiteralSUMAS,
     [](Sorteo& s, Condiciones& c) { s.LlenarIntervalos(c.SUMAS.intervalos, 0, 300); }},
    {"TERMINACIONES", FiltrarTERMINACIONES, LiteralTERMINACIONES,
     [](Sorteo& s, Condiciones& c) {
         for (auto& digito : c.TERMINACIONES.TerminadosEn) s.Llenar(digito);
         s.Llenar(c.TERMINACIONES.FigurasTerminaciones);
         c.TERMINACIONES.SumaMinima = static_cast<uint8_t>(s.UnaDe(3) ? 0 : s.Entre(0, 30));
         c.TERMINACIONES.SumaMaxima = static_cast<uint8_t>(s.UnaDe(3) ? 255 : s.Entre(20, 60));
     }},
    {"EXTERIORESINTERIORES", FiltrarEXTERIORESINTERIORES, LiteralEXTERIORESINTERIORES,
     [](Sorteo& s, Condiciones& c) { s.Llenar(c.EXTERIORESINTERIORES.ExterioresInterioresActivos); }},
    {"SUPERIORESINFERIORES", FiltrarSUPERIORESINFERIORES, LiteralSUPERIORESINFERIORES,
     [](Sorteo& s, Condiciones& c) { s.Llenar(c.SUPERIORESINFERIORES.SuperioresInferioresActivos); }},
    {"COLINDANTES", FiltrarCOLINDANTES, LiteralCOLINDANTES,
     [](Sorteo& s, Condiciones& c) { s.Llenar(c.COLINDANTES.ColindantesAcertados); }},
    {"SUMASPORTRIOS", FiltrarSUMASPORTRIOS, LiteralSUMASPORTRIOS,
     [](Sorteo& s, Condiciones& c) {
         s.LlenarIntervalos(c.SUMASPORTRIOS.intervalosT1, 0, 130);
         s.LlenarIntervalos(c.SUMASPORTRIOS.intervalosT2, 0, 160);
     }},
};

void SortearBase(Sorteo& s, EstadoTrabajo& trabajo) {
    const int16_t tamano = s.Entre(6, 49);
    for (int16_t quedan = tamano; quedan > 0;) {
        bool& marca = trabajo.lblNumero[static_cast<size_t>(s.Entre(1, 49))];
        if (!marca) --quedan;
        marca = true;
    }
    LeerBase(trabajo);
}

// Bets of distinct positions, a third of them close together so that runs and neighbours are seen.
// Some come in any order, as an imported file may bring them.
void SortearApuestas(Sorteo& s, EstadoTrabajo& trabajo) {
    trabajo.ApuestasEnTabla = s.UnaDe(4) ? s.Entre(0, 130) : s.Entre(3900, 8200);
    trabajo.TablaApuestas.Dimensionar(6, trabajo.ApuestasEnTabla);
    trabajo.ApuestaEliminada.Dimensionar(1, trabajo.ApuestasEnTabla);
    uint8_t* eliminada = trabajo.ApuestaEliminada.Fila(1);
    std::fill_n(eliminada + trabajo.ApuestasEnTabla, 64, uint8_t{1});
    std::array<uint8_t, 49> posiciones;
    std::iota(posiciones.begin(), posiciones.end(), uint8_t{1});
    for (int32_t i = 1; i <= trabajo.ApuestasEnTabla; ++i) {
        const int ventana = s.UnaDe(3) ? std::min<int>(trabajo.NumerosBase, 9) : trabajo.NumerosBase;
        const int desde = s.Entre(0, trabajo.NumerosBase - ventana);
        std::iota(posiciones.begin(), posiciones.begin() + ventana, static_cast<uint8_t>(desde + 1));
        for (int r = 0; r < 6; ++r)
            std::swap(posiciones[static_cast<size_t>(r)], posiciones[static_cast<size_t>(s.Entre(r, ventana - 1))]);
        if (!s.UnaDe(10)) std::sort(posiciones.begin(), posiciones.begin() + 6);
        for (int r = 1; r <= 6; ++r) trabajo.TablaApuestas(r, i) = posiciones[static_cast<size_t>(r - 1)];
        if (s.UnaDe(5)) trabajo.ApuestaEliminada(1, i) = 1;
    }
}

class Evaluadores : public testing::TestWithParam<Caso> {
  protected:
    void TearDown() override { hwy::SetSupportedTargetsForTest(0); }
};

// Runs both on copies of one state; returns how many bets were eliminated.
int32_t Comparar(const Caso& caso, const Sesion& inicial, Entorno& entorno) {
    Sesion literal = inicial, rapida = inicial;
    const int32_t eliminadas = caso.literal(literal);
    EXPECT_EQ(caso.rapido(rapida, entorno), eliminadas);
    EXPECT_EQ(rapida.trabajo.ApuestaEliminada, literal.trabajo.ApuestaEliminada);
    EXPECT_EQ(rapida.trabajo.TablaApuestas, inicial.trabajo.TablaApuestas);
    return eliminadas;
}

} // namespace

TEST_P(Evaluadores, ComoLosLiterales) {
    const Caso& caso = GetParam();
    int64_t visitadas = 0, eliminadas = 0;
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(procesador));
        hwy::SetSupportedTargetsForTest(procesador);
        for (uint64_t semilla = 1; semilla <= 25 && !HasFailure(); ++semilla) {
            SCOPED_TRACE(semilla);
            Guion guion;
            Sorteo s;
            s.azar.Sembrar(semilla);
            SortearBase(s, guion.sesion.trabajo);
            SortearApuestas(s, guion.sesion.trabajo);
            caso.sortear(s, guion.sesion.condiciones);
            eliminadas += Comparar(caso, guion.sesion, guion.entorno);
            visitadas += guion.sesion.trabajo.ApuestasEnTabla;
        }
        hwy::SetSupportedTargetsForTest(0);
    }
    EXPECT_GT(eliminadas, visitadas / 50);
    EXPECT_LT(eliminadas, visitadas * 49 / 50);
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

INSTANTIATE_TEST_SUITE_P(, Evaluadores, testing::ValuesIn(Casos),
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
