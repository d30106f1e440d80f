#include <random>
#include <set>

#include <gtest/gtest.h>

#include "EscrutarLiteral.h"
#include "Guion.h"
#include "LogicaEscrutar.h"
#include "Sesiones.h"
#include "Texto8bits.h"
#include "modEncriptarFichero.h"
#include "modGeneral.h"

namespace {

// The window over a final system of these bets, their digit behind.
struct Escrutinio : Guion {
    explicit Escrutinio(int juego = PRIMITIVA, const std::vector<Apuesta>& apuestas = {}) {
        CambiarJuego(sesion, juego);
        entorno.CarpetaInformes = carpeta.Ruta();
        PonerSistema(apuestas);
        logica = std::make_unique<LogicaEscrutar>(sesion, entorno);
        logica->Abrir();
    }

    void PonerSistema(const std::vector<Apuesta>& apuestas) {
        sesion.trabajo.ApuestasReducidas = ComoTabla(apuestas);
        sesion.trabajo.Contador.Reducidas = static_cast<int32_t>(apuestas.size());
    }

    static Tabla ComoTabla(const std::vector<Apuesta>& apuestas) {
        Tabla tabla(7, static_cast<int64_t>(apuestas.size()));
        for (size_t i = 0; i < apuestas.size(); ++i)
            for (size_t r = 0; r < apuestas[i].size(); ++r)
                tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
        return tabla;
    }

    std::string GrabarTom(const std::vector<Apuesta>& apuestas) {
        const std::string ruta = carpeta.Ruta("sistema.TOM");
        GuardarFicheroApuestas(ruta, "0", static_cast<int32_t>(apuestas.size()), ComoTabla(apuestas), nullptr, entorno);
        return ruta;
    }

    void Sortear(std::initializer_list<int> numeros, int complementario = 0) {
        for (const int n : numeros) logica->PulsarNumero(n);
        logica->CambiarComplementario(complementario);
    }

    std::string Informe() const { return Codigo8AUtf8(LeerTodo(carpeta.Ruta("TOMBOLERA_PREMIOS.txt"))); }

    CarpetaTemporal carpeta;
    std::unique_ptr<LogicaEscrutar> logica;
};

// One bet of each category, with the digits that the tests choose by.
const std::vector<Apuesta> UnaDeCada{{1, 2, 3, 4, 5, 6, 3},      {1, 2, 3, 4, 5, 7, 3},     {1, 2, 3, 4, 5, 8, 1},
                                     {1, 2, 3, 4, 8, 9, 3},      {1, 2, 3, 8, 9, 10, 1},    {1, 2, 8, 9, 10, 11, 1},
                                     {1, 8, 9, 10, 11, 12, 2},   {8, 9, 10, 11, 12, 13, 3}, {20, 21, 22, 23, 24, 25, 4},
                                     {20, 21, 22, 23, 24, 26, 5}};

TEST(LogicaEscrutar, PrimitivaTieneLosComplementariosYElReintegro) {
    Escrutinio e(PRIMITIVA, UnaDeCada);
    e.Sortear({1, 2, 3, 4, 5, 6}, 7);
    e.logica->CambiarReintegro(3);
    EXPECT_TRUE(e.logica->Pendiente);
    ASSERT_TRUE(e.logica->EscrutarSistema());
    EXPECT_EQ(e.logica->lstPremios,
              (Textos{"6\t1", "5+C\t1", "5\t1", "4\t1", "3\t1", "2\t1", "1\t1", "0\t3", "--------", "Reinteg.\t4"}));
    EXPECT_EQ(e.logica->lblApuestas, "10");
    EXPECT_EQ(e.logica->lblBoletos, "2");
    EXPECT_EQ(e.logica->txtCalculadoraPremios, (std::array<std::string, 5>{"1", "1", "1", "1", "1"}));
    EXPECT_TRUE(e.logica->EscrutinioHecho);
    EXPECT_FALSE(e.logica->Pendiente);
    EXPECT_EQ(e.logica->Copiar(), "Categoría\tApuestas\n6\t1\n5+C\t1\n5\t1\n4\t1\n3\t1\n2\t1\n1\t1\n0\t3\n"
                                  "Reinteg.\t4\nApuestas\t10\nBoletos\t2\n");
}

TEST(LogicaEscrutar, BonolotoNoTieneFilaDeReintegros) {
    Escrutinio e(BONOLOTO, UnaDeCada);
    e.Sortear({1, 2, 3, 4, 5, 6});
    ASSERT_TRUE(e.logica->EscrutarSistema());
    EXPECT_EQ(e.logica->lstPremios, (Textos{"6\t1", "5+C\t0", "5\t2", "4\t1", "3\t1", "2\t1", "1\t1", "0\t3"}));
}

TEST(LogicaEscrutar, EurodreamsCuentaEnSeisTambienLosDeSuenio) {
    Escrutinio e(EURODREAMS, {{1, 2, 3, 4, 5, 6, 2},
                              {1, 2, 3, 4, 5, 6, 3},
                              {1, 2, 3, 4, 5, 7, 2},
                              {8, 9, 10, 11, 12, 13, 2},
                              {8, 9, 10, 11, 12, 14, 1},
                              {8, 9, 10, 11, 12, 15, 1},
                              {8, 9, 10, 11, 12, 16, 1}});
    e.Sortear({1, 2, 3, 4, 5, 6}, 7); // a complementary that another game left counts for nothing
    e.logica->CambiarReintegro(1);
    ASSERT_TRUE(e.logica->EscrutarSistema());
    EXPECT_EQ(e.logica->lstPremios, (Textos{"6+S\t1", "6\t2", "5\t1", "4\t0", "3\t0", "2\t0", "1\t0", "0\t4",
                                            "\t------------------", "Sueños:\t3"}));
    EXPECT_EQ(e.logica->lblBoletos, "2");
    EXPECT_FALSE(e.logica->EscrutinioHecho);
    EXPECT_FALSE(e.logica->imgCalculadoraPremios());
    EXPECT_EQ(e.Cajas, Textos{"[i] CALCULADORA DE PREMIOS NO DISPONIBLE PARA EL JUEGO EURODREAMS"});
    ASSERT_TRUE(e.logica->imgVerBoletosPremiados());
    EXPECT_EQ(e.Informe(), "BOLETO 01  02  03  04  05  06\r\n     1  6   6   5  --  --  --  \r\n");
}

TEST(LogicaEscrutar, UnComplementarioPremiadoDejaLosResultadosAnteriores) {
    Escrutinio e(PRIMITIVA, UnaDeCada);
    e.Sortear({1, 2, 3, 4, 5, 6});
    ASSERT_TRUE(e.logica->EscrutarSistema());
    const Textos antes = e.logica->lstPremios;
    e.logica->CambiarComplementario(6);
    e.logica->CambiarReintegro(3);
    EXPECT_FALSE(e.logica->EscrutarSistema());
    EXPECT_FALSE(e.logica->imgVerBoletosPremiados());
    EXPECT_EQ(e.Cajas, Textos(2, "[!] El número complementario ha de ser distinto de los números elegidos"));
    EXPECT_EQ(e.logica->lstPremios, antes);
    EXPECT_TRUE(e.logica->Pendiente);
    EXPECT_TRUE(e.Informes.empty());
}

TEST(LogicaEscrutar, ElSorteoEsElDelEstadoYNoPasaDeSeis) {
    Escrutinio e;
    for (const int n : {49, 4, 11, 23, 30, 38, 47}) e.logica->PulsarNumero(n);
    EXPECT_EQ(e.Pitidos, 1);
    EXPECT_EQ(e.logica->lblTipoCombinacion(), "6 Números Seleccionados");
    EXPECT_EQ(e.sesion.referencia.CombinacionGanadora, (std::array<uint8_t, 6>{4, 11, 23, 30, 38, 49}));
    e.logica->PulsarNumero(11);
    e.logica->CambiarComplementario(8);
    LogicaEscrutar otra(e.sesion, e.entorno);
    otra.Abrir();
    EXPECT_EQ(e.sesion.referencia.CombinacionGanadora, (std::array<uint8_t, 6>{4, 23, 30, 38, 49, 0}));
    EXPECT_EQ(otra.lblTipoCombinacion(), "5 Números Seleccionados");
    EXPECT_EQ(otra.cboComplementario, 8);
    otra.imgININumeros();
    EXPECT_EQ(e.sesion.referencia.CombinacionGanadora, (std::array<uint8_t, 6>{}));
    EXPECT_EQ(otra.lblTipoCombinacion(), "0 Números Seleccionados");
    EXPECT_EQ(e.sesion.referencia.Complementario, 0);
}

// What a base file may bring: repeated numbers, numbers that no ticket has.
TEST(LogicaEscrutar, UnSorteoGuardadoConValoresRarosSeAbre) {
    Escrutinio e(EURODREAMS, UnaDeCada);
    e.sesion.referencia.CombinacionGanadora = {255, 45, 3, 3, 0, 40};
    e.sesion.referencia.Complementario = 200;
    e.logica->Abrir();
    EXPECT_EQ(e.sesion.referencia.CombinacionGanadora, (std::array<uint8_t, 6>{3, 40}));
    EXPECT_EQ(e.logica->cboComplementario, 0);
    EXPECT_EQ(e.logica->lstPremios[6], "1\t5");
}

TEST(LogicaEscrutar, SinSistemaYSinNumerosEsUnaComprobacionValida) {
    Escrutinio e;
    EXPECT_EQ(e.logica->lstPremios[7], "0\t0");
    EXPECT_EQ(e.logica->lblBoletos, "0");
    EXPECT_TRUE(e.logica->imgVerBoletosPremiados());
    EXPECT_EQ(e.Informe(), "BOLETO 01  02  03  04  05  06  07  08\r\n");
    e.PonerSistema(UnaDeCada);
    e.logica->Abrir();
    EXPECT_EQ(e.logica->lstPremios[7], "0\t10");
}

TEST(LogicaEscrutar, UnFicheroEsLaCombinacionNueva) {
    Escrutinio e(PRIMITIVA, {{1, 2, 3, 4, 5, 6, 0}});
    const std::string tom = e.GrabarTom(UnaDeCada);
    e.Ficheros = {tom};
    e.Sortear({1, 2, 3, 4, 5, 6});
    e.logica->CambiarReintegro(3);
    e.logica->PulsarModo(CombinacionNueva);
    EXPECT_EQ(e.logica->lblApuestas, "0");
    e.logica->cmdDesdeFichero();
    ASSERT_EQ(e.Peticiones.size(), 1u);
    EXPECT_EQ(e.Peticiones[0].Titulo, "Abrir Fichero");
    EXPECT_EQ(e.Cajas, Textos{});
    EXPECT_EQ(e.logica->txtFicheroASCII, tom);
    EXPECT_EQ(e.logica->lblApuestasFichero, "10");
    EXPECT_EQ(e.logica->lstPremios[0], "6\t1");
    EXPECT_EQ(e.logica->lstPremios[9], "Reinteg.\t4");
    e.logica->PulsarModo(CombinacionActual);
    EXPECT_EQ(e.logica->lblApuestas, "1");
    e.logica->PulsarModo(CombinacionNueva);
    EXPECT_EQ(e.logica->lblApuestas, "10");
    e.logica->CambiarReintegros(false);
    EXPECT_EQ(e.logica->lblApuestasFichero, "0");
    EXPECT_EQ(e.logica->txtFicheroASCII, "");
    EXPECT_EQ(e.logica->ApuestasATRATAR, 0);
}

// The notice says that the digits are 0, and so they are.
TEST(LogicaEscrutar, UnTomSinCargarReintegrosTieneElCero) {
    Escrutinio e;
    e.logica->CambiarReintegros(false);
    e.logica->CargarFichero(e.GrabarTom(UnaDeCada));
    EXPECT_EQ(e.Cajas, Textos{"[!] AVISO: Se ha asignado al fichero cargado el REINTEGRO 0."});
    EXPECT_EQ(e.logica->lstPremios[9], "Reinteg.\t10");
}

TEST(LogicaEscrutar, UnFicheroQueNoSeLeeDejaCeroApuestas) {
    Escrutinio e(PRIMITIVA, UnaDeCada);
    const std::string ruta = e.carpeta.Ruta("malo.txt");
    EscribirTodo(ruta, "esto no son apuestas, o no lo parecen\r\n");
    EXPECT_FALSE(e.logica->CargarFichero(ruta));
    ASSERT_EQ(e.Cajas.size(), 2u);
    EXPECT_TRUE(e.Cajas[0].starts_with("[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (")) << e.Cajas[0];
    EXPECT_TRUE(e.Cajas[1].starts_with("[!] AVISO: Se han importado 0 apuestas.\n")) << e.Cajas[1];
    EXPECT_EQ(e.logica->ApuestasATRATAR, 0);
    EXPECT_EQ(e.logica->lblBoletos, "0");
    EXPECT_FALSE(e.logica->Escrutando);
}

// As told: cell by cell, a line at each change of the ticket's number.
std::string InformeLiteral(const EscrutarLiteral& sorteo, const Tabla& apuestas, int64_t porBoleto) {
    std::string texto = "BOLETO 01  02  03  04  05  06  07  08\r\n", linea;
    int64_t boleto = 1;
    bool premiada = false;
    for (int64_t i = 1; i <= apuestas.Apuestas(); ++i) {
        const int aciertos = sorteo.Aciertos(apuestas, i);
        if (aciertos < 3)
            linea += "--  ";
        else if (aciertos == 5)
            linea += sorteo.TieneComplementario(apuestas, i) ? "5+C " : " 5  ";
        else
            linea += " " + std::to_string(aciertos) + "  ";
        premiada |= aciertos >= 3;
        if (i / porBoleto + 1 == boleto && i != apuestas.Apuestas()) continue;
        std::string numero = std::to_string(boleto);
        numero.insert(0, 6 - numero.size(), ' ');
        if (premiada) texto += numero + " " + linea + "\r\n";
        linea.clear();
        premiada = false;
        boleto = i / porBoleto + 1;
    }
    return texto;
}

TEST(LogicaEscrutar, ElInformeTieneSoloLosBoletosPremiados) {
    std::mt19937 dados(5);
    for (const int cuantas : {1, 7, 8, 9, 16, 17, 1000}) {
        std::vector<Apuesta> apuestas;
        for (int i = 0; i < cuantas; ++i) {
            std::set<int> numeros;
            const int maximo = dados() % 3 == 0 ? 9 : 49;
            while (numeros.size() < 6) numeros.insert(1 + static_cast<int>(dados() % static_cast<unsigned>(maximo)));
            apuestas.emplace_back(numeros.begin(), numeros.end());
        }
        Escrutinio e(BONOLOTO, apuestas);
        e.Sortear({1, 2, 3, 5, 7, 9}, 4);
        ASSERT_TRUE(e.logica->imgVerBoletosPremiados());
        EXPECT_EQ(e.Informe(), InformeLiteral({{1, 2, 3, 5, 7, 9}, 4, -1}, e.sesion.trabajo.ApuestasReducidas, 8));
        EXPECT_EQ(e.Informes, Textos{e.carpeta.Ruta("TOMBOLERA_PREMIOS.txt")});
    }
}

TEST(LogicaEscrutar, UnInformeQueNoSePuedeEscribirSeDice) {
    Escrutinio e(PRIMITIVA, UnaDeCada);
    e.entorno.CarpetaInformes = e.carpeta.Ruta("no/existe");
    EXPECT_FALSE(e.logica->imgVerBoletosPremiados());
    EXPECT_EQ(e.Cajas,
              Textos{"[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (no existe el fichero o la carpeta)"});
    EXPECT_TRUE(e.Informes.empty());
    EXPECT_FALSE(e.logica->Escrutando);
}

// Disabled while it runs, so that nothing changes the bets meanwhile.
TEST(LogicaEscrutar, CadaCincoMilApuestasCedeElTurnoEscrutando) {
    Escrutinio e(PRIMITIVA, std::vector<Apuesta>(12000, {1, 2, 3, 4, 5, 6, 0}));
    const int antes = e.Turnos;
    bool escrutando = false;
    e.EnTurno(antes + 2, [&] { escrutando = e.logica->Escrutando; });
    ASSERT_TRUE(e.logica->EscrutarSistema());
    EXPECT_EQ(e.Turnos, antes + 3);
    EXPECT_TRUE(escrutando);
    EXPECT_FALSE(e.logica->Escrutando);
    EXPECT_EQ(e.logica->lblApuestas, "12.000");
}

} // namespace
