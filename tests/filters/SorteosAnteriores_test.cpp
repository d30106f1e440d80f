// The evaluator of earlier draws, each of its ways against the literal loop.
#include <algorithm>

#include <gtest/gtest.h>

#include "CasosFiltros.h"
#include "EnOrden.h"
#include "Evaluadores.h"
#include "FiltroSorteosLiteral.h"
#include "Guion.h"
#include "SorteosAnteriores.h"

namespace {

constexpr int16_t Anio = 2023;

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

int64_t Vivas(const Tabla& eliminada) {
    return std::count(eliminada.Fila(1), eliminada.Fila(1) + eliminada.Apuestas(), 0);
}

// Live bets that the spread has between the limits; all of them are somewhere.
int64_t RepartidasDentro(ManeraSorteos manera, Guion& guion, const PreguntaSorteos& pregunta) {
    Sesion sesion = guion.sesion;
    uint8_t* flags = sesion.trabajo.ApuestaEliminada.Fila(1);
    std::replace(flags, flags + sesion.trabajo.ApuestasEnTabla, 1, int{ApuestaMuerta});
    const auto cuentas = RepartirSorteos(manera, sesion.trabajo, guion.entorno, pregunta);
    int64_t dentro = 0, todas = 0;
    for (size_t v = 0; v < cuentas.size(); ++v) {
        const auto valor = static_cast<int32_t>(v);
        todas += cuentas[v].Pasan;
        if (valor >= pregunta.Minimo && valor <= pregunta.Maximo) dentro += cuentas[v].Apuestas;
    }
    EXPECT_EQ(todas, Vivas(guion.sesion.trabajo.ApuestaEliminada));
    return dentro;
}

void CompararManeras(Guion& guion, const PreguntaSorteos& pregunta, std::initializer_list<ManeraSorteos> maneras) {
    Sesion literal = guion.sesion;
    const int32_t eliminadas = LiteralSORTEOSANTERIORES(literal);
    for (const ManeraSorteos manera : maneras) {
        Sesion rapida = guion.sesion;
        EXPECT_EQ(FiltrarSorteos(manera, rapida.trabajo, guion.entorno, pregunta), eliminadas);
        EXPECT_EQ(rapida.trabajo.ApuestaEliminada, literal.trabajo.ApuestaEliminada);
        EXPECT_EQ(RepartidasDentro(manera, guion, pregunta), Vivas(literal.trabajo.ApuestaEliminada));
    }
    Sesion rapida = guion.sesion;
    EXPECT_EQ(FiltrarSORTEOSANTERIORES(rapida, guion.entorno), eliminadas);
    EXPECT_EQ(rapida.trabajo.ApuestaEliminada, literal.trabajo.ApuestaEliminada);
}

} // namespace

TEST(SorteosAnteriores, ComoElLiteralEnSistemasAlAzar) {
    CompararConLiteral(CasoSorteos());
}

TEST(SorteosAnteriores, ExpansionesEnterasPorTodasLasManeras) {
    EnCadaProcesador([] {
        for (const int16_t n : std::initializer_list<int16_t>{6, 7, 8, 13, 17}) {
            SCOPED_TRACE(n);
            Guion guion;
            Dados s;
            s.azar.Sembrar(static_cast<uint64_t>(n));
            Expandir(guion.sesion.trabajo, n);
            EXPECT_TRUE(EsExpansionEntera(guion.sesion.trabajo));
            const Sorteos sorteos = HistoriaAlAzar(s, n == 17 ? 60 : 400);
            for (int32_t i = 1; i <= guion.sesion.trabajo.ApuestasEnTabla; ++i)
                guion.sesion.trabajo.ApuestaEliminada(1, i) = s.UnaDe(6);
            for (const TablaAciertos& acertar :
                 {TablaAciertos{0, 0, 0, 1, 1, 1, 1}, TablaAciertos{1, 0, 1, 0, 0, 0, 1}, TablaAciertos{0, 1}}) {
                const auto pregunta = Preguntar(guion, sorteos, acertar, 3, static_cast<int32_t>(sorteos.size()) / 4);
                CompararManeras(guion, pregunta, {ManeraSorteos::Comparando, ManeraSorteos::Expansion});
                if (n == 17) CompararManeras(guion, pregunta, {ManeraSorteos::Consultando});
            }
        }
    });
}

// Counts of 65535, 65536 and beyond neither wrap nor meet in the sums.
TEST(SorteosAnteriores, CuentasDeMasDeDieciseisBits) {
    const Sorteo primero{{6, 5, 4, 3, 2, 1}, Anio, 1, 0}, otro{{1, 2, 3, 4, 5, 8}, Anio, 2, 0};
    for (const size_t n : {65535u, 65536u, 70000u}) {
        Guion guion;
        Expandir(guion.sesion.trabajo, 8);
        Sorteos sorteos(n, primero);
        sorteos.push_back(otro);
        const auto maximo = static_cast<int32_t>(n);
        for (const TablaAciertos& acertar : {TablaAciertos{0, 0, 0, 0, 0, 0, 1}, TablaAciertos{0, 0, 0, 0, 0, 1, 1}}) {
            const auto pregunta = Preguntar(guion, sorteos, acertar, maximo, maximo);
            CompararManeras(guion, pregunta,
                            {ManeraSorteos::Comparando, ManeraSorteos::Expansion, ManeraSorteos::Consultando});
        }
    }
}

// As many bets as the base's expansion has, but not those.
TEST(SorteosAnteriores, UnaTablaDelTamanoDeLaExpansionNoLoEs) {
    Guion guion;
    Expandir(guion.sesion.trabajo, 19);
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    EXPECT_FALSE(EsExpansionEntera(trabajo));
    trabajo.cboTipoCombinacion = PronosticoManual;
    for (int r = 1; r <= 6; ++r) std::reverse(trabajo.TablaApuestas.Fila(r), trabajo.TablaApuestas.Fila(r) + 27132);
    EXPECT_FALSE(EsExpansionEntera(trabajo));
    Dados s;
    s.azar.Sembrar(5);
    const auto pregunta = Preguntar(guion, HistoriaAlAzar(s, 60), {0, 0, 0, 1, 1, 1, 1}, 1, 4);
    CompararManeras(guion, pregunta, {ManeraSorteos::Comparando, ManeraSorteos::Consultando});
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
    const auto uno = Preguntar(guion, HistoriaAlAzar(s, 1), DeTresASeis, 1, 1);
    FiltrarSorteos(ManeraSorteos::Comparando, guion.sesion.trabajo, guion.entorno, uno);
    EXPECT_EQ(guion.Turnos, 3);
    guion.Turnos = 0;
    guion.PonerApuestas({{1, 2, 3, 4, 5, 6}});
    const auto muchos = Preguntar(guion, Sorteos(1001, {{1, 2, 3, 4, 5, 6}, Anio, 1, 0}), DeTresASeis, 0, 2000);
    FiltrarSorteos(ManeraSorteos::Comparando, guion.sesion.trabajo, guion.entorno, muchos);
    EXPECT_EQ(guion.Turnos, 2);
}
