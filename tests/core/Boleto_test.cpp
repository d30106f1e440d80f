#include "Boleto.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "Sesiones.h"

namespace {

std::vector<int> Marcados(const EstadoTrabajo& trabajo) {
    std::vector<int> numeros;
    for (int n = 0; n <= 49; ++n)
        if (trabajo.lblNumero[static_cast<size_t>(n)]) numeros.push_back(n);
    return numeros;
}

} // namespace

TEST(Boleto, LosContadoresSiguenALasMarcas) {
    Guion guion;
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    for (int n = 1; n <= 5; ++n) PulsarNumero(trabajo, n);
    EXPECT_EQ(trabajo.Contador.Iniciales, 0);
    PulsarNumero(trabajo, 49);
    PulsarNumero(trabajo, 48);
    EXPECT_EQ(trabajo.Contador.Iniciales, 7);
    EXPECT_EQ(trabajo.Contador.Condicionadas, 7);
    EXPECT_EQ(TextoTipoCombinacion(trabajo), "7 Números");
    EXPECT_FALSE(trabajo.CombinacionGuardada);
    trabajo.Contador.Reducidas = 7;
    PulsarReintegro(trabajo, 0);
    EXPECT_EQ(trabajo.Contador.Reducidas, 0);
    LeerBase(trabajo);
    EXPECT_EQ(trabajo.NumerosBase, 7);
    EXPECT_EQ(trabajo.BaseNumeros[6], 48);
}

TEST(Boleto, FilasYColumnas) {
    struct Caso {
        bool fila;
        int indice;
        std::vector<int> numeros;
    };
    const Caso casos[] = {{true, 0, {1, 11, 21, 31, 41}},
                          {true, 8, {9, 19, 29, 39, 49}},
                          {true, 9, {10, 20, 30, 40}},
                          {false, 0, {1, 2, 3, 4, 5, 6, 7, 8, 9}},
                          {false, 1, {10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
                          {false, 4, {40, 41, 42, 43, 44, 45, 46, 47, 48, 49}}};
    for (const Caso& caso : casos) {
        Guion guion;
        EstadoTrabajo& trabajo = guion.sesion.trabajo;
        const auto pulsar = [&] { caso.fila ? PulsarFila(trabajo, caso.indice) : PulsarColumna(trabajo, caso.indice); };
        const int decide = caso.fila ? caso.indice + 1 : 10 * caso.indice + 1;
        pulsar();
        EXPECT_EQ(Marcados(trabajo), caso.numeros);
        pulsar();
        EXPECT_TRUE(Marcados(trabajo).empty());
        // Only the deciding number counts: alone marked it clears its row, unmarked among marked ones it fills it.
        PulsarNumero(trabajo, decide);
        pulsar();
        EXPECT_TRUE(Marcados(trabajo).empty());
        for (const int n : caso.numeros)
            if (n != decide) PulsarNumero(trabajo, n);
        pulsar();
        EXPECT_EQ(Marcados(trabajo), caso.numeros);
    }
}

TEST(Boleto, MarcarDesmarcarTODOS) {
    Guion guion;
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    MarcarDesmarcarTODOS(trabajo);
    EXPECT_EQ(trabajo.Contador.Iniciales, 13983816);
    EXPECT_FALSE(trabajo.CombinacionGuardada);
    PulsarReintegro(trabajo, 3);
    trabajo.cboTipoReintegro = Aleatorios;
    trabajo.CombinacionGuardada = true;
    MarcarDesmarcarTODOS(trabajo);
    EXPECT_TRUE(Marcados(trabajo).empty());
    EXPECT_FALSE(trabajo.lblReintegro[3]);
    EXPECT_EQ(trabajo.cboTipoReintegro, AlDirecto);
    EXPECT_TRUE(trabajo.CombinacionGuardada) << "unmarking leaves the flag";
    CambiarJuego(guion.sesion, EURODREAMS);
    MarcarDesmarcarTODOS(trabajo);
    EXPECT_EQ(Marcados(trabajo).size(), 49u);
    EXPECT_EQ(TextoTipoCombinacion(trabajo), "40 Números");
    EXPECT_EQ(trabajo.Contador.Iniciales, 3838380);
}

TEST(Boleto, AlazarMarcaLosPedidosDelJuego) {
    Guion guion;
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    CambiarJuego(guion.sesion, EURODREAMS);
    std::array<int, 41> veces{};
    for (int vuelta = 0; vuelta < 400; ++vuelta) {
        MarcarAlazar(trabajo, 6);
        const auto numeros = Marcados(trabajo);
        ASSERT_EQ(numeros.size(), 6u);
        ASSERT_LE(numeros.back(), 40);
        for (const int n : numeros) ++veces[static_cast<size_t>(n)];
    }
    for (int n = 1; n <= 40; ++n) EXPECT_GT(veces[static_cast<size_t>(n)], 20) << n;
    MarcarAlazar(trabajo, 40);
    EXPECT_EQ(trabajo.Contador.Iniciales, 3838380);
}

TEST(Boleto, ValidarReintegros) {
    struct Caso {
        int juego, modo, base;
        std::initializer_list<int> digitos;
        bool vale;
        const char* caja;
    };
    const Caso casos[] = {
        {PRIMITIVA, AlDirecto, 0, {}, false, "[!] AVISO: Hay que seleccionar mínimo 1 reintegro"},
        {PRIMITIVA, AlDirecto, 0, {0}, true, ""},
        {PRIMITIVA,
         AlDirecto,
         1,
         {0, 9},
         false,
         "[X] ERROR: Con el tipo de reintegro 'Al directo' sólo se puede seleccionar 1 reintegro"},
        {PRIMITIVA, Secuenciales, 0, {0, 9}, true, ""},
        {PRIMITIVA, AlDirecto, PronosticoDesdeArchivo, {}, true, ""},
        {BONOLOTO, AlDirecto, 0, {}, true, ""},
        {EURODREAMS, Aleatorios, 0, {}, false, "[!] AVISO: Hay que seleccionar mínimo 1 sueño"},
        {EURODREAMS,
         AlDirecto,
         0,
         {1, 5},
         false,
         "[X] ERROR: Con el tipo de sueño 'Al directo' sólo se puede seleccionar 1 sueño"},
        {EURODREAMS, AlDirecto, 0, {5, 6, 0}, true, ""}, // digits that the game does not have do not count
    };
    for (const Caso& caso : casos) {
        Guion guion;
        CambiarJuego(guion.sesion, caso.juego);
        guion.sesion.trabajo.cboTipoReintegro = caso.modo;
        guion.sesion.trabajo.cboTipoCombinacion = caso.base;
        guion.MarcarDigitos(caso.digitos);
        EXPECT_EQ(ValidarReintegros(guion.sesion.trabajo, guion.entorno), caso.vale);
        EXPECT_EQ(guion.Cajas, caso.vale ? Textos{} : Textos{caso.caja});
    }
}
