#include "LogicaMultiEscrutinioMultiFichero.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "EscrutarLiteral.h"
#include "Guion.h"
#include "HistoriaInventada.h"
#include "modEncriptarFichero.h"
#include "modImportarASCII.h"

namespace {

constexpr const char* Cabecera =
    "FICHERO                    APUESTAS   DE6       DE5       DE4       DE3       DE2       DE1       DE0\n";

class MultiFichero : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    Guion guion;
    LogicaMultiEscrutinioMultiFichero logica{guion.sesion, guion.entorno};

    void SetUp() override { guion.entorno.CarpetaInformes = carpeta.Ruta(); }
    std::string Fichero(const std::string& nombre, const std::string& texto) {
        EscribirTodo(carpeta.Ruta(nombre), texto);
        return carpeta.Ruta(nombre);
    }
    // Two draws.
    void CargarSorteos() { ASSERT_TRUE(logica.CargarSorteos(Fichero("sorteos.txt", "010203040506\n040506070809\n"))); }
    std::string Informe(int i) {
        return LeerTodo(carpeta.Ruta(fmt::format("TOMBOLERA_DETALLEPREMIOS_FICHERO{}.txt", i)));
    }
};

TEST_F(MultiFichero, ElResumenTieneUnaFilaPorFichero) {
    CargarSorteos();
    EXPECT_EQ(logica.lblApuCargadas, "2");
    logica.AnadirFicheros({Fichero("a.txt", "010203040506\n010203040507\n404142434445\n"), Fichero("vacio.txt", ""),
                           Fichero("con treinta letras y una ñ.asc", "01,02,03,10,11,12\n"), carpeta.Ruta("a.txt"),
                           carpeta.Ruta("falta.TOM")});
    EXPECT_TRUE(logica.imgEscrutar());
    EXPECT_EQ(logica.txtInforme, std::string(Cabecera) +
                                     "a.txt                      3          1         1         0         2         0  "
                                     "       0         2         \n"
                                     "vacio.txt                  0          (error al leer el fichero)\n"
                                     "con treinta letras y una ñ 1          0         0         0         1         0  "
                                     "       0         1         \n"
                                     "a.txt                      3          1         1         0         2         0  "
                                     "       0         2         \n"
                                     "falta.TOM                  0          (error al leer el fichero)\n");
    EXPECT_EQ(guion.Cajas, Textos{"[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO ( no existe el fichero o la "
                                  "carpeta )"});
    EXPECT_EQ(TablaEscrutados(logica.Escrutados), "Fichero\tApuestas\tDE6\tDE5\tDE4\tDE3\tDE2\tDE1\tDE0\n"
                                                  "a.txt\t3\t1\t1\t0\t2\t0\t0\t2\n"
                                                  "vacio.txt\t0\t\t\t\t\t\t\t\n"
                                                  "con treinta letras y una ñ.asc\t1\t0\t0\t0\t1\t0\t0\t1\n"
                                                  "a.txt\t3\t1\t1\t0\t2\t0\t0\t2\n"
                                                  "falta.TOM\t0\t\t\t\t\t\t\t\n");
    EXPECT_EQ(logica.lblEstado, "Ventana de estado : -");
    EXPECT_EQ(logica.lblImportando, "0");
    EXPECT_TRUE(logica.imgVerInformeResumenPremios());
    EXPECT_EQ(guion.Informes, Textos{carpeta.Ruta("TOMBOLERA_RESUMENPREMIOS.txt")});
    EXPECT_TRUE(LeerTodo(guion.Informes[0]).starts_with(std::string(Cabecera, std::strlen(Cabecera) - 1) + "\r\n"));
}

TEST_F(MultiFichero, ElDetalleEsUnInformePorFichero) {
    CargarSorteos();
    logica.chkTipoListadoPremios = true;
    logica.AnadirFicheros({Fichero("a.txt", "010203040506\n404142434445\n"), Fichero("malo.txt", "010203\nno son nada"),
                           Fichero("b.txt", "060708091011\n")});
    EXPECT_TRUE(logica.imgEscrutar());
    EXPECT_EQ(logica.txtInforme, "Fichero 1: a.txt\nApuestas Fichero 1: 2\n"
                                 "Fichero 2: malo.txt\nApuestas Fichero 2: 0\n(error al leer el fichero)\n"
                                 "Fichero 3: b.txt\nApuestas Fichero 3: 1\n");
    EXPECT_EQ(Informe(1),
              "000001. 01,02,03,04,05,06 = 1         0         0         0         0         0         1         \r\n"
              "000002. 04,05,06,07,08,09 = 0         0         0         1         0         0         1         \r\n");
    EXPECT_EQ(Informe(3),
              "000001. 01,02,03,04,05,06 = 0         0         0         0         0         1         0         \r\n"
              "000002. 04,05,06,07,08,09 = 0         0         1         0         0         0         0         \r\n");
    EXPECT_EQ(guion.Informes, (Textos{carpeta.Ruta("TOMBOLERA_DETALLEPREMIOS_FICHERO1.txt"),
                                      carpeta.Ruta("TOMBOLERA_DETALLEPREMIOS_FICHERO3.txt")}));
}

TEST_F(MultiFichero, LaListaDeFicheros) {
    logica.Seleccionado = 0;
    EXPECT_FALSE(logica.cmdDEL());
    guion.entorno.PedirVarios = [&](const PeticionFichero& peticion) {
        EXPECT_EQ(peticion.Titulo, "Abrir Fichero");
        EXPECT_EQ(peticion.Filtros.size(), 3u);
        return Textos{"/x/a.TOM", "/x/b.TOM", "/x/a.TOM"};
    };
    EXPECT_TRUE(logica.cmdADD());
    EXPECT_FALSE(logica.cmdDEL() && logica.cmdDEL()) << "nothing is selected after the first";
    EXPECT_EQ(logica.lstFicheros, (Textos{"/x/b.TOM", "/x/a.TOM"}));
    EXPECT_FALSE(logica.AnadirFicheros(Textos(1001, "c.TOM")));
    EXPECT_TRUE(logica.AnadirFicheros(Textos(1000, "c.TOM")));
    EXPECT_EQ(logica.lstFicheros.size(), 1002u);
    guion.Respuestas = {false, true};
    logica.cmdDELALL();
    EXPECT_EQ(logica.lstFicheros.size(), 1002u);
    logica.cmdDELALL();
    EXPECT_TRUE(logica.lstFicheros.empty());
    const std::string ninguno = "[!] DEBE SELECCIONAR UN FICHERO DE LA LISTA PARA ELIMINARLO";
    const std::string borrar = "[?] ¿ ESTA SEGURO QUE QUIERE BORRAR TODA LA LISTA DE FICHEROS ?";
    EXPECT_EQ(guion.Cajas, (Textos{ninguno, ninguno, "[!] SOLO SE PERMITEN CARGAR 1000 FICHEROS PARA ESCRUTAR",
                                   borrar + " -> no", borrar + " -> sí"}));
}

TEST_F(MultiFichero, LasComprobacionesVanEnSuOrden) {
    EXPECT_FALSE(logica.imgVerInformeResumenPremios());
    EXPECT_FALSE(logica.imgEscrutar());
    std::string muchos;
    for (int i = 0; i < 1000000; ++i) muchos += "010203040506\r\n";
    ASSERT_TRUE(logica.CargarSorteos(Fichero("muchos.txt", muchos)));
    EXPECT_EQ(logica.lblApuCargadas, "1.000.000");
    EXPECT_FALSE(logica.imgEscrutar());
    muchos.resize(muchos.size() - 14);
    ASSERT_TRUE(logica.CargarSorteos(Fichero("muchos.txt", muchos)));
    EXPECT_FALSE(logica.imgEscrutar());
    logica.AnadirFicheros({Fichero("a.txt", "010203040506\n")});
    EXPECT_TRUE(logica.imgEscrutar());
    EXPECT_NE(logica.txtInforme.find("a.txt                      1          999999    0         "), std::string::npos);
    logica.imgINICombinacionSORTEOS();
    EXPECT_EQ(logica.lblApuCargadas + logica.txtFicheroASCIISORTEOS, "0");
    EXPECT_FALSE(logica.imgEscrutar());
    const std::string sinSorteos = "[X] ERROR: No hay Fichero de SORTEOS cargado para escrutar";
    EXPECT_EQ(guion.Cajas,
              (Textos{"[!] NO SE HA GENERADO TODAVIA NINGUN INFORME", sinSorteos,
                      "[X] ERROR: El Fichero de SORTEOS tienes más de 999.999 apuestas que es el máximo permitido para "
                      "ser escrutado",
                      "[!] NO HAY NINGUN FICHERO CARGADO PARA ESCRUTAR", sinSorteos}));
}

TEST_F(MultiFichero, SorteosQueNoSeLeenDejanLosAnteriores) {
    CargarSorteos();
    EXPECT_FALSE(logica.CargarSorteos(Fichero("malo.txt", "01,02,03,04,05,99\n")));
    EXPECT_FALSE(logica.CargarSorteos(Fichero("vacio.txt", "")));
    EXPECT_EQ(logica.lblApuCargadas, "2");
    EXPECT_EQ(logica.txtFicheroASCIISORTEOS, carpeta.Ruta("sorteos.txt"));
    ASSERT_EQ(guion.Cajas.size(), 2u);
    EXPECT_TRUE(guion.Cajas[0].starts_with("[X] ERROR AL IMPORTAR EL FICHERO"));
    EXPECT_EQ(guion.Cajas[1], std::string("[!] ") + AvisoSinApuestas);
}

// The stop skips the file in hand, whatever the moment, and the others come out as without it.
TEST_F(MultiFichero, UnaParadaEnCadaMomentoSaltaEseFichero) {
    std::string apuestas;
    for (const Sorteo& s : SorteosInventados(PRIMITIVA, 5000))
        apuestas += fmt::format("{:02}\r\n", fmt::join(s.numeros.begin(), s.numeros.begin() + 6, ""));
    CargarSorteos();
    const std::string ruta = Fichero("a.txt", apuestas);
    for (const bool detalle : {false, true}) {
        logica.chkTipoListadoPremios = detalle;
        logica.lstFicheros = {ruta, ruta, ruta};
        const int antes = guion.Turnos;
        ASSERT_TRUE(logica.imgEscrutar());
        const Textos entero = {logica.txtInforme};
        const int turnos = guion.Turnos - antes;
        for (int t = 1; t <= turnos; ++t) {
            for (int i = 1; i <= 3; ++i)
                std::filesystem::remove(carpeta.Ruta(fmt::format("TOMBOLERA_DETALLEPREMIOS_FICHERO{}.txt", i)));
            bool escrutando = false;
            guion.EnTurno(guion.Turnos + t, [&] {
                escrutando = logica.Escrutando;
                EXPECT_FALSE(logica.PuedeCerrar());
                logica.cmdStop();
            });
            EXPECT_TRUE(logica.imgEscrutar());
            const auto saltados = std::count_if(logica.Escrutados.begin(), logica.Escrutados.end(),
                                                [](const FicheroEscrutado& f) { return !f.Escrutado; });
            EXPECT_EQ(saltados, escrutando ? 1 : 0) << t;
            EXPECT_EQ(logica.txtInforme == entero[0], !escrutando);
            int informes = 0;
            for (int i = 1; i <= 3; ++i)
                informes +=
                    std::filesystem::exists(carpeta.Ruta(fmt::format("TOMBOLERA_DETALLEPREMIOS_FICHERO{}.txt", i)));
            EXPECT_EQ(informes, detalle ? 3 - saltados : 0);
        }
        EXPECT_FALSE(logica.Ocupada());
    }
    EXPECT_EQ(guion.Cajas, Textos{});
}

TEST_F(MultiFichero, LaFilaDetenidaLoDiceEnSuLinea) {
    CargarSorteos();
    const std::string ruta = Fichero("a.txt", "010203040506\n");
    logica.AnadirFicheros({ruta, ruta});
    guion.EnTurno(2, [this] { logica.cmdStop(); });
    EXPECT_TRUE(logica.imgEscrutar());
    EXPECT_EQ(logica.txtInforme, std::string(Cabecera) +
                                     "a.txt                      1          (proceso detenido, fichero no escrutado)\n"
                                     "a.txt                      1          1         0         0         1         0  "
                                     "       0         0         \n");
}

TEST_F(MultiFichero, MilFicherosConIlegiblesEntreEllos) {
    CargarSorteos();
    const std::string bueno = Fichero("a.txt", "010203040506\n"), malo = Fichero("b.TOM", "esto no es un sistema");
    Textos rutas;
    for (int i = 0; i < 1000; ++i) rutas.push_back(i % 10 == 3 ? malo : i % 10 == 7 ? carpeta.Ruta() : bueno);
    ASSERT_TRUE(logica.AnadirFicheros(rutas));
    EXPECT_TRUE(logica.imgEscrutar());
    EXPECT_EQ(guion.Cajas.size(), 200u);
    EXPECT_EQ(std::count(logica.txtInforme.begin(), logica.txtInforme.end(), '\n'), 1001);
    EXPECT_EQ(std::count_if(logica.Escrutados.begin(), logica.Escrutados.end(),
                            [](const FicheroEscrutado& f) { return f.Escrutado && f.Aciertos[6] == 1; }),
              800);
}

TEST_F(MultiFichero, UnaCarpetaDeInformesDondeNoSePuedeEscribirAcabaElProceso) {
    CargarSorteos();
    guion.entorno.CarpetaInformes = carpeta.Ruta("no-existe");
    const std::string ruta = Fichero("a.txt", "010203040506\n");
    logica.AnadirFicheros({ruta, ruta, ruta});
    EXPECT_TRUE(logica.imgEscrutar()) << "the summary needs no file";
    EXPECT_FALSE(logica.imgVerInformeResumenPremios());
    logica.chkTipoListadoPremios = true;
    EXPECT_FALSE(logica.imgEscrutar());
    const std::string caja = "[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (no existe el fichero o la carpeta)";
    EXPECT_EQ(guion.Cajas, (Textos{caja, caja}));
    EXPECT_EQ(logica.Escrutados.size(), 1u);
    EXPECT_FALSE(logica.Ocupada());
}

TEST_F(MultiFichero, VolverPregunta) {
    guion.Respuestas = {false, true};
    EXPECT_FALSE(logica.PuedeCerrar());
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_EQ(guion.Cajas.size(), 2u);
    EXPECT_TRUE(guion.Cajas[0].starts_with("[?] Se perderán todos los cálculos, ¿ SEGURO QUE DESEAS VOLVER ?"));
}

} // namespace
