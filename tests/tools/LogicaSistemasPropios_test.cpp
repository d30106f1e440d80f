#include "LogicaSistemasPropios.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "modImportarASCII.h"

namespace {

const std::string Aviso = "[!] AVISO: El nuevo Sistema Propio generado se creará con el REINTEGRO igual a 0.";

struct Taller : Guion {
    CarpetaTemporal carpeta;
    LogicaSistemasPropios logica{sesion.trabajo, entorno};

    void Cargar(const std::string& texto) {
        EscribirTodo(carpeta.Ruta("origen.txt"), texto);
        Ficheros = {carpeta.Ruta("origen.txt")};
        logica.cmdDesdeFichero();
    }
    void Destino(std::initializer_list<int> numeros) {
        for (const int n : numeros) logica.PulsarDestino(n);
    }
    std::vector<Apuesta> Generar() {
        Ficheros = {carpeta.Ruta("propio")};
        EXPECT_TRUE(logica.imgCalculoDefinitivo());
        Tabla tabla;
        LeerApuestas(carpeta.Ruta("propio.TOM"), false, tabla, nullptr, sesion.trabajo.JuegoActual(), entorno);
        return Apuestas(tabla, 7);
    }
};

constexpr const char* SieteNumeros = "010203040506+7\r\n010203040510+7\r\n020304050610+7\r\n";

} // namespace

TEST(SistemasPropios, CargarCuentaCadaNumero) {
    Taller t;
    t.Cargar(SieteNumeros);
    EXPECT_EQ(t.logica.Origenes(), (std::vector<int>{1, 2, 3, 4, 5, 6, 10}));
    EXPECT_EQ(t.logica.lblTitNumerosORIGEN(), "7 Números");
    EXPECT_EQ(t.logica.txtApuCargadas, "3");
    EXPECT_EQ(t.logica.Porcentaje(1), "66,67 %");
    EXPECT_EQ(t.logica.Porcentaje(2), "100 %");
    EXPECT_EQ(t.logica.Porcentaje(7), "");
    EXPECT_EQ(t.logica.txtPorcentajesNumeros(),
              "01-66,67%\n02-100%\n03-100%\n04-100%\n05-100%\n06-66,67%\n10-66,67%\n");
    t.Cargar("nada\r\n");
    EXPECT_EQ(t.logica.lblTitNumerosORIGEN(), "0 Números");
    EXPECT_EQ(t.logica.txtApuCargadas, "0");
    EXPECT_EQ(t.Cajas.size(), 1u);
    EXPECT_EQ(t.logica.txtPorcentajesNumeros(), "");
}

TEST(SistemasPropios, PorRangoYPorOrden) {
    struct Caso {
        std::vector<std::pair<int, int>> parejas; ///< destination and its origin; none: by rank
        std::vector<Apuesta> apuestas;
    };
    const Caso casos[] = {
        {{}, {{11, 12, 13, 14, 15, 16, 0}, {11, 12, 13, 14, 15, 49, 0}, {12, 13, 14, 15, 16, 49, 0}}},
        // A large origin goes to a small destination: the bets are sorted again.
        {{{11, 10}, {12, 6}, {13, 5}, {14, 4}, {15, 3}, {16, 2}, {49, 1}},
         {{12, 13, 14, 15, 16, 49, 0}, {11, 13, 14, 15, 16, 49, 0}, {11, 12, 13, 14, 15, 16, 0}}},
    };
    for (const Caso& c : casos) {
        Taller t;
        t.Cargar(SieteNumeros);
        t.Destino({11, 12, 13, 14, 15, 16, 49});
        t.logica.chkElegirOrden = !c.parejas.empty();
        for (const auto& [destino, origen] : c.parejas) EXPECT_TRUE(t.logica.ElegirOrigen(destino, origen));
        EXPECT_EQ(t.Generar(), c.apuestas);
        EXPECT_EQ(t.Cajas, Textos{Aviso});
        EXPECT_EQ(t.Peticiones.back().Nombre, "Sin guardar.TOM");
    }
}

TEST(SistemasPropios, ElOrigenRepetidoSeRechazaYDejaLaListaSinElegir) {
    Taller t;
    t.Cargar(SieteNumeros);
    t.Destino({11, 12, 13, 14, 15, 16, 49});
    t.logica.chkElegirOrden = true;
    EXPECT_TRUE(t.logica.ElegirOrigen(11, 1));
    EXPECT_TRUE(t.logica.ElegirOrigen(12, 2));
    EXPECT_FALSE(t.logica.ElegirOrigen(12, 1));
    EXPECT_EQ(t.logica.cboOrden[12], 0);
    EXPECT_TRUE(t.logica.ElegirOrigen(11, 1)); // its own choice again
    t.logica.PulsarDestino(11);                // unmarked, it gives its origin back
    EXPECT_TRUE(t.logica.ElegirOrigen(12, 1));
    t.logica.PulsarDestino(11);
    EXPECT_FALSE(t.logica.imgCalculoDefinitivo());
    EXPECT_EQ(t.Cajas,
              (Textos{"[X] ERROR: Ese número del sistema ORIGEN ya esta seleccionado", Aviso,
                      "[X] ERROR: Algún número DESTINO no tiene asignado número ORIGEN (Rellene los Combos)"}));
}

TEST(SistemasPropios, SinSistemaOConOtraCantidadNoHayNada) {
    Taller t;
    EXPECT_FALSE(t.logica.imgCalculoDefinitivo());
    t.Cargar(SieteNumeros);
    t.Destino({1, 2, 3, 4, 5, 6});
    EXPECT_FALSE(t.logica.imgCalculoDefinitivo());
    t.Destino({7});
    EXPECT_FALSE(t.logica.imgCalculoDefinitivo()); // the chooser is cancelled
    EXPECT_EQ(t.Cajas, (Textos{"[X] ERROR: Hay 0 apuestas importadas",
                               "[X] ERROR: Cantidad de números seleccionados del sistema DESTINO distinto del sistema "
                               "ORIGEN",
                               Aviso}));
    EXPECT_FALSE(t.sesion.trabajo.FormularioBloqueado);
}
