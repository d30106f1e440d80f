#include <random>

#include <gtest/gtest.h>

#include "FicheroApuestasLiteral.h"
#include "Guion.h"
#include "modEncriptarFichero.h"

namespace {

const std::string CajaLectura = "[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO ( ";

struct Lectura {
    std::vector<Apuesta> apuestas;
    int32_t cuenta = 0;
    Textos cajas;
};

Lectura Leer(const std::string& ruta, int juego = PRIMITIVA) {
    Guion guion;
    Tabla tabla;
    Lectura lectura;
    lectura.cuenta = LeerFicheroApuestas(ruta, tabla, nullptr, Juegos[static_cast<size_t>(juego)], guion.entorno);
    EXPECT_EQ(tabla.Filas(), 7);
    EXPECT_EQ(tabla.Apuestas(), lectura.cuenta);
    lectura.apuestas = Apuestas(tabla, 7);
    lectura.cajas = guion.Cajas;
    return lectura;
}

class FicheroApuestas : public testing::Test {
  protected:
    Lectura LeerBytes(const std::string& bytes, int juego = PRIMITIVA) {
        EscribirTodo(ruta, bytes);
        return Leer(ruta, juego);
    }
    Lectura LeerRegistros(const std::vector<std::string>& registros, int juego = PRIMITIVA) {
        return LeerBytes(FicheroDe(registros), juego);
    }

    CarpetaTemporal carpeta;
    std::string ruta = carpeta.Ruta("sistema.TOM");
};

std::vector<Apuesta> AlAzar(std::mt19937& azar, size_t cuantas, int digitos) {
    std::vector<Apuesta> apuestas(cuantas);
    std::vector<int> bombo(49);
    for (int i = 0; i < 49; ++i) bombo[static_cast<size_t>(i)] = i + 1;
    for (Apuesta& a : apuestas) {
        std::shuffle(bombo.begin(), bombo.end(), azar);
        a.assign(bombo.begin(), bombo.begin() + 6);
        if (azar() % 8 != 0) std::sort(a.begin(), a.end());
        a.push_back(static_cast<int>(azar() % static_cast<unsigned>(digitos)));
    }
    return apuestas;
}

Tabla TablaDe(const std::vector<Apuesta>& apuestas) {
    Tabla tabla(7, static_cast<int64_t>(apuestas.size()));
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (size_t r = 0; r < 7; ++r)
            tabla(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) = static_cast<uint8_t>(apuestas[i][r]);
    return tabla;
}

} // namespace

TEST(EncriptarRC4, BordesYVectorConocido) {
    EXPECT_EQ(EncriptarRC4("Plaintext", "Key"), "\xBB\xF3\x16\xE8\xD9\x40\xAF\x0A\xD3");
    EXPECT_EQ(EncriptarRC4("", "Key"), "0");
    EXPECT_EQ(EncriptarRC4("texto", ""), "0");
    EXPECT_EQ(EncriptarRC4(std::string(201, 'a'), "Key"), "0");
    const std::string limite(200, 'a');
    EXPECT_EQ(EncriptarRC4(EncriptarRC4(limite, "Key"), "Key"), limite);
}

TEST_F(FicheroApuestas, EscribeLosBytesDelEscritorLiteral) {
    std::mt19937 azar(1);
    for (const size_t n : {0u, 1u, 7u, 5999u, 6000u, 12001u}) {
        const auto apuestas = AlAzar(azar, n, 10);
        for (const std::string cabecera : {"", "0", "010203040506"}) {
            Guion guion;
            ASSERT_TRUE(GuardarFicheroApuestas(ruta, cabecera, static_cast<int32_t>(n), TablaDe(apuestas), nullptr,
                                               guion.entorno));
            EXPECT_EQ(LeerTodo(ruta), EscribirLiteral(cabecera, apuestas)) << n << " bets";
        }
    }
}

TEST_F(FicheroApuestas, UnElementoDeTresCifrasAlargaSuRegistro) {
    Guion guion;
    const std::vector<Apuesta> apuestas{{1, 2, 3, 4, 5, 6, 99}, {1, 2, 3, 4, 5, 106, 255}};
    ASSERT_TRUE(GuardarFicheroApuestas(ruta, "0", 2, TablaDe(apuestas), nullptr, guion.entorno));
    EXPECT_EQ(LeerTodo(ruta), EscribirLiteral("0", apuestas));
}

TEST_F(FicheroApuestas, ElProgresoLlegaCada6000AlGuardarYCada9000AlLeer) {
    std::mt19937 azar(2);
    const auto apuestas = AlAzar(azar, 18000, 10);
    Guion guion;
    Espera barra;
    std::vector<double> fracciones;
    guion.entorno.CederTurno = [&] { fracciones.push_back(barra.Fraccion); };
    ASSERT_TRUE(GuardarFicheroApuestas(ruta, "0", 18000, TablaDe(apuestas), &barra, guion.entorno));
    EXPECT_EQ(fracciones, (std::vector<double>{6000 / 18000., 12000 / 18000., 1}));

    Tabla tabla;
    std::string etiqueta;
    Textos etiquetas;
    guion.entorno.CederTurno = [&] { etiquetas.push_back(etiqueta); };
    EXPECT_EQ(LeerFicheroApuestas(ruta, tabla, &etiqueta, Juegos[PRIMITIVA], guion.entorno), 18000);
    EXPECT_EQ(etiquetas, (Textos{"9000", "18000"}));
    EXPECT_EQ(Apuestas(tabla, 7), apuestas);
}

TEST_F(FicheroApuestas, LeeLasFormasQueAdmiteUnRegistro) {
    const std::vector<std::pair<std::string, Apuesta>> casos{
        {"04,11,17,23,38,49+07", {4, 11, 17, 23, 38, 49, 7}},
        {"49,01,30,02,05,10+00", {49, 1, 30, 2, 5, 10, 0}},
        {"01,02,03,04,05,06", {1, 2, 3, 4, 5, 6, 1}},
        {"01,02,03,04,05,06,09", {1, 2, 3, 4, 5, 6, 1}},
        {"1,2,3,4,5,6+9", {1, 2, 3, 4, 5, 6, 9}},
        {"001,2,03,04,05,06+009", {1, 2, 3, 4, 5, 6, 9}},
        {" 1, 2 ,3,4,5,6+ 3", {1, 2, 3, 4, 5, 6, 3}},
        {"01+02,03,04,05,06,08", {1, 2, 3, 4, 5, 6, 8}},
        {"01,02,03,04,05,06+05+77", {1, 2, 3, 4, 5, 6, 5}},
        {std::string(180, '0') + "1,2,3,4,5,6+01  ", {1, 2, 3, 4, 5, 6, 1}},
    };
    for (const auto& [registro, apuesta] : casos) {
        const Lectura lectura = LeerRegistros({"0", "1", registro});
        EXPECT_EQ(lectura.cajas, Textos{}) << registro;
        EXPECT_EQ(lectura.apuestas, std::vector<Apuesta>{apuesta}) << registro;
    }
}

TEST_F(FicheroApuestas, RechazaRegistrosMalosConSuCaja) {
    struct Caso {
        const char* nombre;
        std::string registro;
        int juego;
        std::string detalle;
    };
    const std::vector<Caso> casos{
        {"cinco números", "01,02,03,04,05+06", PRIMITIVA, ""},
        {"cinco y nada", "01,02,03,04,05", PRIMITIVA, ""},
        {"letras", "01,02,03,0x,05,06+07", PRIMITIVA, ""},
        {"vacío", "", PRIMITIVA, ""},
        {"elemento vacío", "01,02,,04,05,06+07", PRIMITIVA, ""},
        {"cero", "00,02,03,04,05,06+07", PRIMITIVA, ""},
        {"cincuenta", "01,02,03,04,05,50+07", PRIMITIVA, ""},
        {"noventa y nueve", "01,02,03,04,05,99+07", PRIMITIVA, ""},
        {"no cabe en un byte", "01,02,03,04,05,262+07", PRIMITIVA, ""},
        {"no cabe en 32 bits", "4294967297,02,03,04,05,06+07", PRIMITIVA, ""},
        {"negativo", "-1,02,03,04,05,06+07", PRIMITIVA, ""},
        {"repetido", "01,02,03,04,05,05+07", PRIMITIVA, ""},
        {"repetido sin orden", "05,02,03,04,01,05+07", BONOLOTO, ""},
        {"dígito que no es número", "01,02,03,04,05,06+ab", PRIMITIVA, ""},
        {"dígito vacío", "01,02,03,04,05,06+", PRIMITIVA, ""},
        {"reintegro 10", "01,02,03,04,05,06+10", PRIMITIVA, "REINTEGROS INCORRECTOS"},
        {"reintegro 10 en BONOLOTO", "01,02,03,04,05,06+10", BONOLOTO, "REINTEGROS INCORRECTOS"},
        {"reintegro negativo", "01,02,03,04,05,06+-1", PRIMITIVA, "REINTEGROS INCORRECTOS"},
        {"sueño 0", "01,02,03,04,05,06+00", EURODREAMS, "SUEÑOS INCORRECTOS"},
        {"sueño 6", "01,02,03,04,05,06+06", EURODREAMS, "SUEÑOS INCORRECTOS"},
    };
    for (const Caso& caso : casos) {
        // Behind good bets, so that the failure also meets the fast path.
        const Lectura lectura =
            LeerRegistros({"0", "3", "01,02,03,04,05,06+03", "01,02,03,04,05,07+03", caso.registro}, caso.juego);
        ASSERT_EQ(lectura.cajas.size(), 1u) << caso.nombre;
        EXPECT_TRUE(lectura.cajas[0].starts_with(CajaLectura)) << lectura.cajas[0];
        EXPECT_TRUE(lectura.cajas[0].ends_with(" " + caso.detalle + ")")) << caso.nombre << ": " << lectura.cajas[0];
        EXPECT_EQ(lectura.cuenta, 0) << caso.nombre;
    }
}

TEST_F(FicheroApuestas, ElRegistroMasLargoEsDe200) {
    const std::string bueno = "1,2,3,4,5,6+07";
    EXPECT_EQ(LeerRegistros({"0", "1", std::string(200 - bueno.size(), '0') + bueno}).cuenta, 1);
    EXPECT_EQ(LeerRegistros({"0", "1", std::string(201 - bueno.size(), '0') + bueno}).cuenta, 0);
}

TEST_F(FicheroApuestas, LaCuentaManda) {
    const std::string apuesta = "01,02,03,04,05,06+07";
    const std::vector<std::pair<std::string, int>> buenas{{"2", 2}, {"1", 1}, {"0", 0}, {"0002", 2}, {" 2 ", 2}};
    for (const auto& [cuenta, leidas] : buenas) {
        const Lectura lectura = LeerRegistros({"cualquier cosa", cuenta, apuesta, apuesta});
        EXPECT_EQ(lectura.cuenta, leidas) << cuenta;
        EXPECT_EQ(lectura.cajas, Textos{}) << cuenta;
    }
    for (const std::string mala : {"3", "-1", "-2147483648", "", "dos", "2147483647x", "2147483648", "1e3"}) {
        const Lectura lectura = LeerRegistros({"0", mala, apuesta, apuesta});
        EXPECT_EQ(lectura.cuenta, 0) << mala;
        EXPECT_EQ(lectura.cajas.size(), 1u) << mala;
    }
}

TEST_F(FicheroApuestas, UnaCuentaExageradaAvisaYFallaDondeSeAcabanLosRegistros) {
    for (const std::string cuenta : {"13983817", "2147483647"}) {
        const Lectura lectura = LeerRegistros({"0", cuenta, "01,02,03,04,05,06+07"});
        ASSERT_EQ(lectura.cajas.size(), 2u);
        EXPECT_EQ(lectura.cajas[0], "[!] SOLO SE PUEDEN IMPORTAR 13983816 APUESTAS");
        EXPECT_TRUE(lectura.cajas[1].starts_with(CajaLectura));
        EXPECT_EQ(lectura.cuenta, 0);
    }
    // The digit is what fails first, even though the records would run out later.
    EXPECT_TRUE(LeerRegistros({"0", "500", "01,02,03,04,05,06+77"}).cajas[0].ends_with("REINTEGROS INCORRECTOS)"));
}

TEST_F(FicheroApuestas, CortadoEnCualquierByteFallaSinMas) {
    const std::string entero =
        FicheroDe({"010203040506", "3", "01,02,03,04,05,06+07", "1,2,3,4,5,6", "07,08,09,10,11,12+00"});
    for (size_t n = 0; n < entero.size(); ++n) {
        const Lectura lectura = LeerBytes(entero.substr(0, n));
        EXPECT_EQ(lectura.cuenta, 0) << n;
        ASSERT_EQ(lectura.cajas.size(), 1u) << n;
        EXPECT_TRUE(lectura.cajas[0].starts_with(CajaLectura)) << n;
    }
    EXPECT_EQ(LeerBytes(entero).cuenta, 3);
    EXPECT_EQ(LeerBytes(entero + "basura detrás").cuenta, 3);
}

TEST_F(FicheroApuestas, FicherosQueNoSonDeApuestas) {
    for (const std::string& bytes :
         {std::string("<XML><BASE/></XML>"), std::string(5000, '\xFF'), std::string(70000, '\0')}) {
        const Lectura lectura = LeerBytes(bytes);
        EXPECT_EQ(lectura.cuenta, 0);
        EXPECT_EQ(lectura.cajas.size(), 1u);
    }
    for (const std::string& otra :
         {carpeta.Ruta("no-existe.TOM"), carpeta.Ruta(), std::string("/dev/zero"), std::string()})
        EXPECT_EQ(Leer(otra).cajas.size(), 1u) << otra;
}

TEST_F(FicheroApuestas, UnaCabeceraDeCualquierTamanoSeSalta) {
    for (const size_t largo : {0u, 1u, 201u, 65535u}) {
        const std::string bytes = RegistroCrudo(std::string(largo, 'x')) + FicheroDe({"1", "01,02,03,04,05,06+07"});
        EXPECT_EQ(LeerBytes(bytes).cuenta, 1) << largo;
    }
}

// Records of all lengths move the blocks of the reader over every boundary.
TEST_F(FicheroApuestas, LeeLoMismoQueElLectorLiteral) {
    std::mt19937 azar(3);
    for (int vuelta = 0; vuelta < 60; ++vuelta) {
        const bool eurodreams = vuelta % 3 == 0;
        const size_t n = vuelta < 50 ? azar() % 40 : 30000;
        std::string bytes = FicheroDe({"0", std::to_string(n)});
        for (const Apuesta& a : AlAzar(azar, n, eurodreams ? 4 : 10)) {
            std::string texto;
            for (size_t i = 0; i < 6; ++i) texto += (i == 0 ? "" : ",") + DosCifras(a[i]);
            if (azar() % 10 != 0) texto += "+" + DosCifras(a[6] + (eurodreams ? 1 : 0));
            if (azar() % 50 == 0) texto.insert(0, azar() % 100, '0');
            if (azar() % 2000 == 0) texto[azar() % texto.size()] = "09,+x"[azar() % 5];
            bytes += Registro(texto);
        }
        const auto esperadas = LeerLiteral(bytes, eurodreams);
        const Lectura lectura = LeerBytes(bytes, eurodreams ? EURODREAMS : BONOLOTO);
        EXPECT_EQ(lectura.apuestas, esperadas.value_or(std::vector<Apuesta>{})) << vuelta;
        EXPECT_EQ(lectura.cajas.empty(), esperadas.has_value()) << vuelta;
    }
}
