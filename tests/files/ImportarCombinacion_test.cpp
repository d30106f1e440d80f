#include "ImportarCombinacion.h"

#include <gtest/gtest.h>

#include "Boleto.h"
#include "Guion.h"
#include "Sesiones.h"
#include "modEncriptarFichero.h"
#include "modXML.h"

namespace {

const std::string SinApuestas = "[!] AVISO: Se han importado 0 apuestas.\nEl fichero ha de estar en formato: "
                                "010203040506 o 01,02,03,04,05,06 o 01 02 03 04 05 06";
const std::string SinReintegros = "[!] AVISO: La combinación importada no tiene reintegros, se le ha asignado a la "
                                  "combinación el REINTEGRO 1 por defecto.";
const std::string SinSuenos =
    "[!] AVISO: La combinación importada no tiene sueños, se le ha asignado a la combinación el SUEÑO 1 por defecto.";
const std::string VariosReintegros =
    "[!] AVISO: LA COMBINACION IMPORTADA TIENE MAS DE 1 REINTEGRO. AL CALCULAR, FILTRAR O REDUCIR SE GENERARAN "
    "REINTEGROS ALEATORIAMENTE EN BASE A LOS REINTEGROS IMPORTADOS";
const std::string VariosSuenos =
    "[!] AVISO: LA COMBINACION IMPORTADA TIENE MAS DE 1 SUEÑO. AL CALCULAR, FILTRAR O REDUCIR SE GENERARAN SUEÑOS "
    "ALEATORIAMENTE EN BASE A LOS SUEÑOS IMPORTADOS";

std::string Repetidas(int n) {
    return "[!] AVISO: El sistema importado tiene apuestas repetidas y estas han sido eliminadas\n"
           "TOTAL apuestas repetidas: " +
           std::to_string(n);
}

struct Importacion : Guion {
    CarpetaTemporal carpeta;
    EstadoTrabajo& trabajo = sesion.trabajo;

    bool Texto(const std::string& bytes) {
        EscribirTodo(carpeta.Ruta("a.txt"), bytes);
        return ImportarFichero(carpeta.Ruta("a.txt"), sesion, entorno);
    }

    bool Tom(const std::vector<Apuesta>& apuestas) {
        Tabla tabla(7, static_cast<int64_t>(apuestas.size()));
        for (size_t i = 0; i < apuestas.size(); ++i)
            for (size_t r = 0; r < 7; ++r)
                tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
        EXPECT_TRUE(GuardarFicheroApuestas(carpeta.Ruta("a.TOM"), "0", static_cast<int32_t>(apuestas.size()), tabla,
                                           nullptr, entorno));
        return ImportarFichero(carpeta.Ruta("a.TOM"), sesion, entorno);
    }

    Apuesta Base() const {
        return {trabajo.BaseNumeros.begin() + 1, trabajo.BaseNumeros.begin() + 1 + trabajo.NumerosBase};
    }
    Apuesta Digitos() const {
        Apuesta marcados;
        for (int d = 0; d < 10; ++d)
            if (trabajo.lblReintegro[static_cast<size_t>(d)]) marcados.push_back(d);
        return marcados;
    }
    void EsperarCuenta(int n) const {
        EXPECT_EQ(trabajo.NApuestasImportadas, n);
        EXPECT_EQ(trabajo.Contador.Iniciales, n);
        EXPECT_EQ(trabajo.Contador.Condicionadas, n);
        EXPECT_EQ(trabajo.Contador.Reducidas, n);
        EXPECT_EQ(trabajo.Contador.Progreso, "");
        EXPECT_FALSE(trabajo.FormularioBloqueado);
    }
};

} // namespace

TEST(ImportarCombinacion, UnFicheroDejaBaseMarcasTablasYContadores) {
    Importacion m;
    m.Marcar({1, 2, 3, 40, 41, 49});
    m.MarcarDigitos({3, 9});
    m.trabajo.cboTipoReintegro = Secuenciales;
    m.sesion.condiciones.lstFiltros[8].Activo = true;
    m.sesion.condiciones.lstFiltros[8].Eliminadas = 77;
    m.sesion.condiciones.EliminadasPorFiltro[8] = 77;
    m.trabajo.chkReintegros = true;
    m.Ficheros = {m.carpeta.Ruta("apuestas.txt")};
    EscribirTodo(m.carpeta.Ruta("apuestas.txt"), "10,12,14,16,18,20+4\r\n01,02,03,04,05,06+4\r\n");
    ASSERT_TRUE(ImportarCombinacion(m.sesion, m.entorno));

    ASSERT_EQ(m.Peticiones.size(), 1u);
    EXPECT_EQ(m.Peticiones[0].Titulo, "Abrir Fichero");
    EXPECT_EQ(m.Peticiones[0].Filtros[m.Peticiones[0].FiltroElegido].first, "Ficheros en formato TOMBOLERA (*.TOM)");
    EXPECT_EQ(m.Cajas, Textos{});
    EXPECT_EQ(m.trabajo.cboTipoCombinacion, PronosticoDesdeArchivo);
    EXPECT_EQ(m.trabajo.cboTipoReintegro, AlDirecto);
    EXPECT_EQ(m.trabajo.txtFicheroASCII, m.carpeta.Ruta("apuestas.txt"));
    EXPECT_FALSE(m.trabajo.CombinacionGuardada);
    EXPECT_EQ(m.Base(), (Apuesta{1, 2, 3, 4, 5, 6, 10, 12, 14, 16, 18, 20}));
    EXPECT_EQ(m.Digitos(), (Apuesta{4}));
    const std::vector<Apuesta> bets{{10, 12, 14, 16, 18, 20, 4}, {1, 2, 3, 4, 5, 6, 4}};
    EXPECT_EQ(Apuestas(m.trabajo.ApuestasImportadas, 7), bets);
    EXPECT_EQ(Apuestas(m.trabajo.ApuestasReducidas, 7), bets);
    m.EsperarCuenta(2);
    EXPECT_EQ(TextoTipoCombinacion(m.trabajo), "12 Números");
    // The conditions stay, what they eliminated does not.
    EXPECT_TRUE(m.sesion.condiciones.lstFiltros[8].Activo);
    EXPECT_FALSE(m.sesion.condiciones.lstFiltros[8].Eliminadas.has_value());
    EXPECT_EQ(m.sesion.condiciones.EliminadasPorFiltro[8], 0);
}

TEST(ImportarCombinacion, SinFicheroElegidoNadaCambia) {
    Importacion m;
    m.Marcar({1, 2, 3, 4, 5, 6, 7});
    EXPECT_FALSE(ImportarCombinacion(m.sesion, m.entorno));
    EXPECT_EQ(m.trabajo.cboTipoCombinacion, PronosticoManual);
    EXPECT_EQ(m.trabajo.Contador.Iniciales, 7);
    EXPECT_TRUE(m.trabajo.CombinacionGuardada);
    EXPECT_EQ(m.Cajas, Textos{});
}

TEST(ImportarCombinacion, AvisosYDigitosDeCadaJuego) {
    struct Caso {
        int juego;
        bool con;
        std::string bytes; // ".TOM" when empty: two bets with digits 2 and 3
        Textos cajas;
        Apuesta digitos, fila7;
    };
    const std::string dos = "01,02,03,04,05,06+2\n07,08,09,10,11,12+3\n",
                      iguales = "010203040506+2\r\n0203040506072\r\n";
    const std::vector<Caso> casos{
        {PRIMITIVA, true, dos, {VariosReintegros}, {2, 3}, {2, 3}},
        {PRIMITIVA, true, iguales, {}, {2}, {2, 2}},
        {PRIMITIVA, true, "", {VariosReintegros}, {2, 3}, {2, 3}},
        {PRIMITIVA, false, dos, {SinReintegros}, {1}, {1, 1}},
        {PRIMITIVA, false, "", {SinReintegros}, {1}, {1, 1}},
        {EURODREAMS, true, dos, {VariosSuenos}, {2, 3}, {2, 3}},
        {EURODREAMS, true, iguales, {}, {2}, {2, 2}},
        {EURODREAMS, false, "", {SinSuenos}, {1}, {1, 1}},
        {BONOLOTO, false, dos, {}, {}, {0, 0}},
        {BONOLOTO, false, "", {}, {}, {2, 3}},
        {BONOLOTO, true, dos, {}, {}, {2, 3}},
    };
    for (const Caso& caso : casos) {
        Importacion m;
        CambiarJuego(m.sesion, caso.juego);
        m.trabajo.chkReintegros = caso.con;
        EXPECT_TRUE(caso.bytes.empty() ? m.Tom({{1, 2, 3, 4, 5, 6, 2}, {7, 8, 9, 10, 11, 12, 3}})
                                       : m.Texto(caso.bytes));
        EXPECT_EQ(m.Cajas, caso.cajas);
        EXPECT_EQ(m.Digitos(), caso.digitos);
        EXPECT_EQ((Apuesta{m.trabajo.ApuestasReducidas(7, 1), m.trabajo.ApuestasReducidas(7, 2)}), caso.fila7);
    }
}

TEST(ImportarCombinacion, LasRepetidasSeVanYQuedaLaPrimera) {
    Importacion m;
    m.trabajo.chkReintegros = true;
    // The second one has the numbers of the first in another order; the table keeps each as it stands.
    ASSERT_TRUE(m.Tom({{6, 5, 4, 3, 2, 1, 8},
                       {1, 2, 3, 4, 5, 6, 7},
                       {49, 2, 3, 4, 5, 6, 8},
                       {2, 3, 4, 5, 6, 49, 8},
                       {1, 2, 3, 4, 5, 49, 8}}));
    EXPECT_EQ(m.Cajas, (Textos{VariosReintegros, Repetidas(2)}));
    EXPECT_EQ(Apuestas(m.trabajo.ApuestasImportadas, 7),
              (std::vector<Apuesta>{{6, 5, 4, 3, 2, 1, 8}, {49, 2, 3, 4, 5, 6, 8}, {1, 2, 3, 4, 5, 49, 8}}));
    EXPECT_EQ(m.trabajo.ApuestasReducidas, m.trabajo.ApuestasImportadas);
    EXPECT_EQ(m.Digitos(), (Apuesta{7, 8})); // marks tell what the file had, repeats included
    m.EsperarCuenta(3);
}

TEST(ImportarCombinacion, UnFalloOUnFicheroVacioDejaUnaBaseVacia) {
    const std::string fallo = "[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (datos incorrectos: Apuestas con "
                              "números no en orden ascendente (Apuesta 2))";
    for (const auto& [bytes, cajas] :
         {std::pair<std::string, Textos>{"010203040506\r\n060504030201\r\n", {fallo, SinApuestas}},
          {"", {SinApuestas}},
          {"0102030405\r\n", {SinApuestas}}}) {
        Importacion m;
        m.trabajo.chkReintegros = false;
        ASSERT_TRUE(m.Texto("010203040506\r\n"));
        m.Cajas.clear();
        EXPECT_FALSE(m.Texto(bytes));
        EXPECT_EQ(m.Cajas, cajas);
        EXPECT_EQ(m.Base(), Apuesta{});
        EXPECT_EQ(m.Digitos(), Apuesta{});
        EXPECT_EQ(ContarBase(m.trabajo), 0);
        EXPECT_EQ(m.trabajo.cboTipoCombinacion, PronosticoDesdeArchivo);
        m.EsperarCuenta(0);
    }
}

TEST(ImportarCombinacion, LoQueNoSeAbreDejaTodoComoEstaba) {
    Importacion m;
    m.Marcar({1, 2, 3, 4, 5, 6, 7});
    for (const std::string& ruta : {m.carpeta.Ruta("nada.txt"), m.carpeta.Ruta("nada.TOM"), m.carpeta.Ruta()}) {
        m.Cajas.clear();
        EXPECT_FALSE(ImportarFichero(ruta, m.sesion, m.entorno));
        ASSERT_EQ(m.Cajas.size(), 2u);
        EXPECT_TRUE(m.Cajas[0].starts_with("[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (")) << m.Cajas[0];
        EXPECT_EQ(m.Cajas[1], SinApuestas);
        EXPECT_EQ(ContarBase(m.trabajo), 7);
        EXPECT_EQ(m.trabajo.Contador.Iniciales, 7);
        EXPECT_EQ(m.trabajo.cboTipoCombinacion, PronosticoManual);
        EXPECT_EQ(m.trabajo.txtFicheroASCII, "");
        EXPECT_FALSE(m.trabajo.FormularioBloqueado);
    }
}

TEST(ImportarCombinacion, MientrasLeeYAnalizaLaVentanaEstaBloqueada) {
    Importacion m;
    m.trabajo.chkReintegros = false;
    m.Marcar({30, 31});
    std::string bytes;
    for (int i = 0; i < 9500; ++i) bytes += i % 2 == 0 ? "010203040506\r\n" : "010203040507\r\n";
    Textos vistos;
    const auto mirar = [&] {
        EXPECT_TRUE(m.trabajo.FormularioBloqueado);
        vistos.push_back(std::to_string(ContarBase(m.trabajo)) + " " + m.trabajo.Contador.Progreso);
    };
    m.EnTurno(1, mirar); // 9000 read
    m.EnTurno(2, mirar); // 5000 looked at
    ASSERT_TRUE(m.Texto(bytes));
    EXPECT_EQ(m.Turnos, 2);
    EXPECT_EQ(vistos, (Textos{"0 9000", "7 Analizando ..."}));
    EXPECT_EQ(m.Cajas, (Textos{SinReintegros, Repetidas(9498)}));
    m.EsperarCuenta(2);
}

TEST(ImportarCombinacion, NumerosDeFueraDelBoletoDeEURODREAMS) {
    Importacion m;
    CambiarJuego(m.sesion, EURODREAMS);
    m.trabajo.chkReintegros = false;
    ASSERT_TRUE(m.Texto("010203044149\r\n"));
    EXPECT_EQ(m.Base(), (Apuesta{1, 2, 3, 4, 41, 49}));
    EXPECT_EQ(ContarBase(m.trabajo), 6);
    // Back on the ticket they do not count.
    m.trabajo.cboTipoCombinacion = PronosticoManual;
    EXPECT_EQ(ContarBase(m.trabajo), 4);
}

TEST(ImportarCombinacion, UnFicheroBaseTraeCondicionesYConservaJuegoYApuestas) {
    Importacion m;
    for (const int juego : {PRIMITIVA, EURODREAMS}) {
        IniciarSesion(m.sesion, m.entorno);
        CambiarJuego(m.sesion, juego);
        m.Marcar({7, 8, 9});
        m.sesion.condiciones.lstFiltros[8].Activo = true;
        EscribirTodo(m.carpeta.Ruta("base.xml"), GenerarXMLBase(m.sesion, m.entorno));
        IniciarSesion(m.sesion, m.entorno);
        m.trabajo.chkReintegros = false;
        ASSERT_TRUE(m.Texto("010203044149\r\n"));
        m.Cajas.clear();
        ASSERT_TRUE(AbrirFicheroBase(m.carpeta.Ruta("base.xml"), m.sesion, m.entorno));
        EXPECT_EQ(m.Cajas, Textos{});
        EXPECT_EQ(m.trabajo.cboTipoJuego, PRIMITIVA);
        EXPECT_TRUE(m.sesion.condiciones.lstFiltros[8].Activo);
        EXPECT_EQ(ContarBase(m.trabajo), 6);
        EXPECT_EQ(m.Digitos(), (Apuesta{1}));
        m.EsperarCuenta(1);
    }
}
