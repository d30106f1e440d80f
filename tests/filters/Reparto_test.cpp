// The spread of every filter against literal counts, on random bases, bets and records.
#include "Reparto.h"

#include <map>
#include <stdexcept>

#include <gtest/gtest.h>

#include "CasosFiltros.h"
#include "Guion.h"
#include "RepartosLiterales.h"

namespace {

std::vector<CasoEvaluador> LosDiecinueve() {
    std::vector<CasoEvaluador> casos = CasosSencillos();
    casos.insert(casos.end(), CasosDeBloques().begin(), CasosDeBloques().end());
    casos.push_back(CasoSorteos());
    return casos;
}

int FilaDelFiltro(const CasoEvaluador& caso) {
    int k = 0;
    while (TablaFiltros[static_cast<size_t>(k)].nombre != caso.nombre) ++k;
    return k;
}

// By value: live bets and those of them that pass.
using Barras = std::map<int32_t, std::pair<int32_t, int32_t>>;

Barras ConApuestas(const ApartadoReparto& apartado) {
    Barras barras;
    for (const BarraReparto& barra : apartado.Barras)
        if (barra.Apuestas > 0) barras[barra.Valor] = {barra.Apuestas, barra.Pasan};
    return barras;
}

Barras Contadas(const ApartadoLiteral& literal, const Tabla& antes, const Tabla& despues) {
    Barras barras;
    for (int64_t i = 1; i <= antes.Apuestas(); ++i) {
        if (antes(1, i) != 0) continue;
        auto& [apuestas, pasan] = barras[literal.Valores[static_cast<size_t>(i - 1)]];
        ++apuestas;
        pasan += despues(1, i) == 0;
    }
    return barras;
}

// What the literal versions say of a session.
struct Esperado {
    int32_t Total, Pasan;
    std::vector<std::pair<std::string, Barras>> Apartados;

    Esperado(const CasoEvaluador& caso, int k, const Sesion& inicial) {
        const Tabla& antes = inicial.trabajo.ApuestaEliminada;
        Sesion literal = inicial;
        Total = static_cast<int32_t>(std::count(antes.Fila(1), antes.Fila(1) + antes.Apuestas(), 0));
        Pasan = Total - caso.literal(literal);
        for (const ApartadoLiteral& apartado : ApartadosLiterales(k, inicial))
            Apartados.emplace_back(apartado.Nombre, Contadas(apartado, antes, literal.trabajo.ApuestaEliminada));
    }
};

void Comparar(int k, const Sesion& inicial, Entorno& entorno, const Esperado& esperado) {
    Sesion sesion = inicial;
    const Reparto reparto = RepartirFiltro(k, sesion, entorno);
    EXPECT_EQ(reparto.Total, esperado.Total);
    EXPECT_EQ(reparto.Pasan, esperado.Pasan);
    EXPECT_EQ(sesion.trabajo.ApuestaEliminada, inicial.trabajo.ApuestaEliminada);
    EXPECT_EQ(sesion.trabajo.TablaApuestas, inicial.trabajo.TablaApuestas);
    std::vector<std::pair<std::string, Barras>> apartados;
    for (const ApartadoReparto& apartado : reparto.Apartados) {
        apartados.emplace_back(apartado.Nombre, ConApuestas(apartado));
        EXPECT_TRUE(std::is_sorted(apartado.Barras.begin(), apartado.Barras.end(),
                                   [](const auto& x, const auto& y) { return x.Valor <= y.Valor; }));
    }
    EXPECT_EQ(apartados, esperado.Apartados);
}

class Repartos : public testing::TestWithParam<CasoEvaluador> {};

} // namespace

// Whole bases, with and without dead bets, and tables as an import leaves them; records with and without
// something chosen.
TEST_P(Repartos, CuentanComoLosLiterales) {
    const int k = FilaDelFiltro(GetParam());
    for (uint64_t semilla = 1; semilla <= 12 && !testing::Test::HasFailure(); ++semilla) {
        SCOPED_TRACE(semilla);
        Guion guion;
        Dados s;
        s.azar.Sembrar(semilla);
        EstadoTrabajo& trabajo = guion.sesion.trabajo;
        if (semilla % 3 == 0)
            Expandir(trabajo, s.Entre(6, 15));
        else
            SortearSistema(s, trabajo);
        for (int32_t i = 1; semilla % 2 == 0 && i <= trabajo.ApuestasEnTabla; ++i)
            trabajo.ApuestaEliminada(1, i) = s.UnaDe(3);
        if (semilla % 4 != 0) GetParam().sortear(s, guion.sesion.condiciones);
        const Esperado esperado(GetParam(), k, guion.sesion);
        EnCadaProcesador([&] { Comparar(k, guion.sesion, guion.entorno, esperado); });
    }
}

// A turn that throws leaves the flags as they were.
TEST_P(Repartos, SeAbandonanSinDejarRastro) {
    Guion guion;
    Dados s;
    s.azar.Sembrar(7);
    Expandir(guion.sesion.trabajo, 20);
    for (int32_t i = 1; i <= guion.sesion.trabajo.ApuestasEnTabla; ++i)
        guion.sesion.trabajo.ApuestaEliminada(1, i) = s.UnaDe(3);
    GetParam().sortear(s, guion.sesion.condiciones);
    const Tabla antes = guion.sesion.trabajo.ApuestaEliminada;
    const auto repartir = [&] { RepartirFiltro(FilaDelFiltro(GetParam()), guion.sesion, guion.entorno); };
    repartir();
    const int turnos = guion.Turnos;
    for (const int turno : {1, turnos / 2 + 1, turnos}) {
        guion.EnTurno(guion.Turnos + turno, [] { throw std::domain_error(""); });
        EXPECT_THROW(repartir(), std::domain_error);
        EXPECT_EQ(guion.sesion.trabajo.ApuestaEliminada, antes);
    }
}

INSTANTIATE_TEST_SUITE_P(, Repartos, testing::ValuesIn(LosDiecinueve()),
                         [](const auto& caso) { return std::string(caso.param.nombre); });
