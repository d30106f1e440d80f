// What happens to the result when standard output fails or the user interrupts.
#include <csignal>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Proceso.h"
#include "modEncriptarFichero.h"

namespace {

constexpr int32_t Muchas = 100000; // far more text than a pipe holds

class Salidas : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("a.TOM");

    void SetUp() override {
        Entorno entorno;
        Tabla tabla(7, Muchas);
        for (int32_t i = 1; i <= Muchas; ++i)
            for (int r = 1; r <= 6; ++r) tabla(r, i) = static_cast<uint8_t>(r);
        ASSERT_TRUE(GuardarFicheroApuestas(ruta, "0", Muchas, tabla, nullptr, entorno));
    }
};

TEST_F(Salidas, UnDiscoLlenoOUnaTuberiaCerradaSonEstado1) {
    const ComoCorrer lleno{.SalidaEn = "/dev/full"}, cerrada{.SinLector = true};
    for (const ComoCorrer& como : {lleno, cerrada})
        for (const Textos& argumentos : {Textos{"ver", ruta}, Textos{"--version"}, Textos{"ver", "--ayuda"}}) {
            const Resultado r = Correr(argumentos, como);
            EXPECT_EQ(r.Estado, 1) << testing::PrintToString(argumentos);
            EXPECT_TRUE(r.Errores.starts_with("ERROR: No se ha podido escribir el resultado (")) << r.Errores;
        }
}

TEST_F(Salidas, UnaInterrupcionTerminaCon130) {
    const Resultado r = Correr({"ver", ruta}, {.AlEscribir = [](pid_t hijo) { kill(hijo, SIGINT); }});
    EXPECT_EQ(r.Estado, 130);
    EXPECT_LT(r.Salida.size(), size_t{Muchas} * 21);
    EXPECT_EQ(r.Errores, "");
}

} // namespace
