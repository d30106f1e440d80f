// The evaluators of groups, positions, marks and profitability.
#include <cmath>

#include <gtest/gtest.h>

#include "Boleto.h"
#include "CasosFiltros.h"
#include "Evaluadores.h"
#include "FiltrosDeBloquesLiterales.h"
#include "Guion.h"

namespace {

class EvaluadoresDeBloques : public testing::TestWithParam<CasoEvaluador> {};

} // namespace

TEST_P(EvaluadoresDeBloques, ComoLosLiterales) {
    CompararConLiteral(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, EvaluadoresDeBloques, testing::ValuesIn(CasosDeBloques()),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

TEST_P(EvaluadoresDeBloques, SinParametrosNoEliminan) {
    Guion guion;
    guion.PonerApuestas({{1, 2, 3, 4, 5, 6}, {9, 19, 29, 39, 48, 49}, {10, 11, 20, 30, 40, 41}});
    EXPECT_EQ(GetParam().rapido(guion.sesion, guion.entorno), 0);
}

TEST(EvaluadoresDeBloquesUnoAUno, CedenElTurnoCadaCuatroMil) {
    for (const int32_t apuestas : {3999, 4000, 12001}) {
        Guion guion;
        guion.PonerApuestas(std::vector<Apuesta>(static_cast<size_t>(apuestas), {1, 2, 3, 4, 5, 6}));
        Condiciones& c = guion.sesion.condiciones;
        for (size_t g = 0; g < 20; ++g) {
            c.GRUPOS.grupo[g].numeros[g + 1] = c.GRUPOSENTRELIMITES.grupo[g].numeros[g + 1] = 1;
            c.GRUPOSRELACIONADOS.subgrupos[g][g + 1] = 1;
        }
        c.POSICIONES.Bola[2][3] = c.COEFICIENTERENTABILIDAD.RangosCR[10] = 1;
        c.VALORACIONES.grupo[0].intervalos[0] = c.VALORACIONES.grupo[9].intervalos[3] = {0, 9};
        for (const CasoEvaluador& caso : CasosDeBloques()) {
            guion.Turnos = 0;
            caso.rapido(guion.sesion, guion.entorno);
            EXPECT_EQ(guion.Turnos, apuestas / 4000) << caso.nombre;
        }
    }
}

namespace {

void Marcar(MarcasNumeros& marcas, int desde, int hasta) {
    for (int n = desde; n <= hasta; ++n) marcas[static_cast<size_t>(n)] = 1;
}

GrupoNumeros& GrupoHastaDiez(Condiciones& c, std::initializer_list<size_t> aciertos) {
    GrupoNumeros& grupo = c.GRUPOS.grupo[209];
    Marcar(grupo.numeros, 1, 10);
    for (const size_t h : aciertos) grupo.aciertos[h] = 1;
    return grupo;
}

// Groups of 1 to 10 and of 41 to 49, two hits each.
void DosGrupos(Condiciones& c, int32_t minimo, int32_t maximo) {
    RegistroGRUPOSENTRELIMITES& limites = c.GRUPOSENTRELIMITES;
    Marcar(limites.grupo[0].numeros, 1, 10);
    Marcar(limites.grupo[9].numeros, 41, 49);
    for (const size_t g : {0u, 9u}) {
        c.GRUPOS.grupo[g].numeros = limites.grupo[g].numeros;
        c.GRUPOS.grupo[g].aciertos[2] = limites.grupo[g].aciertos[2] = 1;
    }
    limites.aciertosMinimoGRUPOSENTRELIMITES = minimo;
    limites.aciertosMaximoGRUPOSENTRELIMITES = maximo;
}

// Subgroups 1 to 3 and 4 to 6.
void DosSubgrupos(Condiciones& c, std::initializer_list<size_t> condiciones) {
    Marcar(c.GRUPOSRELACIONADOS.subgrupos[0], 1, 3);
    Marcar(c.GRUPOSRELACIONADOS.subgrupos[1], 4, 6);
    size_t fila = 0;
    for (const size_t h : condiciones) c.GRUPOSRELACIONADOS.condiciones[fila++][h] = 1;
}

// One number to each table has a percentage, so that the coefficient is the ratio of both.
void Cociente(Condiciones& c, double apostado, double real, size_t clase) {
    c.COEFICIENTERENTABILIDAD.PorcentajesApostados.fill(0);
    c.COEFICIENTERENTABILIDAD.PorcentajesReales.fill(0);
    c.COEFICIENTERENTABILIDAD.PorcentajesApostados[1] = apostado;
    c.COEFICIENTERENTABILIDAD.PorcentajesReales[1] = real;
    c.COEFICIENTERENTABILIDAD.RangosCR[clase] = 1;
}

struct Ejemplo {
    const char* que;
    Evaluador filtrar;
    void (*elegir)(Condiciones&);
    Apuesta apuesta;
    bool queda;
};

const Ejemplo Ejemplos[] = {
    {"two of ten", FiltrarGRUPOS, [](Condiciones& c) { GrupoHastaDiez(c, {2}); }, {1, 10, 11, 12, 13, 14}, true},
    {"three of ten", FiltrarGRUPOS, [](Condiciones& c) { GrupoHastaDiez(c, {2}); }, {1, 2, 3, 12, 13, 14}, false},
    {"none of ten", FiltrarGRUPOS, [](Condiciones& c) { GrupoHastaDiez(c, {0}); }, {11, 12, 13, 14, 15, 49}, true},
    {"no hits chosen", FiltrarGRUPOS, [](Condiciones& c) { GrupoHastaDiez(c, {}); }, {1, 2, 3, 4, 5, 6}, false},
    {"first two rows count",
     FiltrarGRUPOS,
     [](Condiciones& c) { GrupoHastaDiez(c, {2}).posiciones = {1, 1, 0, 0, 0, 0}; },
     {1, 2, 3, 4, 5, 6},
     true},
    {"both groups hold", FiltrarGRUPOS, [](Condiciones& c) { DosGrupos(c, 0, 210); }, {1, 2, 20, 21, 41, 42}, true},
    {"one group holds", FiltrarGRUPOS, [](Condiciones& c) { DosGrupos(c, 0, 210); }, {1, 2, 20, 21, 22, 42}, false},
    {"one of two", FiltrarGRUPOSENTRELIMITES, [](Condiciones& c) { DosGrupos(c, 1, 2); }, {1, 2, 3, 4, 41, 42}, true},
    {"none of two", FiltrarGRUPOSENTRELIMITES, [](Condiciones& c) { DosGrupos(c, 1, 2); }, {1, 2, 3, 4, 5, 42}, false},
    {"both, one at most",
     FiltrarGRUPOSENTRELIMITES,
     [](Condiciones& c) { DosGrupos(c, 0, 1); },
     {1, 2, 20, 21, 41, 42},
     false},
    {"no groups but a minimum",
     FiltrarGRUPOSENTRELIMITES,
     [](Condiciones& c) { c.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES = 1; },
     {1, 2, 3, 4, 5, 6},
     false},
    {"negative maximum",
     FiltrarGRUPOSENTRELIMITES,
     [](Condiciones& c) { c.GRUPOSENTRELIMITES.aciertosMaximoGRUPOSENTRELIMITES = -1; },
     {1, 2, 3, 4, 5, 6},
     false},
    {"1 in ball 1", FiltrarPOSICIONES, [](Condiciones& c) { c.POSICIONES.Bola[0][1] = 1; }, {1, 2, 3, 4, 5, 6}, true},
    {"no 1 in ball 2",
     FiltrarPOSICIONES,
     [](Condiciones& c) { c.POSICIONES.Bola[1][1] = 1; },
     {1, 2, 3, 4, 5, 6},
     false},
    {"2 and 1",
     FiltrarGRUPOSRELACIONADOS,
     [](Condiciones& c) {
         DosSubgrupos(c, {2, 1});
     },
     {1, 2, 4, 10, 20, 30},
     true},
    {"1 and 2",
     FiltrarGRUPOSRELACIONADOS,
     [](Condiciones& c) {
         DosSubgrupos(c, {2, 1});
     },
     {1, 4, 5, 10, 20, 30},
     true},
    {"3 and 0",
     FiltrarGRUPOSRELACIONADOS,
     [](Condiciones& c) {
         DosSubgrupos(c, {2, 1});
     },
     {1, 2, 3, 10, 20, 30},
     false},
    {"one hit for two conditions",
     FiltrarGRUPOSRELACIONADOS,
     [](Condiciones& c) {
         DosSubgrupos(c, {1, 1});
     },
     {1, 10, 20, 30, 40, 49},
     false},
    {"more conditions than subgroups",
     FiltrarGRUPOSRELACIONADOS,
     [](Condiciones& c) {
         DosSubgrupos(c, {0, 0, 0});
     },
     {10, 20, 30, 40, 41, 42},
     false},
    {"no condition", FiltrarGRUPOSRELACIONADOS, [](Condiciones& c) { DosSubgrupos(c, {}); }, {1, 2, 4, 5, 7, 8}, false},
    {"no mark among the numbers",
     FiltrarVALORACIONES,
     [](Condiciones& c) {
         c.VALORACIONES.grupo[3].valoraciones[7] = 40;
         c.VALORACIONES.grupo[3].intervalos[1] = {1, 100};
     },
     {1, 2, 3, 4, 5, 6},
     false},
    {"a mark within",
     FiltrarVALORACIONES,
     [](Condiciones& c) {
         c.VALORACIONES.grupo[3].valoraciones[6] = 40;
         c.VALORACIONES.grupo[3].intervalos[1] = {1, 100};
     },
     {1, 2, 3, 4, 5, 6},
     true},
    {"six marks of a hundred",
     FiltrarVALORACIONES,
     [](Condiciones& c) {
         c.VALORACIONES.grupo[0].valoraciones.fill(100);
         c.VALORACIONES.grupo[0].intervalos[0] = {600, 600};
     },
     {1, 2, 3, 4, 5, 6},
     true},
    {"sum beyond 16 bits",
     FiltrarVALORACIONES,
     [](Condiciones& c) {
         c.VALORACIONES.grupo[0].valoraciones.fill(32767);
         c.VALORACIONES.grupo[0].intervalos[0] = {-32768, 32767};
     },
     {1, 2, 3, 4, 5, 6},
     false},
    {"0.25", FiltrarCOEFICIENTERENTABILIDAD, [](Condiciones& c) { Cociente(c, 40, 10, 2); }, {1, 2, 3, 4, 5, 6}, true},
    {"0.35", FiltrarCOEFICIENTERENTABILIDAD, [](Condiciones& c) { Cociente(c, 40, 14, 4); }, {1, 2, 3, 4, 5, 6}, true},
    {"9.85",
     FiltrarCOEFICIENTERENTABILIDAD,
     [](Condiciones& c) { Cociente(c, 1, 9.86, 99); },
     {1, 2, 3, 4, 5, 6},
     true},
    {"500", FiltrarCOEFICIENTERENTABILIDAD, [](Condiciones& c) { Cociente(c, 1, 500, 99); }, {1, 2, 3, 4, 5, 6}, true},
    {"product of 0",
     FiltrarCOEFICIENTERENTABILIDAD,
     [](Condiciones& c) { Cociente(c, 1e-13, 1e-13, 99); },
     {1, 2, 3, 4, 5, 6},
     true},
    {"no percentages at all",
     FiltrarCOEFICIENTERENTABILIDAD,
     [](Condiciones& c) { Cociente(c, 0, 0, 10); },
     {1, 2, 3, 4, 5, 6},
     true},
    {"beyond all doubles",
     FiltrarCOEFICIENTERENTABILIDAD,
     [](Condiciones& c) {
         c.COEFICIENTERENTABILIDAD.PorcentajesApostados.fill(1e300);
         c.COEFICIENTERENTABILIDAD.PorcentajesReales.fill(1e300);
         c.COEFICIENTERENTABILIDAD.RangosCR[99] = 1;
     },
     {1, 2, 3, 4, 5, 6},
     true},
    {"flag 100 alone",
     FiltrarCOEFICIENTERENTABILIDAD,
     [](Condiciones& c) { c.COEFICIENTERENTABILIDAD.RangosCR[100] = 1; },
     {1, 2, 3, 4, 5, 6},
     false},
};

} // namespace

TEST(EvaluadoresDeBloquesUnoAUno, Ejemplos) {
    for (const Ejemplo& ejemplo : Ejemplos) {
        Guion guion;
        guion.PonerApuestas({ejemplo.apuesta});
        ejemplo.elegir(guion.sesion.condiciones);
        EXPECT_EQ(ejemplo.filtrar(guion.sesion, guion.entorno), !ejemplo.queda) << ejemplo.que;
        EXPECT_EQ(guion.sesion.trabajo.ApuestaEliminada(1, 1), !ejemplo.queda) << ejemplo.que;
    }
}

// Bets whose coefficient lies on the edge between two classes, or one double beside it.
TEST(EvaluadoresDeBloquesUnoAUno, CoeficientesEnElBordeDeCadaClase) {
    for (int clase = 0; clase < 99; ++clase) {
        Guion guion;
        guion.PonerApuestas({{1, 45, 46, 47, 48, 49}, {2, 45, 46, 47, 48, 49}, {3, 45, 46, 47, 48, 49}});
        auto& registro = guion.sesion.condiciones.COEFICIENTERENTABILIDAD;
        registro.PorcentajesApostados.fill(40);
        registro.PorcentajesReales.fill(40);
        const double borde = 4 * (clase + 0.5);
        registro.PorcentajesReales[1] = std::nextafter(borde, 0);
        registro.PorcentajesReales[2] = borde;
        registro.PorcentajesReales[3] = std::nextafter(borde, 1000);
        for (size_t i = 1; i < 100; i += 2) registro.RangosCR[i] = 1;
        Sesion literal = guion.sesion;
        EXPECT_EQ(FiltrarCOEFICIENTERENTABILIDAD(guion.sesion, guion.entorno), LiteralCOEFICIENTERENTABILIDAD(literal));
        EXPECT_EQ(guion.sesion.trabajo.ApuestaEliminada, literal.trabajo.ApuestaEliminada) << clase;
    }
}
