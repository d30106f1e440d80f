#include <cstring>

#include "Evaluadores.h"
#include "FiltroSorteosLiteral.h"
#include "FiltrosLiterales.h"
#include "GarantiasLiteral.h"
#include "GenerarApuestas.h"
#include "LogicaGarantias.h"
#include "LogicaVentanaProceso.h"
#include "Materia.h"
#include "ReduccionLiteral.h"
#include "Reloj.h"
#include "Supervivientes.h"

namespace {

constexpr std::array CincoFiltros{FiltrarALTOSBAJOS, FiltrarDISTANCIAS, FiltrarPARESIMPARES, FiltrarSEGUIDOS,
                                  FiltrarSUMAS};
constexpr std::array CincoLiterales{LiteralALTOSBAJOS, LiteralDISTANCIAS, LiteralPARESIMPARES, LiteralSEGUIDOS,
                                    LiteralSUMAS};

Comparacion DeExpansion(const M& m) {
    const auto plana = [m] {
        Tabla tabla(6, N);
        std::array<uint8_t, 6> a{1, 2, 3, 4, 5, 6};
        for (int64_t b = 1; b <= N; ++b) {
            for (size_t r = 0; r < 6; ++r) tabla(static_cast<int>(r) + 1, b) = a[r];
            size_t r = 6;
            while (r > 0 && a[r - 1] == 43 + r) --r;
            if (r > 0) ++a[r - 1];
            for (; r > 0 && r < 6; ++r) a[r] = static_cast<uint8_t>(a[r - 1] + 1);
        }
    };
    return {"expansion",
            "expansion of the whole ticket",
            [m] {
                GenerarApuestas(m->sesion.trabajo, m->entorno, 6, 6);
                return m->sesion.trabajo.TablaApuestas.Apuestas();
            },
            [] {
                Tabla fresca;
                fresca.DimensionarSinLimpiar(6, N);
                for (int r = 1; r <= 6; ++r) std::memset(fresca.Fila(r), r, size_t{N});
            },
            [plana] {
                return TiempoLiteral{Segundos(plana), ""};
            },
            [m] { m->sesion.trabajo.TablaApuestas.Vaciar(); }};
}

// Some bets of the whole ticket, at random.
void Muestra(const M& m, Sesion& s, int32_t n) {
    s.condiciones = m->sesion.condiciones;
    s.trabajo.NumerosBase = m->sesion.trabajo.NumerosBase;
    s.trabajo.BaseNumeros = m->sesion.trabajo.BaseNumeros;
    s.trabajo.ApuestasEnTabla = n;
    s.trabajo.TablaApuestas = m->todo;
    s.trabajo.TablaApuestas.Acortar(n);
    s.trabajo.ApuestaEliminada.Dimensionar(1, n);
}

// In their order each sees what those before left.
Comparacion DeCondiciones(const M& m) {
    const auto literal = [m] {
        Sesion s;
        Muestra(m, s, 500000);
        return EnProporcion(500000, [&] {
            for (const auto filtrar : CincoLiterales) filtrar(s);
        });
    };
    return {"cinco",
            "five conditions on the whole ticket",
            [m] {
                int64_t quedan = N;
                for (const auto filtrar : CincoFiltros) quedan -= filtrar(m->sesion, m->entorno);
                return quedan;
            },
            [m] { m->LeerTabla(); },
            literal,
            [m] { PrepararEliminadas(m->sesion.trabajo); }};
}

Comparacion DeSorteosAnteriores(const M& m) {
    const auto literal = [m] {
        Sesion s;
        Muestra(m, s, 2000);
        return EnProporcion(2000, [&] { LiteralSORTEOSANTERIORES(s); });
    };
    return {"anteriores",
            "3,000 earlier draws on the whole ticket",
            [m] { return N - FiltrarSORTEOSANTERIORES(m->sesion, m->entorno); },
            [m] { m->LeerTabla(); },
            literal,
            [m] { PrepararEliminadas(m->sesion.trabajo); }};
}

// Every k-th bet of the base as final system.
void PonerSistema(Sesion& s, int32_t apuestas) {
    EstadoTrabajo& t = s.trabajo;
    t.ApuestasReducidas.Dimensionar(7, apuestas);
    for (int32_t i = 1; i <= apuestas; ++i)
        for (int r = 1; r <= 6; ++r)
            t.ApuestasReducidas(r, i) = t.BaseNumeros[t.TablaApuestas(r, int64_t{i} * (t.ApuestasEnTabla / apuestas))];
    t.Contador.Reducidas = apuestas;
}

Comparacion DeGarantias(const M& m) {
    const auto literal = [] {
        Entorno entorno;
        Sesion s;
        Expandir(s, entorno, 18);
        PonerSistema(s, 100);
        TiempoLiteral t = EnProporcion(
            s.trabajo.ApuestasEnTabla,
            [&] { GarantiasLiteral(SubconjuntosLiteral(s.trabajo, 6), s.trabajo.ApuestasReducidas); }, 10);
        t.como = "18,564 draws and 100 bets, in proportion";
        return t;
    };
    const auto sesion = std::make_shared<Sesion>();
    return {"garantias",
            "guarantees of 1,000 bets over all draws",
            [m, sesion] {
                LogicaGarantias garantias(*sesion, m->entorno);
                garantias.Calcular();
                return int64_t{garantias.resultados.tabla.CasosClase[6]};
            },
            [m] { m->LeerTabla(); },
            literal,
            [m, sesion] {
                Expandir(*sesion, m->entorno, 49);
                PonerSistema(*sesion, 1000);
            }};
}

int64_t UnCiclo(Sesion& s, Entorno& entorno, int16_t tipo) {
    s.trabajo.Reduccion.TipoReduccion = tipo;
    LogicaVentanaProceso ventana(s, entorno);
    ventana.TopeCiclos = 1;
    ventana.Activar();
    return s.trabajo.Contador.Reducidas;
}

TiempoLiteral ReducirLiteral(int n, int tipo, int64_t& elegidas) {
    Entorno entorno;
    Sesion s;
    Expandir(s, entorno, n);
    ReduccionLiteral literal;
    literal.n = n;
    literal.TipoReduccion = tipo;
    literal.SinEliminadas = true;
    for (int64_t i = 1; i <= s.trabajo.ApuestasEnTabla; ++i) {
        literal.apuestas.emplace_back();
        for (int r = 1; r <= 6; ++r)
            literal.apuestas.back()[static_cast<size_t>(r - 1)] = s.trabajo.TablaApuestas(r, i);
    }
    const double segundos = Segundos([&] { literal.Reducir(); });
    elegidas = literal.MejorApuestas;
    return {segundos, ""};
}

Comparacion DeReduccion(const M& m, const char* clave, const char* nombre, int n, int16_t tipo) {
    const auto sesion = std::make_shared<Sesion>();
    // A sweep looks at all bets for each one that it takes.
    const auto literal = [m, sesion, n, tipo] {
        int64_t elegidas = 0;
        if (n < 49) return ReducirLiteral(n, tipo, elegidas);
        TiempoLiteral t = ReducirLiteral(30, tipo, elegidas);
        t.segundos *=
            static_cast<double>(N) / 593775 * sesion->trabajo.Contador.Reducidas / static_cast<double>(elegidas);
        t.como = "593,775 bets, in proportion to bets and bets taken";
        return t;
    };
    return {clave,
            nombre,
            [m, sesion, tipo] { return UnCiclo(*sesion, m->entorno, tipo); },
            [m] { m->LeerTabla(); },
            literal,
            [m, sesion, n] {
                Expandir(*sesion, m->entorno, n);
                CopiarSupervivientes(sesion->trabajo);
            }};
}

} // namespace

std::vector<Comparacion> ComparacionesDeCalculo(const M& m) {
    return {DeExpansion(m),
            DeCondiciones(m),
            DeSorteosAnteriores(m),
            DeReduccion(m, "al5", "reduction of 20 numbers al 5, one cycle", 20, 1),
            DeReduccion(m, "al3", "reduction of 49 numbers al 3, one cycle", 49, 3),
            DeGarantias(m)};
}

std::vector<Comparacion> Comparaciones(const std::string& carpeta) {
    const M m = std::make_shared<Materia>(carpeta);
    std::vector<Comparacion> todas = ComparacionesDeCalculo(m);
    for (Comparacion& c : ComparacionesDeHerramientas(m)) todas.push_back(std::move(c));
    return todas;
}
