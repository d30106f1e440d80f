// The evaluator of earlier draws, each of its ways against the literal loop.
#include <algorithm>
#include <cstring>

#include "Objetivos.h"
#include <gtest/gtest.h>

#include <hwy/targets.h>

#include "Boleto.h"
#include "DadosFiltros.h"
#include "Evaluadores.h"
#include "FiltroSorteosLiteral.h"
#include "Guion.h"
#include "SorteosAnteriores.h"
#include "modCSN.h"
#include "modGeneral.h"

namespace {

constexpr int16_t Anio = 2023;

// Numbers as they were drawn, a few of them what only a broken answer could bring.
Sorteo SorteoAlAzar(Dados& s) {
    Sorteo sorteo;
    const bool raro = s.UnaDe(12);
    for (size_t j = 0; j < sorteo.numeros.size(); ++j) {
        do {
            sorteo.numeros[j] =
                static_cast<uint8_t>(raro ? s.UnaDe(3) ? s.Entre(0, 255) : s.Entre(0, 3) * 7 : s.Entre(1, 49));
        } while (!raro && std::count(sorteo.numeros.begin(), sorteo.numeros.begin() + static_cast<std::ptrdiff_t>(j),
                                     sorteo.numeros[j]) > 0);
    }
    sorteo.anio = s.UnaDe(30) ? s.Entre(-3, 3) : static_cast<int16_t>(Anio - s.Entre(0, 2));
    sorteo.sorteo = static_cast<uint16_t>(s.UnaDe(20) ? s.Entre(0, 1) * 65535 : s.Entre(1, 120));
    sorteo.dia = static_cast<uint8_t>(s.Entre(0, 7));
    return sorteo;
}

Sorteos Historia(Dados& s, size_t n) {
    Sorteos sorteos;
    while (sorteos.size() < n)
        sorteos.push_back(!sorteos.empty() && s.UnaDe(6)
                              ? sorteos[static_cast<size_t>(s.azar.Entero(static_cast<int32_t>(sorteos.size())))]
                              : SorteoAlAzar(s));
    return sorteos;
}

BloqueSorteos BloqueAlAzar(Dados& s, int32_t sorteos) {
    BloqueSorteos b;
    b.DESDE = {static_cast<int16_t>(Anio - s.Entre(0, 2)), s.Entre(1, 110)};
    b.HASTA = {static_cast<int16_t>(Anio - s.Entre(0, 1)), s.Entre(50, 120)};
    if (s.UnaDe(5)) b.DESDE = {-32768, 1};
    if (s.UnaDe(5)) b.HASTA = {32767, 32767};
    if (s.UnaDe(12)) b.DESDE.numero = s.Entre(-32768, 0);
    if (s.UnaDe(3)) b.sorteoDIAS = s.UnaDe(6) ? s.Entre(-2, 300) : s.Entre(1, 7);
    for (uint8_t& marca : b.acertarEN) marca = static_cast<uint8_t>(s.UnaDe(15) ? 2 : s.UnaDe(2));
    b.aciertosMinimoSORTEOS = s.UnaDe(8) ? -5 : s.azar.Entero(sorteos / 3 + 1);
    b.aciertosMaximoSORTEOS = s.UnaDe(10)  ? -1
                              : s.UnaDe(4) ? INT32_MAX
                                           : b.aciertosMinimoSORTEOS + s.azar.Entero(sorteos / 2 + 1);
    if (s.UnaDe(8)) b.aciertosMinimoSORTEOS = b.aciertosMaximoSORTEOS = 0;
    return b;
}

void SortearSORTEOSANTERIORES(Dados& s, Condiciones& c) {
    const size_t n = s.UnaDe(3) ? 1 + s.UnaDe(2) : static_cast<size_t>(s.Entre(3, 700));
    c.SorteosFiltro = Historia(s, n);
    for (int32_t usados = s.Entre(1, 2); usados > 0; --usados)
        c.SORTEOSANTERIORES.grupo[static_cast<size_t>(s.Entre(0, 19))] = BloqueAlAzar(s, static_cast<int32_t>(n));
}

using Manera = int32_t (*)(EstadoTrabajo&, Entorno&, const PreguntaSorteos&);

void Expandir(Guion& guion, int16_t n) {
    guion.MarcarHasta(n);
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    LeerBase(trabajo);
    trabajo.ApuestasEnTabla = static_cast<int32_t>(Combinaciones(n, 6));
    trabajo.TablaApuestas.Dimensionar(6, trabajo.ApuestasEnTabla);
    trabajo.ApuestaEliminada.Dimensionar(1, trabajo.ApuestasEnTabla);
    std::array<uint8_t, 6> apuesta;
    for (int32_t i = 1; i <= trabajo.ApuestasEnTabla; ++i) {
        CSNaCombinacion(i, 6, n, apuesta.data());
        for (int r = 1; r <= 6; ++r) trabajo.TablaApuestas(r, i) = apuesta[static_cast<size_t>(r - 1)];
    }
}

// One block over all draws, as a question and in the session.
PreguntaSorteos Preguntar(Guion& guion, const Sorteos& sorteos, const TablaAciertos& acertar, int32_t minimo,
                          int32_t maximo) {
    Condiciones& c = guion.sesion.condiciones;
    c.SorteosFiltro = sorteos;
    c.SORTEOSANTERIORES.grupo[3] = {{-32768, 1}, {32767, 32767}, 0, minimo, maximo, acertar};
    PreguntaSorteos pregunta{{}, acertar, minimo, maximo};
    for (const Sorteo& sorteo : sorteos) {
        SorteoEnBase& enBase = pregunta.Sorteos.emplace_back();
        for (size_t j = 0; j < 6; ++j)
            enBase[j] = sorteo.numeros[j] <= guion.sesion.trabajo.NumerosBase ? sorteo.numeros[j] : uint8_t{0};
    }
    return pregunta;
}

void CompararManeras(Guion& guion, const PreguntaSorteos& pregunta, std::initializer_list<Manera> maneras) {
    Sesion literal = guion.sesion;
    const int32_t eliminadas = LiteralSORTEOSANTERIORES(literal);
    for (const Manera manera : maneras) {
        Sesion rapida = guion.sesion;
        EXPECT_EQ(manera(rapida.trabajo, guion.entorno, pregunta), eliminadas);
        EXPECT_EQ(rapida.trabajo.ApuestaEliminada, literal.trabajo.ApuestaEliminada);
    }
    Sesion rapida = guion.sesion;
    EXPECT_EQ(FiltrarSORTEOSANTERIORES(rapida, guion.entorno), eliminadas);
    EXPECT_EQ(rapida.trabajo.ApuestaEliminada, literal.trabajo.ApuestaEliminada);
}

} // namespace

TEST(SorteosAnteriores, ComoElLiteralEnSistemasAlAzar) {
    CompararConLiteral(
        {"SORTEOSANTERIORES", FiltrarSORTEOSANTERIORES, LiteralSORTEOSANTERIORES, SortearSORTEOSANTERIORES});
}

TEST(SorteosAnteriores, ExpansionesEnterasPorTodasLasManeras) {
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(procesador));
        hwy::SetSupportedTargetsForTest(procesador);
        for (const int16_t n : std::initializer_list<int16_t>{6, 7, 8, 13, 17}) {
            SCOPED_TRACE(n);
            Guion guion;
            Dados s;
            s.azar.Sembrar(static_cast<uint64_t>(n));
            Expandir(guion, n);
            EXPECT_TRUE(EsExpansionEntera(guion.sesion.trabajo));
            const Sorteos sorteos = Historia(s, n == 17 ? 60 : 400);
            for (int32_t i = 1; i <= guion.sesion.trabajo.ApuestasEnTabla; ++i)
                guion.sesion.trabajo.ApuestaEliminada(1, i) = s.UnaDe(6);
            for (const TablaAciertos& acertar :
                 {TablaAciertos{0, 0, 0, 1, 1, 1, 1}, TablaAciertos{1, 0, 1, 0, 0, 0, 1}, TablaAciertos{0, 1}}) {
                const auto pregunta = Preguntar(guion, sorteos, acertar, 3, static_cast<int32_t>(sorteos.size()) / 4);
                CompararManeras(guion, pregunta, {FiltrarComparando, FiltrarExpansion});
                if (n == 17) CompararManeras(guion, pregunta, {FiltrarConsultando});
            }
        }
        hwy::SetSupportedTargetsForTest(0);
    }
}

// Counts of 65535, 65536 and beyond neither wrap nor meet in the sums.
TEST(SorteosAnteriores, CuentasDeMasDeDieciseisBits) {
    const Sorteo primero{{6, 5, 4, 3, 2, 1}, Anio, 1, 0}, otro{{1, 2, 3, 4, 5, 8}, Anio, 2, 0};
    for (const size_t n : {65535u, 65536u, 70000u}) {
        Guion guion;
        Expandir(guion, 8);
        Sorteos sorteos(n, primero);
        sorteos.push_back(otro);
        const auto maximo = static_cast<int32_t>(n);
        for (const TablaAciertos& acertar : {TablaAciertos{0, 0, 0, 0, 0, 0, 1}, TablaAciertos{0, 0, 0, 0, 0, 1, 1}}) {
            const auto pregunta = Preguntar(guion, sorteos, acertar, maximo, maximo);
            CompararManeras(guion, pregunta, {FiltrarComparando, FiltrarExpansion, FiltrarConsultando});
        }
    }
}

// As many bets as the base's expansion has, but not those.
TEST(SorteosAnteriores, UnaTablaDelTamanoDeLaExpansionNoLoEs) {
    Guion guion;
    Expandir(guion, 19);
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    EXPECT_FALSE(EsExpansionEntera(trabajo));
    trabajo.cboTipoCombinacion = PronosticoManual;
    for (int r = 1; r <= 6; ++r) std::reverse(trabajo.TablaApuestas.Fila(r), trabajo.TablaApuestas.Fila(r) + 27132);
    EXPECT_FALSE(EsExpansionEntera(trabajo));
    Dados s;
    s.azar.Sembrar(5);
    const auto pregunta = Preguntar(guion, Historia(s, 60), {0, 0, 0, 1, 1, 1, 1}, 1, 4);
    CompararManeras(guion, pregunta, {FiltrarComparando, FiltrarConsultando});
}

namespace {

struct Ejemplo {
    const char* que;
    void (*elegir)(BloqueSorteos&);
    Apuesta apuesta;
    bool queda;
};

constexpr TablaAciertos DeTresASeis{0, 0, 0, 1, 1, 1, 1};

const Ejemplo Ejemplos[] = {
    {"won something", [](BloqueSorteos& b) { b.aciertosMinimoSORTEOS = 1; }, {1, 2, 3, 40, 41, 42}, true},
    {"never won", [](BloqueSorteos& b) { b.aciertosMinimoSORTEOS = 1; }, {1, 2, 39, 40, 41, 42}, false},
    {"never drawn",
     [](BloqueSorteos& b) {
         b.acertarEN = {0, 0, 0, 0, 0, 0, 1};
         b.aciertosMaximoSORTEOS = 0;
     },
     {1, 2, 3, 4, 5, 7},
     true},
    {"drawn once",
     [](BloqueSorteos& b) {
         b.acertarEN = {0, 0, 0, 0, 0, 0, 1};
         b.aciertosMaximoSORTEOS = 0;
     },
     {1, 2, 3, 4, 5, 6},
     false},
    {"one draw alone",
     [](BloqueSorteos& b) {
         b.DESDE = b.HASTA = {Anio, 5};
         b.aciertosMinimoSORTEOS = b.aciertosMaximoSORTEOS = 1;
     },
     {10, 11, 12, 1, 2, 3},
     true},
    {"beyond draw 99 with later years",
     [](BloqueSorteos& b) {
         b.DESDE = {2020, 100};
         b.HASTA = {2020, 120};
         b.aciertosMinimoSORTEOS = 1;
     },
     {20, 21, 22, 23, 24, 25},
     false},
    {"up to draw 150 takes in two digits of later years",
     [](BloqueSorteos& b) {
         b.DESDE = {2022, 99};
         b.HASTA = {2020, 150};
         b.aciertosMinimoSORTEOS = 3;
     },
     {1, 2, 3, 10, 11, 12},
     false},
    {"thursdays",
     [](BloqueSorteos& b) {
         b.sorteoDIAS = 4;
         b.aciertosMinimoSORTEOS = 1;
     },
     {1, 2, 3, 4, 5, 6},
     true},
    {"no draw on fridays",
     [](BloqueSorteos& b) {
         b.sorteoDIAS = 5;
         b.aciertosMinimoSORTEOS = 1;
     },
     {1, 2, 3, 4, 5, 6},
     false},
    {"empty stretch, minimum 0", [](BloqueSorteos& b) { b.sorteoDIAS = 5; }, {1, 2, 3, 4, 5, 6}, true},
    {"empty stretch, negative maximum",
     [](BloqueSorteos& b) {
         b.sorteoDIAS = 5;
         b.aciertosMaximoSORTEOS = -1;
     },
     {1, 2, 3, 4, 5, 6},
     false},
    {"no hits chosen",
     [](BloqueSorteos& b) {
         b.acertarEN = {};
         b.aciertosMinimoSORTEOS = 9;
     },
     {1, 2, 3, 4, 5, 6},
     true},
};

} // namespace

TEST(SorteosAnteriores, Ejemplos) {
    for (const Ejemplo& ejemplo : Ejemplos) {
        Guion guion;
        guion.PonerApuestas({ejemplo.apuesta});
        Condiciones& c = guion.sesion.condiciones;
        c.SorteosFiltro = {{{1, 2, 3, 4, 5, 6, 20, 21}, 2022, 99, CodigoDia("J")},
                           {{10, 11, 12, 13, 14, 15}, Anio, 5, CodigoDia("l")},
                           {{20, 21, 22, 23, 24, 25}, Anio, 123, CodigoDia("S")}};
        BloqueSorteos& bloque = c.SORTEOSANTERIORES.grupo[19];
        bloque = {{1985, 1}, {2024, 1500}, 0, 0, 3, DeTresASeis};
        ejemplo.elegir(bloque);
        EXPECT_EQ(FiltrarSORTEOSANTERIORES(guion.sesion, guion.entorno), !ejemplo.queda) << ejemplo.que;
    }
}

TEST(SorteosAnteriores, SinTablaDeSorteosNoElimina) {
    Guion guion;
    guion.PonerApuestas({{1, 2, 3, 4, 5, 6}});
    guion.sesion.condiciones.SORTEOSANTERIORES.grupo[0] = {{2024, 1}, {2024, 1}, 0, 1, 1, DeTresASeis};
    EXPECT_EQ(FiltrarSORTEOSANTERIORES(guion.sesion, guion.entorno), 0);
}

// Every 4000 bets, and every 500 draws where one bet is compared with them.
TEST(SorteosAnteriores, CedeElTurno) {
    Guion guion;
    guion.PonerApuestas(std::vector<Apuesta>(12001, {1, 2, 3, 4, 5, 6}));
    Dados s;
    const auto uno = Preguntar(guion, Historia(s, 1), DeTresASeis, 1, 1);
    FiltrarComparando(guion.sesion.trabajo, guion.entorno, uno);
    EXPECT_EQ(guion.Turnos, 3);
    guion.Turnos = 0;
    guion.PonerApuestas({{1, 2, 3, 4, 5, 6}});
    const auto muchos = Preguntar(guion, Sorteos(1001, {{1, 2, 3, 4, 5, 6}, Anio, 1, 0}), DeTresASeis, 0, 2000);
    FiltrarComparando(guion.sesion.trabajo, guion.entorno, muchos);
    EXPECT_EQ(guion.Turnos, 2);
}
