#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"
#include "modEncriptarFichero.h"

namespace {

class Ver : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("a.TOM");

    // Bets with their digit as seventh element.
    void Escribir(const std::vector<Apuesta>& apuestas) {
        Entorno entorno;
        Tabla tabla(7, static_cast<int64_t>(apuestas.size()));
        for (size_t i = 0; i < apuestas.size(); ++i)
            for (size_t r = 0; r < 7; ++r)
                tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
        ASSERT_TRUE(GuardarFicheroApuestas(ruta, "0", static_cast<int32_t>(apuestas.size()), tabla, nullptr, entorno));
    }
};

TEST_F(Ver, UnaApuestaPorLineaConSuDigito) {
    Escribir({{1, 2, 3, 4, 5, 6, 7}, {4, 11, 17, 23, 38, 49, 0}});
    for (const Textos& mas : {Textos{}, Textos{"--reintegros"}, Textos{"--juego", "BONOLOTO"}}) {
        Textos argumentos{"ver", ruta};
        argumentos.insert(argumentos.end(), mas.begin(), mas.end());
        const Resultado r = Correr(argumentos);
        EXPECT_EQ(r.Salida, "01,02,03,04,05,06+07\n04,11,17,23,38,49+00\n");
        EXPECT_EQ(r.Errores, "");
        EXPECT_EQ(r.Estado, 0);
    }
}

TEST_F(Ver, ElJuegoDecideQueDigitosValen) {
    Escribir({{1, 2, 3, 4, 5, 6, 7}});
    const Resultado r = Correr({"ver", ruta, "--juego", "EURODREAMS"});
    EXPECT_EQ(r.Estado, 1);
    EXPECT_EQ(r.Salida, "");
    EXPECT_NE(r.Errores.find("SUEÑOS INCORRECTOS)\nAVISO: Se han importado 0 apuestas. | El fichero ha de estar"),
              std::string::npos)
        << r.Errores;
}

TEST_F(Ver, UnFicheroSinApuestasEsUnAviso) {
    Escribir({});
    const Resultado r = Correr({"ver", ruta});
    EXPECT_EQ(r.Estado, 1);
    EXPECT_TRUE(r.Errores.starts_with("AVISO: Se han importado 0 apuestas.")) << r.Errores;
}

} // namespace
