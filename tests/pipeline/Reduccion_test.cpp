// Both routes against their literal twins, and the guarantee of what they find.
#include "LogicaVentanaProceso.h"

#include <algorithm>
#include <bit>
#include <random>

#include <gtest/gtest.h>

#include "FilaAl5.h"
#include "Guion.h"
#include "ReduccionLiteral.h"
#include "modGeneral.h"

namespace {

using Bet = ReduccionLiteral::Bet;
using Dado = std::mt19937;

int Tirar(Dado& dado, int desde, int hasta) {
    return std::uniform_int_distribution<int>(desde, hasta)(dado);
}

std::vector<Bet> Expandir(int n) {
    std::vector<Bet> todas;
    Bet b;
    for (b[0] = 1; b[0] <= n; ++b[0])
        for (b[1] = b[0] + 1; b[1] <= n; ++b[1])
            for (b[2] = b[1] + 1; b[2] <= n; ++b[2])
                for (b[3] = b[2] + 1; b[3] <= n; ++b[3])
                    for (b[4] = b[3] + 1; b[4] <= n; ++b[4])
                        for (b[5] = b[4] + 1; b[5] <= n; ++b[5]) todas.push_back(b);
    return todas;
}

// About `cuantas` of the bets of the base, at least one, in the order of the base.
std::vector<Bet> Filtrar(const std::vector<Bet>& todas, size_t cuantas, Dado& dado) {
    std::vector<Bet> quedan;
    std::sample(todas.begin(), todas.end(), std::back_inserter(quedan), std::max<size_t>(cuantas, 1), dado);
    return quedan;
}

// Lays the case in a working state, as the driver leaves it before it opens the window.
void Preparar(Guion& guion, const ReduccionLiteral& caso, bool importada) {
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    trabajo.NumerosBase = static_cast<int16_t>(caso.n);
    for (int p = 1; p <= caso.n; ++p) trabajo.BaseNumeros[static_cast<size_t>(p)] = static_cast<uint8_t>(2 * p - p / 2);
    const auto n = static_cast<int32_t>(caso.apuestas.size());
    trabajo.ApuestasCondicionadas.Dimensionar(importada ? 7 : 6, n);
    trabajo.ApuestasImportadas.Dimensionar(7, n);
    for (int i = 1; i <= n; ++i)
        for (int r = 1; r <= 6; ++r) {
            const int p = caso.apuestas[static_cast<size_t>(i - 1)][static_cast<size_t>(r - 1)];
            trabajo.ApuestasCondicionadas(r, i) = static_cast<uint8_t>(p);
            trabajo.ApuestasImportadas(r, i) = trabajo.BaseNumeros[static_cast<size_t>(p)];
        }
    trabajo.cboTipoCombinacion = importada ? PronosticoDesdeArchivo : PronosticoManual;
    trabajo.NApuestasImportadas = importada ? n : 0;
    trabajo.ApuestasEnTabla = static_cast<int32_t>(importada ? n : Combinaciones(trabajo.NumerosBase, 6));
    trabajo.SinEliminadas = caso.SinEliminadas;
    trabajo.Contador = {trabajo.ApuestasEnTabla, n, 0, ""};
    AjustesReduccion& ajustes = trabajo.Reduccion;
    ajustes.TipoReduccion = static_cast<int16_t>(caso.TipoReduccion);
    ajustes.PorcentajeReduccion = static_cast<int16_t>(caso.Porcentaje);
    ajustes.NApuestasExactas = caso.NApuestas;
    ajustes.ActivarNumeroApuestas = caso.PorNumero;
    ajustes.ActivarCiclos = caso.Ciclos;
}

// Bets of the best system, back in positions.
std::vector<Bet> Reducidas(const EstadoTrabajo& trabajo) {
    std::array<int, 256> posicion{};
    for (int p = 1; p <= trabajo.NumerosBase; ++p) posicion[trabajo.BaseNumeros[static_cast<size_t>(p)]] = p;
    std::vector<Bet> bets;
    for (const Apuesta& a : Apuestas(trabajo.ApuestasReducidas)) {
        Bet b;
        std::transform(a.begin(), a.end(), b.begin(), [&](int x) { return posicion[static_cast<size_t>(x)]; });
        bets.push_back(b);
    }
    return bets;
}

uint64_t MascaraDe(const Bet& b) {
    uint64_t m = 0;
    for (const int p : b) m |= uint64_t{1} << p;
    return m;
}

int64_t Cubiertas(const std::vector<Bet>& sistema, const std::vector<Bet>& elegidas, int aciertos) {
    return std::count_if(sistema.begin(), sistema.end(), [&](const Bet& b) {
        return std::any_of(elegidas.begin(), elegidas.end(),
                           [&](const Bet& e) { return std::popcount(MascaraDe(b) & MascaraDe(e)) >= aciertos; });
    });
}

void Comparar(ReduccionLiteral caso, bool importada = false) {
    SCOPED_TRACE(::testing::Message() << "n " << caso.n << " tipo " << caso.TipoReduccion << " N "
                                      << caso.apuestas.size() << " al " << caso.Porcentaje << "% número "
                                      << caso.PorNumero << "/" << caso.NApuestas << " ciclos " << caso.Ciclos
                                      << " hasta " << caso.TopeCiclos << " importada " << importada);
    Guion guion;
    Preparar(guion, caso, importada);
    LogicaVentanaProceso ventana(guion.sesion, guion.entorno);
    ventana.TopeCiclos = caso.TopeCiclos;
    ventana.Activar();
    caso.Reducir();
    const std::vector<Bet> elegidas = Reducidas(guion.sesion.trabajo);
    ASSERT_EQ(elegidas, caso.Mejor);
    EXPECT_EQ(ventana.CicloActual, caso.CicloActual);
    std::vector<int> tamanios;
    for (const auto& h : ventana.Hallazgos) tamanios.push_back(h.Apuestas);
    EXPECT_EQ(tamanios, caso.Tamanios);
    EXPECT_EQ(guion.Cajas, Textos{});
    if (!caso.PorNumero) {
        EXPECT_GE(Cubiertas(caso.apuestas, elegidas, 6 - caso.TipoReduccion) * 100,
                  int64_t{caso.Porcentaje} * static_cast<int64_t>(caso.apuestas.size()));
    }
}

// Sizes that the literal steps end in a moment.
int MayorBase(int tipo) {
    return tipo == 1 ? 14 : tipo == 2 ? 12 : 16;
}

} // namespace

TEST(Reduccion, BaseCompletaComoLosPasosLiterales) {
    Dado dado(1);
    for (int tipo = 0; tipo <= 4; ++tipo)
        for (int n = 6; n <= MayorBase(tipo); ++n) {
            ReduccionLiteral caso;
            caso.n = n;
            caso.apuestas = Expandir(n);
            caso.SinEliminadas = true;
            caso.TipoReduccion = tipo;
            Comparar(caso);
            caso.Porcentaje = Tirar(dado, 1, 99);
            Comparar(caso);
            caso.PorNumero = true;
            caso.NApuestas = Tirar(dado, 1, 12);
            Comparar(caso);
        }
}

// The sweep's pruning goes wrong first where many bets share their first positions.
TEST(Reduccion, BaseCompletaPorBarridoDesde23Numeros) {
    for (int tipo = 2; tipo <= 4; ++tipo) {
        ReduccionLiteral caso;
        caso.n = 23;
        caso.apuestas = Expandir(23);
        caso.SinEliminadas = true;
        caso.TipoReduccion = tipo;
        Comparar(caso);
    }
}

TEST(Reduccion, SistemasFiltradosComoLosPasosLiterales) {
    Dado dado(2);
    for (int vuelta = 0; vuelta < 250; ++vuelta) {
        ReduccionLiteral caso;
        caso.n = Tirar(dado, 6, 24);
        caso.TipoReduccion = Tirar(dado, 0, 4);
        const auto todas = Expandir(caso.n);
        const bool alCuatro = caso.TipoReduccion == 2 && caso.n <= 22;
        caso.apuestas = Filtrar(todas, static_cast<size_t>(Tirar(dado, 1, alCuatro ? 120 : 600)), dado);
        caso.Porcentaje = vuelta % 3 == 0 ? 100 : Tirar(dado, 1, 100);
        caso.PorNumero = Tirar(dado, 0, 3) == 0;
        caso.NApuestas = Tirar(dado, 1, 40);
        caso.Ciclos = caso.n < 16 && Tirar(dado, 0, 1) == 1;
        caso.TopeCiclos = caso.Ciclos ? Tirar(dado, 1, 12) : 1;
        Comparar(caso);
    }
}

TEST(Reduccion, SistemasImportadosComoLosPasosLiterales) {
    Dado dado(3);
    for (int vuelta = 0; vuelta < 120; ++vuelta) {
        ReduccionLiteral caso;
        caso.n = Tirar(dado, 7, 26);
        caso.TipoReduccion = Tirar(dado, 0, 4);
        caso.apuestas = Filtrar(Expandir(caso.n), static_cast<size_t>(Tirar(dado, 1, 200)), dado);
        if (vuelta % 4 != 0) std::shuffle(caso.apuestas.begin(), caso.apuestas.end(), dado);
        caso.Porcentaje = vuelta % 2 == 0 ? 100 : Tirar(dado, 1, 100);
        caso.Ciclos = Tirar(dado, 0, 1) == 1;
        caso.TopeCiclos = Tirar(dado, 1, 4);
        Comparar(caso, true);
    }
}

TEST(Reduccion, LosCiclosSiguientesComoLosPasosLiterales) {
    for (int tipo = 1; tipo <= 4; ++tipo)
        for (const int porcentaje : {100, 75}) {
            ReduccionLiteral caso;
            caso.n = tipo == 1 ? 10 : tipo == 2 ? 9 : 12;
            caso.apuestas = Expandir(caso.n);
            caso.SinEliminadas = true;
            caso.TipoReduccion = tipo;
            caso.Porcentaje = porcentaje;
            caso.Ciclos = true;
            caso.TopeCiclos = 40;
            Comparar(caso);
            caso.PorNumero = true;
            caso.NApuestas = 2;
            Comparar(caso);
        }
}

TEST(Reduccion, ElCambioDeRutaYDeTablas) {
    Dado dado(4);
    for (const int n : {22, 23, 24, 25})
        for (int tipo = 0; tipo <= 4; ++tipo) {
            ReduccionLiteral caso;
            caso.n = n;
            caso.apuestas = Filtrar(Expandir(n), 150, dado);
            caso.TipoReduccion = tipo;
            Comparar(caso);
        }
}

// Dense systems whose runs are longer than one vector.
TEST(Reduccion, SistemasFiltradosDensos) {
    Dado dado(5);
    ReduccionLiteral caso;
    caso.n = 24;
    caso.apuestas = Filtrar(Expandir(24), 6500, dado);
    caso.TipoReduccion = 1;
    Comparar(caso);
    caso.n = 16;
    caso.apuestas = Filtrar(Expandir(16), 1100, dado);
    caso.TipoReduccion = 2;
    caso.Ciclos = true;
    caso.TopeCiclos = 3;
    Comparar(caso);
    std::shuffle(caso.apuestas.begin(), caso.apuestas.end(), dado);
    Comparar(caso, true);
}

TEST(FilaAl5, ElNucleoDaLoMismoQueElBucle) {
    Dado dado(6);
    for (int vuelta = 0; vuelta < 3000; ++vuelta) {
        std::array<std::array<uint8_t, 64>, 6> datos;
        for (auto& fila : datos)
            for (uint8_t& x : fila) x = static_cast<uint8_t>(Tirar(dado, 1, vuelta % 3 == 0 ? 3 : 44));
        constexpr uint8_t Estados[] = {0, 5, 128};
        for (uint8_t& x : datos[5]) x = Estados[Tirar(dado, 0, vuelta % 5 == 0 ? 0 : 2)];
        FilaAl5 fila{{}, datos[5].data(), Tirar(dado, 1, 44)};
        for (size_t k = 0; k < 5; ++k) fila.sin[k] = datos[k].data();
        const MejorDeFila una = MejorDeFilaAl5(fila), otra = MejorDeFilaEscalar(fila);
        ASSERT_EQ(una.ganancia, otra.ganancia);
        ASSERT_EQ(una.indice, otra.indice);
    }
}
