#include "DadosFiltros.h"

#include <array>
#include <numeric>
#include <ostream>

#include "Objetivos.h"
#include <gtest/gtest.h>

#include <hwy/targets.h>

#include "Boleto.h"
#include "Guion.h"
#include "modCSN.h"
#include "modGeneral.h"

namespace {

void SortearBase(Dados& s, EstadoTrabajo& trabajo) {
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
void SortearApuestas(Dados& s, EstadoTrabajo& trabajo) {
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

// Runs both on copies of one state; returns how many bets were eliminated.
int32_t Comparar(const CasoEvaluador& caso, const Sesion& inicial, Entorno& entorno) {
    Sesion literal = inicial, rapida = inicial;
    const int32_t eliminadas = caso.literal(literal);
    EXPECT_EQ(caso.rapido(rapida, entorno), eliminadas);
    EXPECT_EQ(rapida.trabajo.ApuestaEliminada, literal.trabajo.ApuestaEliminada);
    EXPECT_EQ(rapida.trabajo.TablaApuestas, inicial.trabajo.TablaApuestas);
    return eliminadas;
}

} // namespace

void PrintTo(const CasoEvaluador& caso, std::ostream* salida) {
    *salida << caso.nombre;
}

void SortearSistema(Dados& s, EstadoTrabajo& trabajo) {
    SortearBase(s, trabajo);
    SortearApuestas(s, trabajo);
}

void Expandir(EstadoTrabajo& trabajo, int16_t n) {
    std::fill_n(trabajo.lblNumero.begin() + 1, n, true);
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

void EnCadaProcesador(const std::function<void()>& probar) {
    for (const int64_t procesador : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(procesador));
        hwy::SetSupportedTargetsForTest(procesador);
        probar();
        hwy::SetSupportedTargetsForTest(0);
    }
}

void CompararConLiteral(const CasoEvaluador& caso) {
    int64_t visitadas = 0, eliminadas = 0;
    EnCadaProcesador([&] {
        for (uint64_t semilla = 1; semilla <= 25 && !testing::Test::HasFailure(); ++semilla) {
            SCOPED_TRACE(semilla);
            Guion guion;
            Dados s;
            s.azar.Sembrar(semilla);
            SortearSistema(s, guion.sesion.trabajo);
            caso.sortear(s, guion.sesion.condiciones);
            eliminadas += Comparar(caso, guion.sesion, guion.entorno);
            visitadas += guion.sesion.trabajo.ApuestasEnTabla;
        }
    });
    EXPECT_GT(eliminadas, visitadas / 50);
    EXPECT_LT(eliminadas, visitadas * 49 / 50);
}
