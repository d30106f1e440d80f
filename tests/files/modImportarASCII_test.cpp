#include "modImportarASCII.h"

#include <filesystem>
#include <random>

#include <gtest/gtest.h>

#include "Guion.h"
#include "ImportarTXTLiteral.h"
#include "modEncriptarFichero.h"

namespace {

struct Lectura {
    Guion guion;
    CarpetaTemporal carpeta;
    Tabla tabla;
    std::string etiqueta;

    int32_t Leer(const std::string& bytes, bool con, int juego = PRIMITIVA, const std::string& nombre = "a.txt") {
        std::filesystem::remove(carpeta.Ruta(nombre)); // truncating would wait for the disk
        EscribirTodo(carpeta.Ruta(nombre), bytes);
        guion.Cajas.clear();
        return LeerApuestas(carpeta.Ruta(nombre), con, tabla, &etiqueta, Juegos[static_cast<size_t>(juego)],
                            guion.entorno);
    }

    // What the only box says behind its fixed text and the description: the detail, or "" for a failure
    // that no test of the bets raised.
    std::string Detalle() const {
        const std::string caja = guion.Cajas.empty() ? "" : guion.Cajas.front();
        const std::string cabeza = "[X] ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (";
        EXPECT_EQ(guion.Cajas.size(), 1u);
        EXPECT_TRUE(caja.starts_with(cabeza) && caja.ends_with(")")) << caja;
        const size_t detalle = std::min(caja.find("Apuestas con"), caja.find("Ha elegido"));
        if (detalle == std::string::npos) {
            EXPECT_TRUE(caja.ends_with(" )")) << caja;
            return "";
        }
        EXPECT_EQ(caja[detalle - 1], ' ');
        return caja.substr(detalle, caja.size() - 1 - detalle);
    }
};

std::string Repetir(const std::string& linea, int veces) {
    std::string texto;
    for (int i = 0; i < veces; ++i) texto += linea;
    return texto;
}

// Files of random layout whose lines now and then have a defect.
class FicheroAlAzar {
  public:
    explicit FicheroAlAzar(uint32_t semilla) : azar_(semilla) {}

    std::string Hacer(bool con) {
        const int lineas = Hasta(4) == 0 ? Hasta(3) : 1 + Hasta(40);
        disposicion_ = Hasta(3);
        defectos_ = Hasta(3);
        con_ = con || Hasta(4) == 0;
        const std::string fin = Uno<std::string>({"\r\n", "\r\n", "\n", "\r"});
        std::string texto;
        for (int i = 0; i < lineas; ++i) {
            texto += Linea();
            if (i + 1 < lineas || Hasta(3) != 0) texto += Hasta(20) == 0 ? Uno<std::string>({"\n", "\r\n", "\r"}) : fin;
        }
        return texto;
    }

    int Hasta(int n) { return static_cast<int>(azar_() % static_cast<uint32_t>(n)); }

  private:
    template <class T>
    T Uno(const std::vector<T>& de) {
        return de[azar_() % de.size()];
    }

    std::string Linea() {
        std::vector<int> numeros;
        for (int n = 1 + Hasta(4); numeros.size() < 6; n += 1 + Hasta(8)) numeros.push_back(n);
        const char separador = disposicion_ == 1 ? ',' : ' ';
        std::string linea;
        for (size_t i = 0; i < 6; ++i) {
            if (i > 0 && disposicion_ != 0) linea += separador;
            linea += (numeros[i] < 10 && (disposicion_ == 0 || Hasta(10) != 0) ? "0" : "") + std::to_string(numeros[i]);
        }
        if (con_ && Hasta(60) != 0) {
            if (disposicion_ != 0) linea += Hasta(2) == 0 && disposicion_ == 1 ? '+' : separador;
            linea += Uno<std::string>({"1", "2", "5", "05", Hasta(20) == 0 ? "6" : "3", Hasta(20) == 0 ? "10" : "04"});
        }
        for (int i = 0; i < defectos_; ++i)
            if (Hasta(15) == 0) Estropear(linea);
        return linea;
    }

    void Estropear(std::string& linea) {
        const size_t lugar = static_cast<size_t>(Hasta(static_cast<int>(linea.size()) + 1));
        const std::string basura =
            Uno<std::string>({" ", "  ", ",", ",,", "-", "+", "*", "x", "0", "9", "\t", std::string(1, '\0'),
                              "\xEF\xBB\xBF", "\x1A", ".", "99999999999", " 7", "+3", ",4,5"});
        switch (Hasta(4)) {
        case 0:
            linea.insert(lugar, basura);
            break;
        case 1:
            linea.resize(lugar);
            break;
        case 2:
            linea += basura;
            break;
        default:
            if (lugar < linea.size()) linea[lugar] = static_cast<char>('0' + Hasta(10));
        }
    }

    std::mt19937 azar_;
    int disposicion_ = 0, defectos_ = 0;
    bool con_ = false;
};

} // namespace

TEST(ImportarTXT, LasTresDisposicionesConDigitoYSinEl) {
    struct Caso {
        std::string bytes;
        bool con;
        int juego;
        std::vector<Apuesta> apuestas;
    };
    const Apuesta una{1, 2, 3, 4, 5, 6, 0}, siete{1, 2, 3, 4, 5, 6, 7}, cinco{1, 2, 3, 4, 5, 6, 5};
    const std::vector<Caso> casos{
        {"010203040506\r\n", false, PRIMITIVA, {una}},
        {"01,02,03,04,05,06\n", false, PRIMITIVA, {una}},
        {"01 02 03 04 05 06", false, EURODREAMS, {una}},
        {"1,2,3,4,5,06", false, PRIMITIVA, {una}},
        {"0102030405067\r\n", true, PRIMITIVA, {siete}},
        {"01020304050607xyz\r\n", true, PRIMITIVA, {siete}},
        {"010203040506+7\r\n", true, PRIMITIVA, {siete}},
        {"01,02,03,04,05,06,7\r\n", true, PRIMITIVA, {siete}},
        {"01,02,03,04,05,06+7\r\n", true, PRIMITIVA, {siete}},
        {"01 02 03 04 05 06 7\r\n", true, PRIMITIVA, {siete}},
        {"01,02,03,04,05,06+05\r\n", true, EURODREAMS, {cinco}},
        {"01,02,03,04,05,06+5\r\n", true, BONOLOTO, {cinco}},
        // Without digits whatever follows the numbers is ignored.
        {"01,02,03,04,05,06+99\r\n", false, PRIMITIVA, {una}},
        {"01 02 03 04 05 06+x\r\n", false, PRIMITIVA, {una}},
        {"010203040506 algo más", false, PRIMITIVA, {}},
        {"010203040506algo,más", false, PRIMITIVA, {}},
        {"x\r\n010203040506 algo, más-\r\n", false, PRIMITIVA, {una}},
        {"01,02,03,04,05,06\r\n 1 ,\t2,, 3,4,5,6\r\n", false, PRIMITIVA, {una, una}},
        {"01  02 03   04 05 06  \r\n", false, PRIMITIVA, {una}},
        // Short and empty lines do not count, and every line end does.
        {"\r\n01020304050\r\n\n010203040506\r\r\n010203040506\n\r010203040506", false, PRIMITIVA, {una, una, una}},
        {"", false, PRIMITIVA, {}},
        {"\r\n\r\n", true, PRIMITIVA, {}},
        // Hyphens count only in the first line.
        {"010203040506\r\n01-02-03-04-05-06\r\n", false, PRIMITIVA, {una, una}},
        {"454647484900\r\n424344454647\r\n", false, EURODREAMS, {}},
        {"414243444549\r\n", false, EURODREAMS, {{41, 42, 43, 44, 45, 49, 0}}},
    };
    for (const Caso& caso : casos) {
        Lectura lectura;
        const int32_t leidas = lectura.Leer(caso.bytes, caso.con, caso.juego);
        EXPECT_EQ(Apuestas(lectura.tabla, 7), caso.apuestas) << caso.bytes;
        EXPECT_EQ(leidas, static_cast<int32_t>(caso.apuestas.size()));
    }
}

TEST(ImportarTXT, CadaFalloConSuDetalleYSuApuesta) {
    struct Caso {
        std::string bytes;
        bool con;
        int juego;
        std::string detalle;
    };
    const std::string buena = "01,02,03,04,05,06,2\r\n";
    const std::vector<Caso> casos{
        {buena + "x\r\n02,03,04,05,06,50,1\r\n", false, EURODREAMS,
         "Apuestas con números fuera del intervalo 1-49 (Apuesta 2)"},
        {buena + "02,03,04,05,06,50,1\r\n", true, PRIMITIVA,
         "Apuestas con números fuera del intervalo 1-49 (Apuesta 2)"},
        {buena + "02,03,04,05,06,41,1\r\n", true, EURODREAMS,
         "Apuestas con números fuera del intervalo 1-40 (Apuesta 2)"},
        {"010203040541\r\n", true, EURODREAMS, "Apuestas con números fuera del intervalo 1-40 (Apuesta 1)"},
        {"000203040506\r\n", false, PRIMITIVA, "Apuestas con números fuera del intervalo 1-49 (Apuesta 1)"},
        {"-1,02,03,04,05,06\r\n", false, PRIMITIVA, "Apuestas con números fuera del intervalo 1-49 (Apuesta 1)"},
        {"060504030201\r\n", false, PRIMITIVA, "Apuestas con números no en orden ascendente (Apuesta 1)"},
        {buena + "01,02,03,03,05,06,2\r\n", true, BONOLOTO, "Apuestas con números no en orden ascendente (Apuesta 2)"},
        {"01,02,03,04,05,06,10\r\n", true, PRIMITIVA, "Apuestas con reintegros fuera del intervalo 0-9 (Apuesta 1)"},
        {"01020304050610\r\n", true, PRIMITIVA, "Apuestas con reintegros fuera del intervalo 0-9 (Apuesta 1)"},
        {"01,02,03,04,05,06,0\r\n", true, BONOLOTO, "Apuestas con sueños fuera del intervalo 1-5 (Apuesta 1)"},
        {"0102030405066\r\n", true, EURODREAMS, "Apuestas con sueños fuera del intervalo 1-5 (Apuesta 1)"},
        {"01,02,03,04,05,06\r\n", true, PRIMITIVA,
         "Ha elegido la opción de Cargar Reintegros y el fichero no tiene reintegros en sus apuestas (Apuesta 1)"},
        {"01 02 03 04 05 06\r\n", true, BONOLOTO,
         "Ha elegido la opción de Cargar Sueños y el fichero no tiene sueños en sus apuestas (Apuesta 1)"},
        // Failures without a test of their own: no number, no field, no room.
        {"010203040506\r\n", true, PRIMITIVA, ""},
        {"01-02-03-04-05-06\r\n", false, PRIMITIVA, ""},
        {"01 02 03 04 05 06+7\r\n", true, PRIMITIVA, ""},
        {"01,02,03,04,05\r\n", false, PRIMITIVA, ""},
        {"01,02,03,04,05,6.0\r\n", false, PRIMITIVA, ""},
        {"1,2,3,4,5,99999999999\r\n", false, PRIMITIVA, ""},
        {std::string("0102\0"
                     "03040506\r\n",
                     15),
         false, PRIMITIVA, ""},
        {"\xEF\xBB\xBF"
         "010203040506\r\n",
         false, PRIMITIVA, ""},
        {Repetir("010203040506\n", 60), false, PRIMITIVA, ""},
    };
    for (const Caso& caso : casos) {
        Lectura lectura;
        EXPECT_EQ(lectura.Leer(caso.bytes, caso.con, caso.juego), 0);
        EXPECT_EQ(lectura.Detalle(), caso.detalle) << caso.bytes;
        EXPECT_EQ(lectura.tabla.Apuestas(), 0);
    }
}

TEST(ImportarTXT, LineasDeUnSoloByteHastaLoPrevisto) {
    Lectura lectura;
    EXPECT_EQ(lectura.Leer(Repetir("010203040506\n", 28), false), 28);
    EXPECT_EQ(lectura.Leer(Repetir("010203040506\n", 29), false), 0); // 377 bytes: 28
    EXPECT_EQ(lectura.Leer(Repetir("010203040506\r\n", 60), false), 60);
}

TEST(ImportarTXT, ComoElLiteralEnFicherosAlAzar) {
    Lectura lectura;
    int buenos = 0, malos = 0;
    for (uint32_t semilla = 1; semilla <= 6000; ++semilla) {
        FicheroAlAzar fichero(semilla);
        const bool con = fichero.Hasta(2) == 0;
        const int juego = fichero.Hasta(3);
        const std::string bytes = fichero.Hacer(con);
        const Juego& j = Juegos[static_cast<size_t>(juego)];
        const auto literal = ImportarTXTLiteral(con, std::string(j.Nombre), j.NumeroMaximo).Importar(bytes);
        ASSERT_EQ(lectura.Leer(bytes, con, juego), static_cast<int32_t>(literal.Apuestas.size()))
            << "semilla " << semilla << "\n"
            << bytes;
        ASSERT_EQ(Apuestas(lectura.tabla, 7), literal.Apuestas) << "semilla " << semilla << "\n" << bytes;
        ASSERT_EQ(!lectura.guion.Cajas.empty(), literal.Fallo) << "semilla " << semilla << "\n" << bytes;
        if (literal.Fallo) {
            ASSERT_EQ(lectura.Detalle(), literal.Detalle) << "semilla " << semilla << "\n" << bytes;
        }
        (literal.Fallo ? malos : buenos) += 1;
    }
    // Both sorts must be well represented for the comparison to mean something.
    EXPECT_GT(buenos, 1000);
    EXPECT_GT(malos, 1000);
}

TEST(ImportarTXT, VariosBloquesConLineasDeTodoTipo) {
    std::string bytes = "01,02,03,04,05,06+1\r\n";
    std::mt19937 azar(5);
    const std::vector<std::string> lineas{"01,02,03,04,05,06+1",
                                          "7,8,9,10,11,12,3,2",
                                          "02,03,10,20,30,49,9",
                                          "1, 2, 3, 4, 5, 6, 07",
                                          "corta",
                                          "",
                                          "08,09,10,11,12,13+0 ",
                                          "01,02,03,04,05,06" + std::string(5000, ',') + "4"};
    while (bytes.size() < 900000) bytes += lineas[azar() % lineas.size()] + (azar() % 2 == 0 ? "\r\n" : "\n");
    const auto literal = ImportarTXTLiteral(true, "PRIMITIVA", 49).Importar(bytes);
    ASSERT_GT(literal.Apuestas.size(), 1000u);
    Lectura lectura;
    lectura.Leer(bytes, true);
    EXPECT_EQ(Apuestas(lectura.tabla, 7), literal.Apuestas);
}

TEST(ImportarTXT, UnaLineaDeUnMegabyteYOtraDemasiadoLarga) {
    Lectura lectura;
    EXPECT_EQ(lectura.Leer("01,02,03,04,05,06" + std::string(1 << 20, ',') + "\r\n01,02,03,04,05,07", false), 2);
    EXPECT_EQ(lectura.Leer("010203040506\r\n" + std::string((size_t{16} << 20) + 1, '1') + "\r\n", false), 0);
    EXPECT_EQ(lectura.Detalle(), "");
}

TEST(ImportarTXT, LaEtiquetaYElTurnoCada9000) {
    Lectura lectura;
    Textos vistas;
    for (int turno = 1; turno <= 3; ++turno) lectura.guion.EnTurno(turno, [&] { vistas.push_back(lectura.etiqueta); });
    EXPECT_EQ(lectura.Leer(Repetir("010203040506\r\n", 27001), false), 27001);
    EXPECT_EQ(vistas, (Textos{"9000", "18000", "27000"}));
    EXPECT_EQ(lectura.guion.Turnos, 3);
}

TEST(ImportarTXT, LoQueNoSeDejaLeer) {
    Lectura lectura;
    const auto leer = [&](const std::string& ruta) {
        lectura.guion.Cajas.clear();
        return ImportarTXTSinReintegros(ruta, lectura.tabla, nullptr, lectura.guion.entorno);
    };
    for (const std::string& ruta :
         {lectura.carpeta.Ruta(), lectura.carpeta.Ruta("nada.txt"), std::string("/dev/zero"), std::string()}) {
        EXPECT_EQ(leer(ruta), 0) << ruta;
        EXPECT_EQ(lectura.Detalle(), "");
    }
}

TEST(ImportarTXT, UnFicheroQueMenguaMientrasSeLee) {
    Lectura lectura;
    const std::string ruta = lectura.carpeta.Ruta("a.txt");
    lectura.guion.EnTurno(1, [&] { std::filesystem::resize_file(ruta, 14); });
    const int32_t leidas = lectura.Leer(Repetir("010203040506\r\n", 100000), false);
    EXPECT_GE(leidas, 9000);
    EXPECT_LT(leidas, 100000);
    EXPECT_EQ(lectura.guion.Cajas, Textos{});
}

TEST(LeerApuestas, LaExtensionEligeElLector) {
    Lectura lectura;
    Tabla sistema(7, 1);
    for (int r = 1; r <= 7; ++r) sistema(r, 1) = static_cast<uint8_t>(r);
    const std::string tom = lectura.carpeta.Ruta("a.TOM");
    ASSERT_TRUE(GuardarFicheroApuestas(tom, "0", 1, sistema, nullptr, lectura.guion.entorno));
    const std::string bytes = LeerTodo(tom);
    for (const char* nombre : {"a.TOM", "b.tom", "c.x.Tom"}) {
        // A bet file gives its digits whether they are asked for or not.
        EXPECT_EQ(lectura.Leer(bytes, false, PRIMITIVA, nombre), 1) << nombre;
        EXPECT_EQ(Apuestas(lectura.tabla, 7), (std::vector<Apuesta>{{1, 2, 3, 4, 5, 6, 7}}));
    }
    for (const char* nombre : {"a.txt", "b", "c.tom.asc", "tom"}) {
        EXPECT_EQ(lectura.Leer("01,02,03,04,05,06,7", true, PRIMITIVA, nombre), 1) << nombre;
        EXPECT_EQ(lectura.tabla(7, 1), 7);
    }
}
