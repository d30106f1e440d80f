#include "CalcularSistema.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <set>

#include "AsignarReintegros.h"
#include "Guion.h"
#include "Sesiones.h"
#include "TablaFiltros.h"

namespace {

std::vector<int> Digitos(const EstadoTrabajo& trabajo) {
    std::vector<int> digitos;
    for (int64_t i = 1; i <= trabajo.ApuestasReducidas.Apuestas(); ++i)
        digitos.push_back(trabajo.ApuestasReducidas(7, i));
    return digitos;
}

FilaFiltro& Fila(Guion& guion, int k) {
    return guion.sesion.condiciones.lstFiltros[static_cast<size_t>(k)];
}

// Leaves nine of ten bets of a base of 1 to 10: those whose sum is not 21.
void PonerSumas(Guion& guion, int16_t minimo, int16_t maximo) {
    guion.sesion.condiciones.SUMAS.intervalos[0] = {minimo, maximo};
    Fila(guion, kSUMAS).Activo = true;
}

void Importar(Guion& guion, const std::vector<Apuesta>& apuestas) {
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    trabajo.txtFicheroASCII = "/tmp/apuestas.TOM";
    trabajo.NApuestasImportadas = static_cast<int32_t>(apuestas.size());
    trabajo.ApuestasImportadas.Dimensionar(7, trabajo.NApuestasImportadas);
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (size_t r = 0; r < 7; ++r) {
            const auto valor = static_cast<uint8_t>(apuestas[i][r]);
            trabajo.ApuestasImportadas(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = valor;
            if (r < 6) trabajo.lblNumero[valor] = true;
        }
}

} // namespace

TEST(CalcularSistema, SinCondicionesElSistemaEsLaExpansionEnOrden) {
    Guion guion;
    guion.Marcar({3, 7, 9, 15, 22, 40, 41});
    guion.MarcarDigitos({4});
    guion.sesion.trabajo.CombinacionGuardada = true;
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    const EstadoTrabajo& trabajo = guion.sesion.trabajo;
    EXPECT_EQ(Apuestas(trabajo.ApuestasReducidas, 7), (std::vector<Apuesta>{{3, 7, 9, 15, 22, 40, 4},
                                                                            {3, 7, 9, 15, 22, 41, 4},
                                                                            {3, 7, 9, 15, 40, 41, 4},
                                                                            {3, 7, 9, 22, 40, 41, 4},
                                                                            {3, 7, 15, 22, 40, 41, 4},
                                                                            {3, 9, 15, 22, 40, 41, 4},
                                                                            {7, 9, 15, 22, 40, 41, 4}}));
    EXPECT_EQ(trabajo.Contador.Reducidas, 7);
    EXPECT_TRUE(trabajo.SinEliminadas);
    EXPECT_FALSE(trabajo.CombinacionGuardada);
    EXPECT_FALSE(trabajo.EstadoCalculando);
    EXPECT_FALSE(trabajo.FormularioBloqueado);
}

TEST(CalcularSistema, LoQueLaDetieneAntesDeEmpezar) {
    const std::string pregunta = "[?] Está activado el filtro 'SORTEOS ANTERIORES'. Este filtro puede retardar "
                                 "considerablemente el proceso de cálculo en caso de tratar muchas apuestas en muchos "
                                 "sorteos. Se puede consultar una tabla de tiempos aproximados en la información de la "
                                 "condición. ¿ Desea continuar ?";
    {
        Guion guion; // five numbers stop even an imported base
        Importar(guion, {{1, 2, 3, 4, 5, 6, 0}});
        guion.sesion.trabajo.lblNumero[6] = false;
        EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
        EXPECT_EQ(guion.Cajas, Textos{"[!] AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS"});
    }
    {
        Guion guion;
        guion.MarcarHasta(7);
        EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
        EXPECT_EQ(guion.Cajas, Textos{"[!] AVISO: Hay que seleccionar mínimo 1 reintegro"});
    }
    for (const bool si : {false, true}) {
        Guion guion;
        guion.MarcarHasta(7);
        guion.MarcarDigitos({1});
        Fila(guion, kSORTEOSANTERIORES).Activo = true;
        guion.Respuestas = {si};
        EXPECT_EQ(CalcularSistema(guion.sesion, guion.entorno), si);
        EXPECT_EQ(guion.Cajas, Textos{pregunta + (si ? " -> sí" : " -> no")});
    }
}

TEST(CalcularSistema, LasCondicionesSeCuentanPorFila) {
    Guion guion;
    guion.MarcarHasta(10);
    guion.MarcarDigitos({3, 7});
    guion.sesion.trabajo.cboTipoReintegro = Secuenciales;
    PonerSumas(guion, 22, 279);                                 // eliminates 1-6
    guion.sesion.condiciones.DISTANCIAS.Distancia[5] = {6, 48}; // an earlier row: eliminates the five runs of six
    Fila(guion, kDISTANCIAS).Activo = true;
    Fila(guion, kPARESIMPARES).Activo = true; // on, with nothing chosen
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    const EstadoTrabajo& trabajo = guion.sesion.trabajo;
    EXPECT_EQ(trabajo.Contador.Iniciales, 210);
    EXPECT_EQ(trabajo.Contador.Condicionadas, 205);
    EXPECT_EQ(Fila(guion, kDISTANCIAS).Eliminadas, 5);
    EXPECT_EQ(Fila(guion, kSUMAS).Eliminadas, 0) << "1-6 fell to the earlier row";
    EXPECT_EQ(Fila(guion, kPARESIMPARES).Eliminadas, 0);
    EXPECT_FALSE(Fila(guion, kDECENAS).Eliminadas.has_value());
    EXPECT_FALSE(trabajo.SinEliminadas);
    EXPECT_EQ(Apuestas(trabajo.ApuestasCondicionadas)[0], (Apuesta{1, 2, 3, 4, 5, 7}));
    const auto digitos = Digitos(trabajo);
    ASSERT_EQ(digitos.size(), 205u);
    EXPECT_EQ(std::vector(digitos.begin(), digitos.begin() + 4), (std::vector{3, 7, 3, 7}));
}

TEST(CalcularSistema, CeroSupervivientesDejaElSistemaAnterior) {
    Guion guion;
    guion.MarcarHasta(7);
    guion.MarcarDigitos({0});
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    PonerSumas(guion, 279, 279);
    EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(guion.Cajas,
              Textos{"[X] ERROR: Se han generado 0 apuestas después de condicionar, cambie las condiciones"});
    EXPECT_EQ(guion.sesion.trabajo.Contador.Condicionadas, 0);
    EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, 0);
    EXPECT_EQ(guion.sesion.trabajo.ApuestasReducidas.Apuestas(), 7);
    EXPECT_FALSE(guion.sesion.trabajo.EstadoCalculando);
}

TEST(CalcularSistema, EURODREAMSApagaLoQueNoTieneYAsiQueda) {
    Guion guion;
    CambiarJuego(guion.sesion, EURODREAMS);
    guion.MarcarHasta(8);
    guion.MarcarDigitos({5});
    for (int k = 0; k < NFiltros; ++k) Fila(guion, k).Activo = k != kSORTEOSANTERIORES;
    guion.sesion.condiciones.HOMOLOGOS.HomologosAcertados[6] = 1; // would eliminate everything
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, 28);
    for (int k = 0; k < NFiltros; ++k)
        EXPECT_EQ(Fila(guion, k).Activo, k != 5 && k != 14 && (k < 11 || k > 13) && k != 17) << k;
    EXPECT_EQ(guion.sesion.condiciones.HOMOLOGOS.HomologosAcertados[6], 1);
}

TEST(CalcularSistema, ElSistemaImportadoGuardaSuOrdenYSusDigitos) {
    const std::vector<Apuesta> fichero{{4, 9, 20, 31, 40, 49, 7}, {1, 2, 3, 4, 5, 6, 2}, {4, 9, 20, 31, 40, 49, 1}};
    for (const int juego : {BONOLOTO, PRIMITIVA}) {
        Guion guion;
        CambiarJuego(guion.sesion, juego);
        Importar(guion, fichero);
        guion.MarcarDigitos({8});
        ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
        EXPECT_EQ(Apuestas(guion.sesion.trabajo.ApuestasReducidas), Apuestas(guion.sesion.trabajo.ApuestasImportadas));
        EXPECT_EQ(Digitos(guion.sesion.trabajo), (juego == BONOLOTO ? std::vector{7, 2, 1} : std::vector{8, 8, 8}));
        EXPECT_FALSE(guion.sesion.trabajo.SinEliminadas) << "an imported system is never the whole of anything";
    }
    Guion guion;
    Importar(guion, fichero);
    guion.sesion.trabajo.txtFicheroASCII = "  ";
    EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR: NO HAY NINGUN FICHERO ASCII CARGADO"});
}

TEST(CalcularSistema, BloqueadaYConSuTextoMientrasFiltra) {
    Guion guion;
    guion.MarcarHasta(20);
    guion.MarcarDigitos({1});
    PonerSumas(guion, 100, 150);
    std::string progreso;
    bool bloqueada = false, calculando = false;
    // 38760 bets: one turn at the start, 77 of the expansion, then one each 4000 bets of the filter.
    guion.EnTurno(1 + 77 + 1, [&] {
        progreso = guion.sesion.trabajo.Contador.Progreso;
        bloqueada = guion.sesion.trabajo.FormularioBloqueado;
        calculando = guion.sesion.trabajo.EstadoCalculando;
    });
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(progreso, "Fil. Sumas");
    EXPECT_TRUE(bloqueada);
    EXPECT_TRUE(calculando);
    EXPECT_EQ(guion.Turnos, 1 + 77 + 9);
    EXPECT_TRUE(guion.sesion.trabajo.Contador.Progreso.empty());
}

// The address sanitizer maps memory of its own, which the limit would hit first.
#ifndef __SANITIZE_ADDRESS__
TEST(CalcularSistema, SinMemoriaAvisaYDesbloquea) {
    Guion guion;
    guion.MarcarHasta(49);
    guion.MarcarDigitos({1});
    rlimit antes{};
    getrlimit(RLIMIT_AS, &antes);
    // The expansion starts from a hook, so that only the calculation meets the limit.
    guion.EnTurno(1, [&] {
        const rlimit justo{64 << 20, antes.rlim_max};
        setrlimit(RLIMIT_AS, &justo);
    });
    const bool hecho = CalcularSistema(guion.sesion, guion.entorno);
    setrlimit(RLIMIT_AS, &antes);
    EXPECT_FALSE(hecho);
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR: no hay memoria suficiente"});
    EXPECT_FALSE(guion.sesion.trabajo.EstadoCalculando);
    EXPECT_FALSE(guion.sesion.trabajo.FormularioBloqueado);
    EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, 0);
}
#endif

TEST(AsignarReintegros, LosTresModos) {
    struct Caso {
        int modo, base;
        std::initializer_list<int> digitos;
        bool alternan;
        size_t distintos;
    };
    for (const Caso& caso : {Caso{AlDirecto, 0, {6}, false, 1}, Caso{Secuenciales, 0, {0, 4, 9}, true, 3},
                             Caso{Aleatorios, 0, {0, 4, 9}, false, 3}, Caso{Aleatorios, 0, {5}, false, 1},
                             Caso{AlDirecto, PronosticoDesdeArchivo, {0, 4, 9}, false, 3}}) {
        Guion guion;
        EstadoTrabajo& trabajo = guion.sesion.trabajo;
        trabajo.cboTipoReintegro = caso.modo;
        trabajo.cboTipoCombinacion = caso.base;
        guion.MarcarDigitos(caso.digitos);
        trabajo.ApuestasReducidas.Dimensionar(7, 300);
        trabajo.Contador.Reducidas = 300;
        AsignarReintegros(trabajo);
        const auto digitos = Digitos(trabajo);
        std::set<int> vistos(digitos.begin(), digitos.end());
        EXPECT_EQ(vistos.size(), caso.distintos);
        for (const int d : vistos)
            EXPECT_TRUE(std::find(caso.digitos.begin(), caso.digitos.end(), d) != caso.digitos.end());
        for (size_t i = 0; caso.alternan && i + 3 < digitos.size(); ++i) EXPECT_EQ(digitos[i], digitos[i + 3]);
        AsignarReintegros(trabajo);
        EXPECT_EQ(Digitos(trabajo), digitos) << "the same marks give the same digits";
    }
    Guion guion;
    guion.MarcarDigitos({3});
    guion.sesion.trabajo.ApuestasReducidas.Dimensionar(7, 5);
    AsignarReintegros(guion.sesion.trabajo);
    EXPECT_EQ(guion.sesion.trabajo.ApuestasReducidas(7, 1), 0) << "no system, no digits";
}
