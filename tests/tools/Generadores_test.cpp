// The two random generators: what they refuse, and what must hold of every file they write.
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "Guion.h"
#include "LogicaGeneradorApuestas.h"
#include "LogicaGeneradorApuestasXPorcentaje.h"
#include "Sesiones.h"
#include "modCSN.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

namespace {

// A generator that saves in a folder of its own.
template <class Logica>
struct Taller : Guion {
    explicit Taller(int juego = PRIMITIVA) { CambiarJuego(sesion, juego); }

    CarpetaTemporal carpeta;
    Logica logica{sesion.trabajo, entorno};

    std::vector<Apuesta> Generar() {
        Ficheros = {carpeta.Ruta("azar")};
        EXPECT_TRUE(logica.cmdGenerar());
        EXPECT_EQ(Peticiones.back().Nombre, logica.txtApuestas + "_Apuestas.TOM");
        Tabla tabla;
        LeerApuestas(carpeta.Ruta("azar.TOM"), false, tabla, nullptr, sesion.trabajo.JuegoActual(), entorno);
        return Apuestas(tabla, 7);
    }
};

using TallerNumeros = Taller<LogicaGeneradorApuestas>;
using TallerPorcentajes = Taller<LogicaGeneradorApuestasXPorcentaje>;

void Poner(LogicaGeneradorApuestasXPorcentaje& l, int desde, int hasta, int porcentaje) {
    for (int n = desde; n <= hasta; ++n) l.cboPorcentaje[static_cast<size_t>(n)] = porcentaje;
}

void ComprobarApuesta(const Apuesta& apuesta) {
    EXPECT_EQ(apuesta.size(), 7u);
    EXPECT_EQ(apuesta.back(), 1);
    for (size_t r = 1; r < 6; ++r) EXPECT_LT(apuesta[r - 1], apuesta[r]);
}

} // namespace

TEST(GeneradorPorNumeros, TodasLasDelTotalSalenUnaVezYDesordenadas) {
    TallerNumeros t;
    for (const int n : {2, 7, 11, 20, 33, 41, 44, 48, 49}) t.logica.PulsarNumero(n);
    EXPECT_EQ(t.logica.lblApuestasIniciales(), "84 Apuestas");
    EXPECT_EQ(t.logica.lblTipoCombinacion(), "9 Números");
    t.logica.txtApuestas = "84";
    const auto apuestas = t.Generar();
    EXPECT_EQ(std::set<Apuesta>(apuestas.begin(), apuestas.end()).size(), 84u);
    EXPECT_FALSE(std::is_sorted(apuestas.begin(), apuestas.end()));
    for (const Apuesta& a : apuestas) {
        ComprobarApuesta(a);
        for (size_t r = 0; r < 6; ++r) EXPECT_TRUE(t.logica.lblNumero[static_cast<size_t>(a[r])]);
    }
    EXPECT_FALSE(t.sesion.trabajo.FormularioBloqueado);
    EXPECT_FALSE(t.logica.lblProgressBar.Visible);
}

TEST(GeneradorPorNumeros, ElReparteNoFavoreceANinguna) {
    TallerNumeros t;
    for (int n = 1; n <= 8; ++n) t.logica.PulsarNumero(n);
    std::array<int, 29> veces{};
    for (int i = 0; i < 560; ++i) {
        const auto apuestas = t.Generar();
        const std::vector<uint8_t> a(apuestas[0].begin(), apuestas[0].begin() + 6);
        ++veces[static_cast<size_t>(CombinacionaCSN(6, 8, a.data()))];
    }
    // Twenty of each are expected; five standard deviations to either side.
    for (size_t i = 1; i < veces.size(); ++i) {
        EXPECT_GT(veces[i], 0) << i;
        EXPECT_LT(veces[i], 43) << i;
    }
}

TEST(GeneradorPorNumeros, LoQueRechaza) {
    struct Caso {
        int marcas;
        std::string pedidas;
        Textos cajas;
    };
    const std::string masQue = "[X] ERROR: EL Nº DE APUESTAS A GENERAR HA DE SER MENOR O IGUAL QUE EL Nº DE APUESTAS "
                               "DEL SISTEMA TOTAL (tiene ";
    const std::string menosDeUna = "[X] ERROR: EL Nº DE APUESTAS A GENERAR HA DE SER MAYOR QUE 0";
    const Caso casos[] = {
        {5, "1", {"[!] AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS"}},
        {5, "", {"[!] AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS"}},
        {6, "  ", {}},
        {6, "0", {menosDeUna}},
        {6, "-3", {menosDeUna}},
        {6, "x", {menosDeUna}},
        {6, "2", {masQue + "1 apuestas)"}},
        {49, "13983817", {masQue + "13983816 apuestas)"}},
        {7, "99999999999999999999", {masQue + "7 apuestas)"}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(testing::Message() << c.marcas << " marcas, '" << c.pedidas << "'");
        TallerNumeros t;
        for (int n = 1; n <= c.marcas; ++n) t.logica.PulsarNumero(n);
        t.logica.txtApuestas = c.pedidas;
        EXPECT_FALSE(t.logica.cmdGenerar());
        EXPECT_EQ(t.Cajas, c.cajas);
        EXPECT_TRUE(t.Peticiones.empty());
    }
}

TEST(GeneradorPorNumeros, UnFalloAlGuardarConservaElFichero) {
    TallerNumeros t;
    for (int n = 1; n <= 6; ++n) t.logica.PulsarNumero(n);
    t.Ficheros = {t.carpeta.Ruta("no existe/azar.TOM")};
    EXPECT_FALSE(t.logica.cmdGenerar());
    ASSERT_EQ(t.Cajas.size(), 1u);
    EXPECT_TRUE(t.Cajas[0].starts_with("[X] ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (")) << t.Cajas[0];
    EXPECT_FALSE(t.sesion.trabajo.FormularioBloqueado);
    EXPECT_FALSE(t.logica.Generando);
}

TEST(GeneradorPorNumeros, AzarMarcaTantosDelJuego) {
    TallerNumeros t(EURODREAMS);
    for (int cuantos = 1; cuantos <= 40; ++cuantos) {
        t.logica.cboNumeros = cuantos;
        t.logica.cmdAlazar();
        EXPECT_EQ(t.logica.NumerosMarcados(), cuantos);
        EXPECT_EQ(std::count(t.logica.lblNumero.begin() + 41, t.logica.lblNumero.end(), true), 0);
    }
    t.logica.PulsarNumero(41);
    EXPECT_EQ(t.logica.NumerosMarcados(), 40);
}

TEST(GeneradorPorPorcentajes, CadaNumeroSaleEnSuParte) {
    struct Caso {
        int juego, apuestas;
        std::vector<int> porcentajes; ///< of the numbers from 1 on
    };
    const Caso casos[] = {{PRIMITIVA, 1000, {100, 50, 33, 7, 1, 99, 80}},
                          {BONOLOTO, 7, {99, 99, 99, 99, 99, 99}},
                          {EURODREAMS, 333, {10, 20, 30, 40, 50, 60, 70, 80, 90, 100}},
                          {PRIMITIVA, 1, {99, 99, 99, 99, 99, 99}}};
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.apuestas);
        TallerPorcentajes t(c.juego);
        for (size_t i = 0; i < c.porcentajes.size(); ++i) t.logica.cboPorcentaje[i + 1] = c.porcentajes[i];
        t.logica.txtApuestas = std::to_string(c.apuestas);
        std::vector<int> veces(c.porcentajes.size() + 1);
        const auto apuestas = t.Generar();
        ASSERT_EQ(apuestas.size(), static_cast<size_t>(c.apuestas));
        for (const Apuesta& a : apuestas) {
            ComprobarApuesta(a);
            EXPECT_LE(a[5], t.sesion.trabajo.NumeroMaximo());
            for (size_t r = 0; r < 6; ++r)
                if (static_cast<size_t>(a[r]) < veces.size()) ++veces[static_cast<size_t>(a[r])];
        }
        for (size_t i = 0; i < c.porcentajes.size(); ++i)
            EXPECT_EQ(veces[i + 1], c.porcentajes[i] * c.apuestas / 100) << "número " << i + 1;
    }
}

TEST(GeneradorPorPorcentajes, LoQueRechaza) {
    struct Caso {
        int numeros, porcentaje;
        std::string pedidas;
        Textos cajas;
    };
    const std::string suma = "[X] ERROR: LA SUMA DE TODOS LOS % SELECCIONADOS DEBE SER MENOR DE 600";
    const Caso casos[] = {
        {5, 10, "0", {"[!] AVISO: DEBE SELECCIONAR MINIMO 6 PORCENTAJES DE NUMEROS"}},
        {44, 99, "0", {"[X] ERROR: SOLO SE PUEDEN SELECCIONAR 43 PORCENTAJES COMO MAXIMO"}},
        {6, 100, "0", {suma}},
        {7, 90, "5", {suma}},
        {6, 99, "", {}},
        {6, 99, "0", {"[X] ERROR: EL Nº DE APUESTAS A GENERAR HA DE SER MAYOR QUE 0"}},
        {6, 99, "13983817", {"[X] ERROR: EL Nº DE APUESTAS A GENERAR HA DE SER MENOR O IGUAL QUE 13983816"}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(testing::Message() << c.numeros << " al " << c.porcentaje << ", '" << c.pedidas << "'");
        TallerPorcentajes t;
        Poner(t.logica, 1, c.numeros, c.porcentaje);
        t.logica.txtApuestas = c.pedidas;
        EXPECT_FALSE(t.logica.cmdGenerar());
        EXPECT_EQ(t.Cajas, c.cajas);
        EXPECT_TRUE(t.Peticiones.empty());
    }
}

// 35 numbers leave five without a percent; most slots of a bet are theirs.
TEST(GeneradorPorPorcentajes, SinNumerosQueRepartirNoEscribeNada) {
    TallerPorcentajes t(EURODREAMS);
    Poner(t.logica, 1, 35, 1);
    t.logica.txtApuestas = "50";
    t.Ficheros = {t.carpeta.Ruta("azar.TOM")};
    EXPECT_FALSE(t.logica.cmdGenerar());
    EXPECT_EQ(t.Cajas, Textos{"[X] ERROR: NO QUEDAN NUMEROS SIN PORCENTAJE PARA COMPLETAR LAS APUESTAS"});
    EXPECT_FALSE(std::filesystem::exists(t.carpeta.Ruta("azar.TOM")));
    EXPECT_FALSE(t.logica.Generando);
}

TEST(GeneradorPorPorcentajes, CargarUnFichero) {
    struct Caso {
        std::string valores; ///< of the first numbers
        int juego;
        bool bien;
    };
    const Caso casos[] = {{"10 20 100 1", PRIMITIVA, true}, {"10,5", PRIMITIVA, false}, {"101", PRIMITIVA, false},
                          {"-5", PRIMITIVA, false},         {"x", PRIMITIVA, false},    {"7", EURODREAMS, true}};
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.valores);
        TallerPorcentajes t(c.juego);
        t.logica.cboPorcentaje[3] = 77;
        std::string linea = c.valores;
        for (auto i = std::count(linea.begin(), linea.end(), ' '); i < 48; ++i) linea += " 0";
        EscribirTodo(t.carpeta.Ruta("p.txt"), linea + "\r\n");
        EXPECT_EQ(t.logica.CargarPorcentajes(t.carpeta.Ruta("p.txt")), c.bien);
        EXPECT_EQ(t.Cajas.size(), c.bien ? 0u : 1u);
        EXPECT_EQ(t.logica.cboPorcentaje[3], !c.bien ? 77 : c.valores.size() > 2 ? 100 : 0);
    }
}
