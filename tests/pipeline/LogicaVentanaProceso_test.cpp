// The process window and what the calculation makes of it: counters, stops, boxes, exact counts, report.
#include "LogicaVentanaProceso.h"

#include <algorithm>
#include <new>
#include <set>

#include <gtest/gtest.h>

#include "CalcularSistema.h"
#include "Guion.h"

namespace {

AjustesReduccion Ajustes(int16_t tipo, bool ciclos) {
    AjustesReduccion ajustes;
    ajustes.TipoReduccion = tipo;
    ajustes.ActivarCiclos = ciclos;
    return ajustes;
}

AjustesReduccion Exactas(int16_t tipo, int32_t n) {
    AjustesReduccion ajustes = Ajustes(tipo, false);
    ajustes.ApuestasExactas = 1;
    ajustes.NApuestasExactas = n;
    return ajustes;
}

// A base of 1 to n with the digit 5, ready to be reduced.
void Preparar(Guion& guion, int n, const AjustesReduccion& ajustes) {
    guion.MarcarHasta(n);
    guion.MarcarDigitos({5});
    guion.sesion.trabajo.Reduccion = ajustes;
    guion.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
}

// Bets that fall with a sum other than 21 to 90, so that the system is not complete.
void Condicionar(Guion& guion) {
    guion.sesion.condiciones.SUMAS.intervalos[0] = {21, 36};
    guion.sesion.condiciones.lstFiltros[8].Activo = true;
}

std::set<Apuesta> Conjunto(const Tabla& tabla) {
    const auto apuestas = Apuestas(tabla);
    return {apuestas.begin(), apuestas.end()};
}

// The conditioned bets in real numbers; the base is 1 to n, so positions are numbers.
std::set<Apuesta> Condicionadas(const Guion& guion) {
    return Conjunto(guion.sesion.trabajo.ApuestasCondicionadas);
}

} // namespace

TEST(CalcularConReduccion, DejaElSistemaLosContadoresYLosDigitos) {
    Guion guion;
    Preparar(guion, 12, Ajustes(2, true));
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    const EstadoTrabajo& trabajo = guion.sesion.trabajo;
    EXPECT_EQ(trabajo.Contador.Iniciales, 924);
    EXPECT_EQ(trabajo.Contador.Condicionadas, 924);
    EXPECT_EQ(trabajo.Contador.Reducidas, trabajo.ApuestasReducidas.Apuestas());
    EXPECT_LT(trabajo.Contador.Reducidas, 10);
    for (const Apuesta& a : Apuestas(trabajo.ApuestasReducidas, 7)) EXPECT_EQ(a[6], 5);
    EXPECT_FALSE(trabajo.EstadoCalculando);
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST(CalcularConReduccion, SinNadaQueReducirLaVentanaNoSeAbre) {
    Guion guion;
    Preparar(guion, 8, AjustesReduccion{});
    guion.entorno.MostrarVentanaProceso = [](LogicaVentanaProceso&) { FAIL() << "the window opened"; };
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, 28);
}

TEST(CalcularConReduccion, SinVentanaNoHaySistema) {
    Guion guion;
    Preparar(guion, 8, Ajustes(1, false));
    guion.entorno.MostrarVentanaProceso = Entorno{}.MostrarVentanaProceso;
    EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, 0);
    EXPECT_FALSE(guion.sesion.trabajo.EstadoCalculando);
}

TEST(CalcularConReduccion, PedirMasApuestasQueSupervivientes) {
    Guion guion;
    Preparar(guion, 8, Exactas(1, 29));
    EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(guion.Cajas,
              Textos{"[X] ERROR: Ha elegido reducir con la opción 'Número Exacto de Apuestas' y dicho número supera "
                     "el sistema final condicionado, cambie el número de apuestas pedidas al reducir"});
    EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, 0);
}

TEST(CalcularConReduccion, ElCalculoDefinitivoGrabaAlTerminar) {
    Guion guion;
    const CarpetaTemporal carpeta;
    Preparar(guion, 10, Ajustes(1, false));
    guion.Ficheros = {carpeta.Ruta("sistema.TOM")};
    guion.entorno.MostrarVentanaProceso = [](LogicaVentanaProceso& ventana) {
        ventana.Activar();
        EXPECT_FALSE(ventana.PuedeCerrar());
        ventana.CalculoDefinitivo();
        EXPECT_TRUE(ventana.PuedeCerrar());
    };
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_FALSE(guion.sesion.trabajo.chkGuardarAutomaticamente);
    EXPECT_TRUE(std::filesystem::exists(carpeta.Ruta("sistema.TOM")));
    EXPECT_TRUE(std::filesystem::exists(carpeta.Ruta("sistema.xml")));
}

TEST(CalcularConReduccion, ElAvisoDeGrabarCierraLaVentanaSola) {
    Guion guion;
    Preparar(guion, 8, Ajustes(1, false));
    guion.sesion.trabajo.chkGuardarAutomaticamente = true;
    guion.entorno.MostrarVentanaProceso = [](LogicaVentanaProceso& ventana) {
        ventana.Activar();
        EXPECT_TRUE(ventana.Cerrada);
    };
    CalcularSistema(guion.sesion, guion.entorno); // the chooser of the save is cancelled
}

// A stop at each turn of a run. Before the first system there is none; later the best one stands whole.
TEST(LogicaVentanaProceso, UnaParadaEnCualquierMomentoNoDejaMedioSistema) {
    for (const int16_t tipo : {int16_t{1}, int16_t{2}, int16_t{3}}) {
        bool sinSistema = false, conSistema = false;
        for (int turno = 1; turno < 400; turno += 1 + turno / 8) {
            Guion guion;
            Preparar(guion, 12, Ajustes(tipo, true));
            Condicionar(guion);
            guion.CiclosDeReduccion = 30;
            guion.EnTurno(turno, [&guion] {
                if (guion.Ventana != nullptr) guion.Ventana->Detener();
            });
            const bool hecho = CalcularSistema(guion.sesion, guion.entorno);
            while (guion.Turnos < turno) guion.entorno.CederTurno();
            const EstadoTrabajo& trabajo = guion.sesion.trabajo;
            EXPECT_EQ(hecho, trabajo.Contador.Reducidas > 0);
            EXPECT_EQ(trabajo.ApuestasReducidas.Apuestas(), trabajo.Contador.Reducidas);
            (hecho ? conSistema : sinSistema) = true;
            const auto condicionadas = Condicionadas(guion);
            for (const Apuesta& elegida : Apuestas(trabajo.ApuestasReducidas))
                EXPECT_TRUE(condicionadas.contains(elegida));
            if (!hecho) continue;
            for (const Apuesta& a : condicionadas) {
                const auto cubre = [&](const Apuesta& e) {
                    return std::count_if(a.begin(), a.end(), [&](int x) {
                               return std::find(e.begin(), e.end(), x) != e.end();
                           }) >= 6 - tipo;
                };
                const auto elegidas = Apuestas(trabajo.ApuestasReducidas);
                ASSERT_TRUE(std::any_of(elegidas.begin(), elegidas.end(), cubre));
            }
        }
        EXPECT_TRUE(sinSistema && conSistema) << tipo;
    }
}

TEST(LogicaVentanaProceso, EstadosDeLosBotones) {
    Guion guion;
    Preparar(guion, 10, Ajustes(2, true));
    guion.entorno.MostrarVentanaProceso = [&](LogicaVentanaProceso& ventana) {
        const auto reposo = [&] {
            return !ventana.Corriendo && !ventana.imgDetener && ventana.imgCalcular && ventana.imgVolver &&
                   ventana.imgCalculoDefinitivo && ventana.imgVerPorcentajes && ventana.detener;
        };
        bool corrio = false;
        guion.entorno.CederTurno = [&] {
            if (ventana.CicloActual < 3) return;
            corrio = ventana.Corriendo && ventana.imgDetener && !ventana.imgCalcular && !ventana.imgVolver;
            ventana.Volver(); // refused while it runs
            ventana.Detener();
            EXPECT_FALSE(ventana.imgDetener);
        };
        ventana.Activar();
        EXPECT_TRUE(corrio);
        EXPECT_TRUE(reposo());
        EXPECT_FALSE(ventana.Cerrada);
        EXPECT_EQ(ventana.lblCiclos, "3");
        EXPECT_EQ(ventana.lblDirecto, "En directo");
        EXPECT_EQ(ventana.lblApuestasInicialesVP, "210");
        EXPECT_EQ(ventana.lblApuestasVP, std::to_string(ventana.MejorApuestas));
        const auto primera = Apuestas(guion.sesion.trabajo.ApuestasReducidas);
        ventana.Calcular(); // the same run: without chance it finds the same
        EXPECT_EQ(Apuestas(guion.sesion.trabajo.ApuestasReducidas), primera);
        EXPECT_TRUE(reposo());
        ventana.Volver();
        EXPECT_TRUE(ventana.Cerrada);
    };
    EXPECT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
}

// Memory may run out at any moment: before the first system, or in a later cycle.
TEST(LogicaVentanaProceso, SinMemoriaQuedaLoQueHabia) {
    for (const double ciclo : {0.0, 2.0}) {
        Guion guion;
        Preparar(guion, 10, Ajustes(1, true));
        guion.entorno.MostrarVentanaProceso = [&](LogicaVentanaProceso& ventana) {
            guion.entorno.CederTurno = [&] {
                if (ventana.CicloActual == ciclo && ventana.Corriendo) throw std::bad_alloc();
            };
            ventana.Activar();
            EXPECT_TRUE(!ventana.Corriendo && ventana.imgVolver && !ventana.imgDetener);
        };
        EXPECT_EQ(CalcularSistema(guion.sesion, guion.entorno), ciclo > 0);
        EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR: no hay memoria suficiente"});
        EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, guion.sesion.trabajo.ApuestasReducidas.Apuestas());
        EXPECT_FALSE(guion.sesion.trabajo.EstadoCalculando);
    }
}

TEST(LogicaVentanaProceso, AjustesFueraDeSusLimites) {
    struct {
        int16_t porcentaje;
        int32_t apuestas;
    } const casos[] = {{0, 0}, {101, -4}, {250, 1}};
    for (const auto& caso : casos) {
        Guion guion;
        Preparar(guion, 9, Ajustes(1, false));
        guion.sesion.trabajo.Reduccion.PorcentajeReduccion = caso.porcentaje;
        guion.sesion.trabajo.Reduccion.NApuestasExactas = caso.apuestas;
        ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
        EXPECT_EQ(guion.sesion.trabajo.Reduccion.PorcentajeReduccion, 100);
        EXPECT_EQ(guion.sesion.trabajo.Reduccion.NApuestasExactas, 1);
    }
}

TEST(LogicaVentanaProceso, PorcentajesAntesYDespuesEnElInforme) {
    Guion guion;
    const CarpetaTemporal carpeta;
    guion.entorno.CarpetaInformes = carpeta.Ruta();
    AjustesReduccion ajustes;
    ajustes.ActivarNumeroApuestas = 1; // no kind of reduction: the first bets of the system
    ajustes.NApuestasExactas = 2;
    ajustes.ActivarCiclos = 0;
    Preparar(guion, 7, ajustes);
    guion.entorno.MostrarVentanaProceso = [&](LogicaVentanaProceso& ventana) {
        guion.entorno.CederTurno = [&] {
            EXPECT_EQ(ventana.fraPorcentajes, "Porcentajes ANTES de reducir");
            EXPECT_EQ(ventana.lblN[7], "86%"); // six of seven
        };
        ventana.Activar();
        EXPECT_EQ(ventana.fraPorcentajes, "Porcentajes DESPUES de reducir");
        EXPECT_EQ(ventana.lblN[6], "50%");
        EXPECT_EQ(ventana.lblN[8], "0 %");
        EXPECT_TRUE(ventana.lblNConApuestas[1] && !ventana.lblNConApuestas[8]);
        ventana.VerPorcentajes();
    };
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    const std::string informe = LeerTodo(carpeta.Ruta("TOMBOLERA_ANALISIS.txt"));
    EXPECT_EQ(guion.Informes, Textos{carpeta.Ruta() + "/TOMBOLERA_ANALISIS.txt"});
    EXPECT_TRUE(informe.starts_with("TOMBOLERA Porcentajes DESPUES de reducir:\r\n\r\nNUMEROS\r\n\r\n"
                                    "            10 0 %      20 0 %      30 0 %      40 0 %\r\n"
                                    "1 100%      11 0 %      21 0 %      31 0 %      41 0 %\r\n"))
        << informe;
    EXPECT_TRUE(informe.ends_with("9 0 %       19 0 %      29 0 %      39 0 %      49 0 %\r\n")) << informe;
}

TEST(AjustarApuestasExactas, AgregaApuestasCondicionadasYSeRepite) {
    std::vector<Apuesta> anterior;
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
        Guion guion;
        Preparar(guion, 11, Exactas(2, 200));
        Condicionar(guion);
        ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
        const auto apuestas = Apuestas(guion.sesion.trabajo.ApuestasReducidas);
        const std::set<Apuesta> distintas(apuestas.begin(), apuestas.end());
        EXPECT_EQ(guion.sesion.trabajo.Contador.Reducidas, 200);
        EXPECT_EQ(distintas.size(), 200u);
        const auto condicionadas = Condicionadas(guion);
        EXPECT_TRUE(std::includes(condicionadas.begin(), condicionadas.end(), distintas.begin(), distintas.end()));
        EXPECT_TRUE(vuelta == 0 || apuestas == anterior);
        anterior = apuestas;

        Guion sinAjuste;
        Preparar(sinAjuste, 11, Ajustes(2, false));
        Condicionar(sinAjuste);
        ASSERT_TRUE(CalcularSistema(sinAjuste.sesion, sinAjuste.entorno));
        const auto reducidas = Apuestas(sinAjuste.sesion.trabajo.ApuestasReducidas);
        EXPECT_TRUE(std::equal(reducidas.begin(), reducidas.end(), apuestas.begin())); // those come first
    }
}

// What is added is a fair draw: each bet left out comes up about as often as any other.
TEST(AjustarApuestasExactas, LaEleccionEsUniforme) {
    Guion guion;
    Preparar(guion, 7, Exactas(4, 3)); // one bet covers all: two of the other six are added
    guion.sesion.trabajo.Reduccion.Aleatorio = 1;
    std::map<Apuesta, int> veces;
    for (int vuelta = 0; vuelta < 600; ++vuelta) {
        ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
        const auto apuestas = Apuestas(guion.sesion.trabajo.ApuestasReducidas);
        for (size_t i = 1; i < apuestas.size(); ++i) ++veces[apuestas[i]];
    }
    EXPECT_EQ(veces.size(), 6u);
    for (const auto& [apuesta, n] : veces) EXPECT_NEAR(n, 200, 80); // seven standard deviations
}

TEST(AjustarApuestasExactas, QuitaLasUltimas) {
    Guion todas, pocas;
    Preparar(todas, 11, Ajustes(1, false));
    ASSERT_TRUE(CalcularSistema(todas.sesion, todas.entorno));
    Preparar(pocas, 11, Exactas(1, 5));
    ASSERT_TRUE(CalcularSistema(pocas.sesion, pocas.entorno));
    const auto reducidas = Apuestas(todas.sesion.trabajo.ApuestasReducidas);
    EXPECT_EQ(Apuestas(pocas.sesion.trabajo.ApuestasReducidas),
              std::vector<Apuesta>(reducidas.begin(), reducidas.begin() + 5));

    Guion azar;
    Preparar(azar, 11, Exactas(1, 5));
    azar.sesion.trabajo.Reduccion.Aleatorio = 1;
    ASSERT_TRUE(CalcularSistema(azar.sesion, azar.entorno));
    const auto quedan = Conjunto(azar.sesion.trabajo.ApuestasReducidas);
    EXPECT_EQ(quedan.size(), 5u);
    const std::set<Apuesta> de(reducidas.begin(), reducidas.end());
    EXPECT_TRUE(std::includes(de.begin(), de.end(), quedan.begin(), quedan.end()));
}

TEST(AjustarApuestasExactas, TodasLasCondicionadas) {
    Guion guion;
    Preparar(guion, 9, Exactas(3, 84));
    ASSERT_TRUE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(Conjunto(guion.sesion.trabajo.ApuestasReducidas), Condicionadas(guion));
}
