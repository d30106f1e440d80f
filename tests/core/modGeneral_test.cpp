#include "modGeneral.h"

#include <gtest/gtest.h>

#include <random>

#include "modOrdenaciones.h"

namespace {

// All codes below 256 that a mode lets through on this text, as the keys they become.
std::string Aceptadas(int modo, const std::string& texto, bool reemplaza = false) {
    std::string salida;
    for (int tecla = 1; tecla < 256; ++tecla) {
        std::string copia = texto;
        if (const TeclaFiltrada f = FiltroTecla(copia, tecla, modo, reemplaza); f.Tecla != 0)
            salida += static_cast<char>(f.Tecla);
    }
    return salida;
}

const std::string Control = "\x08\x1B";
const std::string Cifras = "0123456789", Mayusculas = "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
                  Minusculas = "abcdefghijklmnopqrstuvwxyz";

std::string Ordenada(std::string s) {
    std::sort(s.begin(), s.end(), [](char a, char b) { return static_cast<uint8_t>(a) < static_cast<uint8_t>(b); });
    return s;
}

} // namespace

TEST(FiltroTecla, LoQueAceptaCadaModo) {
    struct Caso {
        int modo;
        std::string texto, aceptadas;
    };
    const Caso casos[] = {
        {0, "", ""},
        {20, "", ""},
        {1, "", Control + Cifras},
        {3, "", Control + Cifras + Mayusculas + Minusculas},
        {4, "1", Control + ",." + Cifras},
        {4, "1,5", Control + "." + Cifras},
        {5, "", Control + "\r" + Cifras + Mayusculas + Minusculas},
        {8, "", Control + "+-" + Cifras},
        {8, "4", Control + Cifras},
        {9, "", Control + " " + Cifras + Mayusculas + Minusculas},
        {10, "", Control + Cifras + Mayusculas + Mayusculas + "\xD1\xD1"},
        {12, "", "\x08"},
        {13, "abc", Control + Cifras + Mayusculas + Mayusculas},
        {13, "abcdefghijklm", Control},
        {16, "", Control + "dmyhn:/#0,><. %\\()-+"},
        {17, "", Control + "\r" + Cifras},
        {18, "", Control + "1234"},
        {19, "", Control + "\r 1234"},
    };
    for (const Caso& caso : casos)
        EXPECT_EQ(Ordenada(Aceptadas(caso.modo, caso.texto)), Ordenada(caso.aceptadas))
            << "mode " << caso.modo << " on \"" << caso.texto << "\"";
    EXPECT_EQ(Aceptadas(2, "").size(), 255u - 10u);
    EXPECT_EQ(Aceptadas(11, "").size(), 254u - 32u + 1u - 1u + 2u);
    EXPECT_EQ(Aceptadas(14, "").size(), 255u - 10u);
    EXPECT_EQ(Ordenada(Aceptadas(13, "abcdefghijklm", true)), Ordenada(Control + Cifras + Mayusculas + Mayusculas));
}

TEST(FiltroTecla, LasRechazadasPitanSalvoEnModosQueNoExisten) {
    std::string texto;
    EXPECT_TRUE(FiltroTecla(texto, 'a', 1).Pitido);
    EXPECT_TRUE(FiltroTecla(texto, TeclaEscape, 12).Pitido);
    EXPECT_FALSE(FiltroTecla(texto, '1', 0).Pitido);
    EXPECT_FALSE(FiltroTecla(texto, '1', 1).Pitido);
}

TEST(FiltroTecla, LasMascarasEscribenSuSeparador) {
    struct Caso {
        int modo;
        const char *antes, *despues;
        int tecla;
    };
    const Caso casos[] = {
        {6, "1", "17/", 0},     {7, "17/0", "17/07/", 0},  {15, "1", "17:", 0},         {6, "", "", '7'},
        {6, "17/", "17/", '7'}, {15, "17:3", "17:37:", 0}, {6, "17/05/", "17/05/", '7'}};
    for (const Caso& caso : casos) {
        std::string texto = caso.antes;
        const TeclaFiltrada f = FiltroTecla(texto, '7', caso.modo);
        EXPECT_EQ(texto, caso.despues);
        EXPECT_EQ(f.Tecla, caso.tecla);
        EXPECT_FALSE(f.Pitido);
    }
}

TEST(Lineas, SeparadorDeCampos) {
    struct Caso {
        const char *linea, *separador;
        bool ninguno;
    };
    for (const Caso& caso : {Caso{"01 02,03", " ", false}, Caso{"01,02", ",", false}, Caso{"01-02", ",", false},
                             Caso{"010203", "", true}, Caso{"", "", true}}) {
        std::string separador = "?";
        EXPECT_EQ(SeparadorDeCampos(caso.linea, separador), caso.ninguno) << caso.linea;
        EXPECT_EQ(separador, caso.separador) << caso.linea;
    }
    EXPECT_EQ(QuitarSeparadores("*01-02,03+04 05;"), "0102030405;");
}

TEST(Numeros, FormatosYLectura) {
    EXPECT_EQ(FormatoMiles(13983816, '.'), "13.983.816");
    EXPECT_EQ(FormatoMiles(999, '.'), "999");
    EXPECT_EQ(FormatoMiles(1000, ','), "1,000");
    EXPECT_EQ(FormatoMiles(-1234, '.'), "-1.234");
    EXPECT_EQ(FormatoMiles(0, '.'), "0");
    EXPECT_EQ(Formato00(7), "07");
    EXPECT_EQ(Formato00(49), "49");
    struct Caso {
        const char* texto;
        bool vale;
        int32_t n;
    };
    for (const Caso& caso :
         {Caso{" 12 ", true, 12}, Caso{"+5", true, 5}, Caso{"-5", true, -5}, Caso{"007", true, 7},
          Caso{"2147483647", true, 2147483647}, Caso{"2147483648", false, -1}, Caso{"", false, -1},
          Caso{"1.0", false, -1}, Caso{"1 2", false, -1}, Caso{"+-5", false, -1}, Caso{"x", false, -1}}) {
        int32_t n = -1;
        EXPECT_EQ(LeerEntero(caso.texto, n), caso.vale) << caso.texto;
        EXPECT_EQ(n, caso.n) << caso.texto;
    }
    for (const auto& [x, entero] : {std::pair{0.5, 0.0}, {1.5, 2.0}, {2.5, 2.0}, {-0.5, 0.0}, {2.51, 3.0}})
        EXPECT_EQ(RedondearPar(x), entero) << x;
}

TEST(modOrdenaciones, OrdenanSoloElTramo) {
    std::mt19937 azar(7);
    std::vector<int32_t> a(1000);
    for (auto& x : a) x = static_cast<int32_t>(azar() % 300) - 150;
    auto asc = a, desc = a;
    QuickSortAsc(asc.data(), 10, 899);
    QuickSortDesc(desc.data(), 10, 899);
    EXPECT_TRUE(std::is_sorted(asc.begin() + 10, asc.begin() + 900));
    EXPECT_TRUE(std::is_sorted(desc.begin() + 10, desc.begin() + 900, std::greater<>()));
    EXPECT_TRUE(std::is_permutation(asc.begin() + 10, asc.begin() + 900, a.begin() + 10));
    for (const size_t i : {size_t{0}, size_t{9}, size_t{900}, size_t{999}}) {
        EXPECT_EQ(asc[i], a[i]);
        EXPECT_EQ(desc[i], a[i]);
    }
    QuickSortAsc(asc.data(), 5, 4); // an empty stretch
}

TEST(modGeneral, Decimales) {
    const struct {
        const char* texto;
        bool bien;
        double valor;
    } casos[] = {
        {"12,25", true, 12.25}, {" 12.25 ", true, 12.25}, {"7", true, 7},      {"+,5", true, 0.5},  {"-3.", true, -3},
        {"", false, 0},         {".", false, 0},          {"1e5", false, 0},   {"1e999", false, 0}, {"inf", false, 0},
        {"nan", false, 0},      {"0x10", false, 0},       {"1,2.3", false, 0}, {"+-1", false, 0},   {"1 2", false, 0},
    };
    for (const auto& caso : casos) {
        double x = -99;
        EXPECT_EQ(LeerDecimal(caso.texto, x), caso.bien) << caso.texto;
        EXPECT_EQ(x, caso.bien ? caso.valor : -99) << caso.texto;
    }
    for (const double x : {12.6, 11.0, 0.1 + 0.2, 5e-324, 1.7976931348623157e308, -2.5}) {
        double leido = 0;
        EXPECT_TRUE(LeerDecimal(TextoDecimal(x, ','), leido));
        EXPECT_EQ(leido, x);
    }
    EXPECT_EQ(TextoDecimal(12.6, ','), "12,6");
    EXPECT_EQ(TextoDecimal(1e21, ','), "1000000000000000000000");
}
