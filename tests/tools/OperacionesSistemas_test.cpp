#include "OperacionesSistemas.h"

#include <random>

#include <gtest/gtest.h>

#include "AlgebraLiteral.h"
#include "Guion.h"

namespace {

using Sistema = std::vector<Apuesta>;

Tabla TablaDe(const Sistema& apuestas) {
    Tabla tabla(7, static_cast<int64_t>(apuestas.size()));
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (size_t r = 0; r < 6; ++r)
            tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
    return tabla;
}

// Bets in any order, drawn from `distintas` places of the ticket: few of them make many repeats.
Sistema AlAzar(std::mt19937& azar, size_t n, int32_t distintas) {
    Sistema s;
    for (size_t i = 0; i < n; ++i)
        s.push_back(ApuestaDe(1 + static_cast<int32_t>(azar() % static_cast<uint32_t>(distintas)) *
                                      (ApuestasMaximas / distintas)));
    return s;
}

Sistema Operar(OperacionLiteral que, const Sistema& s1, const Sistema& s2, const Turno& turno) {
    const Tabla a = TablaDe(s1), b = TablaDe(s2);
    Tabla r(7, 3); // what stood there before is to go
    bool hecho = false;
    switch (que) {
    case OperacionLiteral::Ordenar:
    case OperacionLiteral::OrdenarAlReves:
        hecho = OrdenarSistema(a, que == OperacionLiteral::OrdenarAlReves, r, turno);
        break;
    case OperacionLiteral::Sumar:
        hecho = SumarDirecto(a, b, r, turno);
        break;
    case OperacionLiteral::Unir:
        hecho = SumarSinRepetidas(a, b, r, turno);
        break;
    case OperacionLiteral::Comunes:
        hecho = Intersecar(a, b, r, turno);
        break;
    case OperacionLiteral::Restar:
        hecho = Restar(a, b, r, turno);
    }
    EXPECT_TRUE(hecho);
    return Apuestas(r);
}

constexpr std::array Todas{OperacionLiteral::Ordenar, OperacionLiteral::OrdenarAlReves, OperacionLiteral::Sumar,
                           OperacionLiteral::Unir,    OperacionLiteral::Comunes,        OperacionLiteral::Restar};

const Turno Seguir = [] { return true; };

} // namespace

TEST(OperacionesSistemas, ComoLosPasosLiterales) {
    std::mt19937 azar(5);
    struct Caso {
        size_t n1, n2;
        int32_t distintas;
    };
    // Empty systems, one bet, the same few again and again, all different, more than one turn's worth.
    for (const Caso& caso : {Caso{0, 0, 9},
                             {0, 5, 9},
                             {5, 0, 9},
                             {1, 1, 1},
                             {300, 200, 40},
                             {1000, 1500, 2},
                             {700, 900, 13983816},
                             {40000, 33000, 50000}}) {
        const Sistema s1 = AlAzar(azar, caso.n1, caso.distintas), s2 = AlAzar(azar, caso.n2, caso.distintas);
        for (const OperacionLiteral que : Todas) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(que) << ": " << caso.n1 << ", " << caso.n2);
            EXPECT_TRUE(Operar(que, s1, s2, Seguir) == AlgebraLiteral(que, s1, s2));
            EXPECT_TRUE(Operar(que, s1, s1, Seguir) == AlgebraLiteral(que, s1, s1));
        }
    }
}

TEST(OperacionesSistemas, LaInterseccionEsUnaCuenta) {
    const Apuesta a = ApuestaDe(1), b = ApuestaDe(64), c = ApuestaDe(128), d = ApuestaDe(ApuestasMaximas);
    // a: once in each. b: often in 1, twice in 2. c: twice in 2 alone. d: often in 1, once in 2.
    EXPECT_EQ(Operar(OperacionLiteral::Comunes, {a, b, b, d, d, d}, {c, b, a, c, b, d}, Seguir), (Sistema{a, c, d}));
}

TEST(OperacionesSistemas, UnaApuestaMasVecesDeLasQueCabenEnUnByte) {
    for (const size_t veces : {255u, 256u, 257u, 70000u}) {
        Sistema s(veces, ApuestaDe(7));
        s.push_back(ApuestaDe(6));
        s.insert(s.end(), 300, ApuestaDe(ApuestasMaximas));
        const Sistema arriba = Operar(OperacionLiteral::Ordenar, s, {}, Seguir);
        EXPECT_TRUE(arriba == AlgebraLiteral(OperacionLiteral::Ordenar, s, {})) << veces;
        EXPECT_TRUE(Operar(OperacionLiteral::OrdenarAlReves, s, {}, Seguir) == Sistema(arriba.rbegin(), arriba.rend()));
    }
}

TEST(OperacionesSistemas, SeDetienenEnCualquierTurno) {
    std::mt19937 azar(6);
    const Tabla a = TablaDe(AlAzar(azar, 40000, 50000)), b = TablaDe(AlAzar(azar, 20000, 50000));
    const std::vector<std::function<bool(Tabla&, const Turno&)>> operaciones{
        [&](Tabla& r, const Turno& t) { return OrdenarSistema(a, false, r, t); },
        [&](Tabla& r, const Turno& t) { return SumarDirecto(a, b, r, t); },
        [&](Tabla& r, const Turno& t) { return SumarSinRepetidas(a, b, r, t); },
        [&](Tabla& r, const Turno& t) { return Intersecar(a, b, r, t); },
        [&](Tabla& r, const Turno& t) { return Restar(a, b, r, t); },
    };
    for (const auto& operar : operaciones) {
        int turnos = 0;
        Tabla r;
        ASSERT_TRUE(operar(r, [&] { return ++turnos > 0; }));
        EXPECT_GT(turnos, 3);
        for (int parada = 1; parada <= turnos; ++parada) {
            int van = 0;
            EXPECT_FALSE(operar(r, [&] { return ++van < parada; }));
            EXPECT_EQ(van, parada);
        }
    }
}
