#include <fstream>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Juegos.h"
#include "modImportarASCII.h"

// As many bets as the ticket has, and then a line that would fail if it were read.
TEST(ImportarTXT, ElLimiteAvisaYDejaDeLeer) {
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("a.txt");
    {
        std::string mil;
        for (int i = 0; i < 1000; ++i) mil += "010203040506\r\n";
        std::ofstream fichero(ruta, std::ios::binary);
        for (int32_t i = 0; i < ApuestasMaximas / 1000; ++i) fichero << mil;
        fichero << mil.substr(0, 14 * (ApuestasMaximas % 1000)) << "060504030201\r\n";
        ASSERT_TRUE(fichero.flush());
    }
    Guion guion;
    Tabla tabla;
    EXPECT_EQ(ImportarTXTSinReintegros(ruta, tabla, nullptr, guion.entorno), ApuestasMaximas);
    EXPECT_EQ(guion.Cajas, Textos{"[!] SOLO SE PUEDEN IMPORTAR 13983816 APUESTAS"});
    EXPECT_EQ(tabla.Apuestas(), ApuestasMaximas);
    EXPECT_EQ(tabla(6, ApuestasMaximas), 6);
    EXPECT_EQ(guion.Turnos, ApuestasMaximas / 9000);
}
