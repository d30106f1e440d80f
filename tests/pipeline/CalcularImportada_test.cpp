#include "CalcularSistema.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "Guion.h"
#include "ImportarCombinacion.h"
#include "Sesiones.h"
#include "TablaFiltros.h"
#include "modEncriptarFichero.h"

namespace {

// A system imported from a bet file: bets of six different numbers in any order, each with a digit.
struct Importada : Guion {
    CarpetaTemporal carpeta;
    EstadoTrabajo& trabajo = sesion.trabajo;
    std::vector<Apuesta> Fichero;

    explicit Importada(int juego = PRIMITIVA, bool con = true) {
        CambiarJuego(sesion, juego);
        trabajo.chkReintegros = con;
    }

    void Importar(const std::vector<Apuesta>& apuestas) {
        Fichero = apuestas;
        Tabla tabla(7, static_cast<int64_t>(apuestas.size()));
        for (size_t i = 0; i < apuestas.size(); ++i)
            for (size_t r = 0; r < 7; ++r)
                tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
        const std::string ruta = carpeta.Ruta("a.TOM");
        ASSERT_TRUE(GuardarFicheroApuestas(ruta, "0", static_cast<int32_t>(apuestas.size()), tabla, nullptr, entorno));
        ASSERT_TRUE(ImportarFichero(ruta, sesion, entorno));
        Cajas.clear();
    }

    Apuesta FilaDigitos() const {
        const Tabla& tabla = trabajo.ApuestasReducidas;
        return {tabla.Fila(7), tabla.Fila(7) + tabla.Apuestas()};
    }
};

// Different random bets, their numbers in order or not.
std::vector<Apuesta> AlAzar(uint32_t semilla, size_t cuantas, bool ordenadas) {
    std::mt19937 azar(semilla);
    Apuesta numeros(30);
    std::iota(numeros.begin(), numeros.end(), 3);
    std::vector<Apuesta> apuestas, vistas;
    while (apuestas.size() < cuantas) {
        std::shuffle(numeros.begin(), numeros.end(), azar);
        Apuesta apuesta(numeros.begin(), numeros.begin() + 6), orden = apuesta;
        std::sort(orden.begin(), orden.end());
        if (std::find(vistas.begin(), vistas.end(), orden) != vistas.end()) continue;
        vistas.push_back(orden);
        if (ordenadas) apuesta = orden;
        apuesta.push_back(static_cast<int>(azar() % 4 + 1));
        apuestas.push_back(apuesta);
    }
    return apuestas;
}

std::vector<Apuesta> SinDigito(std::vector<Apuesta> apuestas) {
    for (Apuesta& apuesta : apuestas) apuesta.resize(6);
    return apuestas;
}

} // namespace

TEST(CalcularImportada, ElSistemaFinalTieneElOrdenDelFichero) {
    for (const bool ordenadas : {true, false}) {
        Importada m;
        m.Importar(AlAzar(3, 500, ordenadas));
        ASSERT_TRUE(CalcularSistema(m.sesion, m.entorno));
        EXPECT_EQ(Apuestas(m.trabajo.ApuestasReducidas), SinDigito(m.Fichero));
        EXPECT_FALSE(m.trabajo.SinEliminadas); // an imported system is never the whole of anything
        EXPECT_EQ(m.trabajo.Contador.Iniciales, 500);
        EXPECT_EQ(m.trabajo.Contador.Condicionadas, 500);
        EXPECT_EQ(m.trabajo.Contador.Reducidas, 500);
        EXPECT_FALSE(m.trabajo.FormularioBloqueado);
    }
}

TEST(CalcularImportada, LasCondicionesQuitanYElRestoSigueEnOrden) {
    Importada m;
    m.Importar(AlAzar(4, 800, true));
    m.sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
    m.sesion.condiciones.SUMAS.intervalos[0] = {90, 120};
    ASSERT_TRUE(CalcularSistema(m.sesion, m.entorno));
    std::vector<Apuesta> quedan;
    for (const Apuesta& apuesta : SinDigito(m.Fichero)) {
        const int suma = std::accumulate(apuesta.begin(), apuesta.end(), 0);
        if (suma >= 90 && suma <= 120) quedan.push_back(apuesta);
    }
    ASSERT_FALSE(quedan.empty());
    EXPECT_EQ(Apuestas(m.trabajo.ApuestasReducidas), quedan);
    EXPECT_EQ(m.trabajo.ApuestasCondicionadas.Filas(), 7);
    // A second calculation starts again from the file's bets.
    m.sesion.condiciones.lstFiltros[kSUMAS].Activo = false;
    ASSERT_TRUE(CalcularSistema(m.sesion, m.entorno));
    EXPECT_EQ(Apuestas(m.trabajo.ApuestasReducidas), SinDigito(m.Fichero));
}

TEST(CalcularImportada, LosDigitosSalenDeLosMarcadosPorLaReglaAleatoria) {
    Importada m;
    m.Importar(AlAzar(5, 400, true));
    ASSERT_TRUE(CalcularSistema(m.sesion, m.entorno));
    const Apuesta importada = m.FilaDigitos();
    for (int d = 1; d <= 4; ++d) EXPECT_GT(std::count(importada.begin(), importada.end(), d), 50) << d;

    // The same marks and the same count on the ticket give the same digits.
    Guion directa;
    directa.MarcarHasta(12); // 924 bets
    directa.MarcarDigitos({1, 2, 3, 4});
    directa.sesion.trabajo.cboTipoReintegro = Aleatorios;
    ASSERT_TRUE(CalcularSistema(directa.sesion, directa.entorno));
    const uint8_t* fila = directa.sesion.trabajo.ApuestasReducidas.Fila(7);
    EXPECT_EQ(importada, Apuesta(fila, fila + 400));
}

TEST(CalcularImportada, ConUnSoloDigitoTodasLoTienen) {
    Importada uno;
    uno.Importar({{1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 7, 7}});
    ASSERT_TRUE(CalcularSistema(uno.sesion, uno.entorno));
    EXPECT_EQ(uno.FilaDigitos(), (Apuesta{7, 7}));

    Importada sinCargar(EURODREAMS, false);
    sinCargar.Importar({{1, 2, 3, 4, 5, 6, 4}, {1, 2, 3, 4, 5, 7, 3}});
    ASSERT_TRUE(CalcularSistema(sinCargar.sesion, sinCargar.entorno));
    EXPECT_EQ(sinCargar.FilaDigitos(), (Apuesta{1, 1}));
}

TEST(CalcularImportada, BONOLOTOConservaLosDelFichero) {
    Importada m(BONOLOTO, false);
    m.Importar(AlAzar(6, 100, true));
    ASSERT_TRUE(CalcularSistema(m.sesion, m.entorno));
    EXPECT_EQ(Apuestas(m.trabajo.ApuestasReducidas, 7), m.Fichero);
}

TEST(CalcularImportada, NumerosDeFueraDelBoletoDeEURODREAMS) {
    Importada m(EURODREAMS, false);
    m.Importar({{1, 2, 3, 4, 41, 49, 1}, {44, 45, 46, 47, 48, 49, 1}});
    ASSERT_TRUE(CalcularSistema(m.sesion, m.entorno));
    EXPECT_EQ(Apuestas(m.trabajo.ApuestasReducidas, 7), m.Fichero);
}

TEST(CalcularImportada, SinFicheroOSinBaseNoSeCalcula) {
    Guion guion;
    guion.sesion.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    guion.MarcarHasta(5);
    guion.sesion.trabajo.txtFicheroASCII = "/tmp/a.txt";
    EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
    guion.MarcarHasta(6);
    guion.sesion.trabajo.txtFicheroASCII = "  ";
    EXPECT_FALSE(CalcularSistema(guion.sesion, guion.entorno));
    EXPECT_EQ(guion.Cajas, (Textos{"[!] AVISO: DEBE SELECCIONAR MINIMO 6 NUMEROS",
                                   "[X] ERROR: NO HAY NINGUN FICHERO ASCII CARGADO"}));
    EXPECT_FALSE(guion.sesion.trabajo.EstadoCalculando);
}
