#include "LogicaVisualizar.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "Sesiones.h"

namespace {

struct Visor : Guion {
    explicit Visor(int juego = PRIMITIVA) : logica((CambiarJuego(sesion, juego), sesion.trabajo), entorno) {}

    CarpetaTemporal carpeta;
    LogicaVisualizar logica;

    // Bets 1 to n, told apart by their first number and digit.
    void Abrir(int n) {
        std::string texto;
        for (int i = 1; i <= n; ++i) {
            const std::string primero = (i < 10 ? "0" : "") + std::to_string(i);
            texto += primero + ",34,35,36,37,38+" + std::to_string(i % 5 + 1) + "\r\n";
        }
        EscribirTodo(carpeta.Ruta("f.txt"), texto);
        Ficheros = {carpeta.Ruta("f.txt")};
        logica.cmdDesdeFichero();
    }
    std::string Fila(size_t r) const { return logica.lblColumna[6 * r] + "+" + logica.lblReintegro[r]; }
};

} // namespace

TEST(Visualizar, BoletosYFilas) {
    struct Caso {
        int juego, apuestas, boletos, enElUltimo;
    };
    const Caso casos[] = {{PRIMITIVA, 17, 3, 1}, {PRIMITIVA, 8, 1, 8},   {PRIMITIVA, 1, 1, 1},
                          {BONOLOTO, 16, 2, 8},  {EURODREAMS, 13, 3, 1}, {EURODREAMS, 6, 1, 6}};
    for (const Caso& c : casos) {
        SCOPED_TRACE(testing::Message() << c.juego << ": " << c.apuestas);
        Visor v(c.juego);
        v.Abrir(c.apuestas);
        EXPECT_EQ(v.logica.lblApuestas, std::to_string(c.apuestas));
        EXPECT_EQ(v.logica.lblNumeroBoleto(), "Boleto actual : 1/" + std::to_string(c.boletos));
        EXPECT_EQ(v.logica.PuedeAvanzar(), c.boletos > 1);
        EXPECT_FALSE(v.logica.PuedeRetroceder());
        v.logica.imgUltimo();
        EXPECT_EQ(v.logica.BoletoActual, c.boletos);
        EXPECT_FALSE(v.logica.PuedeAvanzar());
        for (size_t r = 0; r < LogicaVisualizar::FilasMaximas; ++r)
            EXPECT_EQ(v.logica.lblColumna[6 * r].empty(), static_cast<int>(r) >= c.enElUltimo) << r;
        EXPECT_TRUE(v.Cajas.empty());
    }
}

TEST(Visualizar, RecorrerLosBoletos) {
    Visor v;
    v.Abrir(20);
    EXPECT_EQ(v.Fila(0), "01+02");
    v.logica.imgAvanzar();
    EXPECT_EQ(v.Fila(7), "16+02");
    v.logica.imgAvanzar();
    v.logica.imgAvanzar(); // there is no fourth
    EXPECT_EQ(v.logica.BoletoActual, 3);
    EXPECT_EQ(v.Fila(3), "20+01");
    EXPECT_EQ(v.Fila(4), "+");
    v.logica.CambiarReintegros(false);
    EXPECT_EQ(v.Fila(3), "20+");
    v.logica.CambiarReintegros(true);
    EXPECT_EQ(v.Fila(3), "20+"); // until the next move
    v.logica.imgRetroceder();
    EXPECT_EQ(v.Fila(0), "09+05");
    v.logica.imgPrimero();
    v.logica.imgRetroceder();
    EXPECT_EQ(v.logica.BoletoActual, 1);
}

TEST(Visualizar, IrAUnBoleto) {
    Visor v;
    EXPECT_FALSE(v.logica.IrABoleto()); // nothing open
    v.Abrir(20);
    const std::string error = "[X] ERROR: EL NUMERO DE BOLETO DEBE ESTAR ENTRE 1 y 3";
    for (const char* malo : {"0", "4", "", "99999999999999", "x"}) {
        v.logica.txtIrboleto = malo;
        v.Cajas.clear();
        EXPECT_FALSE(v.logica.IrABoleto()) << malo;
        EXPECT_EQ(v.Cajas, Textos{error}) << malo;
        EXPECT_EQ(v.logica.BoletoActual, 1);
    }
    v.Cajas.clear();
    v.logica.txtIrboleto = "3";
    EXPECT_TRUE(v.logica.IrABoleto());
    EXPECT_EQ(v.logica.BoletoActual, 3);
}

TEST(Visualizar, UnFicheroMaloVaciaElVisor) {
    Visor v;
    v.Abrir(20);
    EscribirTodo(v.carpeta.Ruta("malo.TOM"), "x");
    v.Ficheros = {v.carpeta.Ruta("malo.TOM")};
    v.logica.cmdDesdeFichero();
    EXPECT_EQ(v.Cajas.size(), 2u);
    EXPECT_EQ(v.logica.lblNumeroBoleto(), "Boleto actual : 0/0");
    EXPECT_EQ(v.logica.lblApuestas, "0");
    EXPECT_EQ(v.Fila(0), "+");
    EXPECT_FALSE(v.logica.PuedeAvanzar() || v.logica.PuedeRetroceder());
}

TEST(Visualizar, LaCasillaEmpiezaPuestaEnPrimitiva) {
    EXPECT_TRUE(Visor(PRIMITIVA).logica.chkReintegros);
    EXPECT_FALSE(Visor(BONOLOTO).logica.chkReintegros);
}
