#include <gtest/gtest.h>

#include "FormatoImporte.h"
#include "Guion.h"
#include "LogicaCalculadoraPremios.h"
#include "Sesiones.h"
#include "Texto8bits.h"

namespace {

constexpr const char* Respuesta =
    "<r><PRIMITIVA><COMBINACIONES><COMBINACION numeros='x' /></COMBINACIONES><SORTEOS>"
    "<SORTEO anio='2020' sorteo='300' dia='j' fecha=' 02/01/2020 ' recaudacion='1.234.567,50' bote='0'>"
    "<ESCRUTINIO><CAT6R premio='9' /><CAT6 premio='1500000.5' acertantes='1' /><CAT5C premio='70.000' acertantes='2' />"
    "<CAT5 premio='2.345,67' acertantes='100' /><CAT4 premio='55,5' acertantes='12345' />"
    "<CAT3 premio='' acertantes='' /></ESCRUTINIO></SORTEO>"
    "<SORTEO anio='2020' sorteo='301' dia='S' fecha='02/01/2020' recaudacion='1' bote='1'><ESCRUTINIO>"
    "<CAT6 premio='1' acertantes='1' /></ESCRUTINIO></SORTEO>"
    "</SORTEOS></PRIMITIVA></r>";

// The calculator over a checked system: 10 bets, 1 of 6, 2 of 5+C, 0, 3 of 4, 4 of 3.
struct Calculadora : Guion {
    Calculadora() : escrutar(sesion, entorno) {
        entorno.CarpetaInformes = carpeta.Ruta();
        entorno.Servicio = "http://servicio";
        entorno.PedirHttp = [this](const std::string& url, std::string& cuerpo, std::string& fallo) {
            Direcciones.push_back(url);
            cuerpo = respuesta;
            fallo = "no hay red";
            return !cuerpo.empty();
        };
        escrutar.txtCalculadoraPremios = {"1", "2", "0", "3", "4"};
        escrutar.ApuestasATRATAR = 10;
        sesion.referencia = {{3, 8, 11, 20, 33, 49}, 7};
        logica = std::make_unique<LogicaCalculadoraPremios>(escrutar);
    }
    bool Consultar(const std::string& dia, const std::string& mes, const std::string& anio) {
        logica->txtDia = dia, logica->txtMes = mes, logica->txtAnio = anio;
        return logica->cmdConsultarSorteo();
    }

    CarpetaTemporal carpeta;
    std::string respuesta = Respuesta;
    LogicaEscrutar escrutar;
    std::unique_ptr<LogicaCalculadoraPremios> logica;
};

TEST(FormatoImporte, DosDecimalesConLasMitadesHaciaFuera) {
    const std::vector<std::pair<double, std::string>> casos{{0, "0,00"},
                                                            {0.004, "0,00"},
                                                            {0.005, "0,01"},
                                                            {1.005, "1,01"},
                                                            {2.675, "2,68"},
                                                            {0.125, "0,13"},
                                                            {-0.125, "-0,13"},
                                                            {-0.001, "0,00"},
                                                            {9.995, "10,00"},
                                                            {99.999, "100,00"},
                                                            {1234.5, "1.234,50"},
                                                            {999999.996, "1.000.000,00"},
                                                            {4294967296.0 * 1000, "4.294.967.296.000,00"},
                                                            {1e21, "1.000.000.000.000.000.000.000,00"},
                                                            {0.1 + 0.2, "0,30"}};
    for (const auto& [importe, texto] : casos) EXPECT_EQ(FormatoImporte(importe, ',', '.'), texto);
    EXPECT_EQ(FormatoImporte(1234567.891, ','), "1234567,89");
}

TEST(LogicaCalculadoraPremios, SeAbreConLaFechaDeHoyYLosAciertos) {
    Calculadora c;
    EXPECT_EQ(c.logica->Titulo(), "Calculadora de Premios : PRIMITIVA");
    EXPECT_EQ(c.logica->txtDia + c.logica->txtMes + c.logica->txtAnio, "17052024");
    EXPECT_EQ(c.logica->cboDia, 4); // a Friday
    EXPECT_EQ(c.logica->txtCalculadoraPremios, (TextosPremio{"1", "2", "0", "3", "4"}));
    EXPECT_EQ(c.logica->txtPremiosTOTAL, "0,00");
    EXPECT_EQ(c.logica->txtPorcentajeTOTAL, "0%");
    c.escrutar.ApuestasATRATAR = 0;
    c.logica->CambiarEuros(0, "1000");
    EXPECT_EQ(c.logica->txtPorcentajeTOTAL, "0%");
    EXPECT_FALSE(c.logica->Rentable);
}

TEST(LogicaCalculadoraPremios, CadaCambioVuelveASumar) {
    Calculadora c;
    struct Caso {
        TextosPremio Premios, Euros;
        int32_t Apuestas;
        std::string Total, Porcentaje;
        bool Rentable;
    };
    const std::vector<Caso> casos{
        {{"1", "0", "0", "0", "0"}, {"50", "0", "0", "0", "0"}, 100, "50,00", "50%", false},
        {{"1", "0", "0", "0", "0"}, {"100", "0", "0", "0", "0"}, 100, "100,00", "100%", true},
        {{"1", "0", "0", "0", "1"}, {"33", "0", "0", "0", "0,335"}, 100, "368,00", "368%", true},
        {{"1", "0", "0", "0", "0"}, {"10", "0", "0", "0", "0"}, 3, "10,00", "333,33%", true},
        {{"2", "3", "1", "1", "1"}, {"1.000,50", "10.25", "1,5", "1.000", "2"}, 1000, "3035,25", "303,53%", true},
        // Boxes without a number end the sum there.
        {{"1", "", "1", "1", "1"}, {"7", "7", "7", "7", "7"}, 100, "7,00", "7%", false},
        {{"1", "1", "1", "1", "1"}, {"7", "7", "", "7", "7"}, 100, "14,00", "14%", false},
        {{"1", "1", "uno", "1", "1"}, {"7", "7", "7", "7", "7"}, 100, "14,00", "14%", false},
        {{"1", "1", "1", "2147483648", "1"}, {"7", "7", "7", "7", "7"}, 100, "21,00", "21%", false},
        {{"1", "1", "1", "1", "1"}, {"7", "7", "7", "7", "1e9"}, 100, "28,00", "28%", false},
        // Beyond what 32 bits hold.
        {{"2147483647", "0", "0", "0", "1"},
         {"1000000", "0", "0", "0", "0"},
         1,
         "2147483647000000,00",
         "214748364700000000%",
         true},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.Total);
        c.escrutar.ApuestasATRATAR = caso.Apuestas;
        for (size_t i = 0; i < 5; ++i)
            c.logica->CambiarPremios(i, caso.Premios[i]), c.logica->CambiarEuros(i, caso.Euros[i]);
        EXPECT_EQ(c.logica->txtPremiosTOTAL, caso.Total);
        EXPECT_EQ(c.logica->txtPorcentajeTOTAL, caso.Porcentaje);
        EXPECT_EQ(c.logica->Rentable, caso.Rentable);
    }
    c.logica->cmdIniCalculadoraPremios();
    EXPECT_EQ(c.logica->txtCalculadoraEuros, (TextosPremio{"0", "0", "0", "0", "0"}));
    EXPECT_EQ(c.logica->txtPremiosTOTAL, "0,00");
}

TEST(LogicaCalculadoraPremios, ElServicioDaLosPremiosDelPrimerSorteoDeLaFecha) {
    Calculadora c;
    ASSERT_TRUE(c.Consultar("02", " 01", "2020 "));
    EXPECT_EQ(c.Direcciones, Textos{"http://servicio/servicios/v1/xml2/"
                                    "eurodreams?temporada=todas&combinaciones=0&juego=PRIMITIVA"});
    EXPECT_EQ(c.Cajas, Textos{});
    EXPECT_EQ(c.logica->txtNumeroSorteo, "300");
    EXPECT_EQ(c.logica->cboDia, 3);
    EXPECT_EQ(c.logica->txtRecaudacion, "1.234.567,50");
    EXPECT_EQ(c.logica->txtSorteoPremios, (TextosPremio{"1500000,5", "70000", "2345,67", "55,5", "0"}));
    EXPECT_EQ(c.logica->txtCalculadoraEuros, c.logica->txtSorteoPremios);
    EXPECT_EQ(c.logica->txtSorteoAciertos, (TextosPremio{"1", "2", "100", "12.345", "0"}));
    EXPECT_EQ(c.logica->txtPremiosTOTAL, "1640167,00");
    EXPECT_FALSE(c.logica->Consultando);
}

TEST(LogicaCalculadoraPremios, LasFechasSeCompruebanYSeBuscanTalCual) {
    struct Caso {
        std::string Dia, Mes, Anio, Caja;
    };
    const std::string mala = "[X] ERROR: FECHA DE SORTEO INCORRECTA", ninguno = "[X] ERROR: SORTEO NO ENCONTRADO";
    for (const Caso& caso : std::vector<Caso>{{"31", "02", "2024", mala},
                                              {"29", "02", "2023", mala},
                                              {"29", "02", "2024", ninguno},
                                              {"00", "01", "2020", mala},
                                              {"02", "13", "2020", mala},
                                              {"", "01", "2020", mala},
                                              {"02", "01", "", mala},
                                              {"-2", "01", "2020", mala},
                                              {"02", "99999999999", "2020", mala},
                                              {"2", "1", "2020", ninguno},
                                              {"02", "01", "20", ninguno}}) {
        SCOPED_TRACE(caso.Dia + "/" + caso.Mes + "/" + caso.Anio);
        Calculadora c;
        EXPECT_FALSE(c.Consultar(caso.Dia, caso.Mes, caso.Anio));
        EXPECT_EQ(c.Cajas, Textos{caso.Caja});
    }
}

TEST(LogicaCalculadoraPremios, LoQueFallaDelServicioSeDice) {
    Calculadora c;
    ASSERT_TRUE(c.Consultar("02", "01", "2020"));
    const TextosPremio euros = c.logica->txtCalculadoraEuros;
    c.respuesta = "<r><PRIMITIVA>";
    EXPECT_FALSE(c.logica->cmdConsultarSorteo());
    EXPECT_TRUE(c.Cajas.back().starts_with("[X] ERROR AL CARGAR EL FICHERO DE SORTEOS - ")) << c.Cajas.back();
    EXPECT_EQ(c.logica->txtNumeroSorteo, "300");
    for (const auto& [respuesta, caja] : std::vector<std::pair<std::string, std::string>>{
             {"", "[X] ERROR AL CARGAR EL FICHERO DE SORTEOS (no hay red)"},
             {"<r><PRIMITIVA><SORTEOS><SORTEO anio='1' sorteo='1' dia='L' recaudacion='1' bote='1' /></SORTEOS>"
              "</PRIMITIVA></r>",
              "[X] ERROR AL CARGAR EL FICHERO DE SORTEOS (falta el atributo 'fecha' de 'SORTEO')"}}) {
        c.respuesta = respuesta;
        EXPECT_FALSE(c.logica->cmdConsultarSorteo());
        EXPECT_EQ(c.Cajas.back(), caja);
        EXPECT_EQ(c.logica->txtNumeroSorteo + c.logica->txtRecaudacion + c.logica->txtBote, "000");
        EXPECT_EQ(c.logica->txtSorteoPremios, (TextosPremio{"0", "0", "0", "0", "0"}));
        EXPECT_EQ(c.logica->txtCalculadoraEuros, euros);
        EXPECT_FALSE(c.logica->Consultando);
    }
}

TEST(LogicaCalculadoraPremios, ElInformeDiceTodoLineaALinea) {
    Calculadora c;
    ASSERT_TRUE(c.Consultar("02", "01", "2020"));
    c.escrutar.ApuestasATRATAR = 1234;
    ASSERT_TRUE(c.logica->cmdVerInformePremios());
    EXPECT_EQ(c.Informes, Textos{c.carpeta.Ruta("TOMBOLERA_TEMP.txt")});
    EXPECT_EQ(Codigo8AUtf8(LeerTodo(c.Informes[0])), "Tipo de Juego            : PRIMITIVA\r\n"
                                                     "Fecha Sorteo             : 02/01/2020\r\n"
                                                     "Número Sorteo            : 300\r\n"
                                                     "Día                      : J\r\n"
                                                     "Combinación Escrutada    :  Sin guardar.xml\r\n"
                                                     "Total Apuestas           : 1.234\r\n"
                                                     "Total Boletos(de 8 apu.) : 155\r\n"
                                                     "Números Ganadores        : 3,8,11,20,33,49\r\n"
                                                     "Nº Complementario        : 7\r\n"
                                                     "Resultados\r\n"
                                                     "----------\r\n"
                                                     "Categoría NºPremios Euros\r\n"
                                                     "6         1         1500000,5\r\n"
                                                     "5+C       2         70000\r\n"
                                                     "5         0         2345,67\r\n"
                                                     "4         3         55,5\r\n"
                                                     "3         4         0\r\n"
                                                     "Invertido             : 1234,00 Euros\r\n"
                                                     "Total Cobrado         : 1640167,00 Euros\r\n"
                                                     "Porcentaje Recuperado : 132914,67%\r\n");
    c.entorno.CarpetaInformes = c.carpeta.Ruta("no/existe");
    EXPECT_FALSE(c.logica->cmdVerInformePremios());
    c.logica->txtNumeroSorteo = " ";
    EXPECT_FALSE(c.logica->cmdVerInformePremios());
    EXPECT_EQ(c.Cajas,
              (Textos{"[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (no existe el fichero o la carpeta)",
                      "[X] ERROR: ALGUN CAMPO ESTA VACIO"}));
}

TEST(PremiosXML, LoGuardadoVuelveComoEra) {
    Calculadora c;
    ASSERT_TRUE(c.Consultar("02", "01", "2020"));
    c.logica->CambiarPremios(2, "");
    const PremiosGuardados antes = *c.logica;
    c.Ficheros = {c.carpeta.Ruta("sabado"), c.carpeta.Ruta("sabado.xml")};
    ASSERT_TRUE(c.logica->GuardarPremiosXML());
    EXPECT_EQ(LeerTodo(c.carpeta.Ruta("sabado.xml")),
              "<XML>\r\n<BASE>\r\n<DatosGeneracionFicheroXML fecha='17/05/2024' hora='09:08:07'/>\r\n"
              "<Programa nombre='TOMBOLERA' version='11.1' />\r\n<Sorteos>\r\n"
              "<Sorteo anio='2020' numero='300' dia='J'>\r\n<NumerosGanadores valor='3,8,11,20,33,49' />\r\n"
              "<Complementario valor='7' />\r\n<Premios_De6 numeroPremios='1' euros='1500000,5' />\r\n"
              "<Premios_De5C numeroPremios='2' euros='70000' />\r\n<Premios_De5 numeroPremios='' euros='2345,67' />\r\n"
              "<Premios_De4 numeroPremios='3' euros='55,5' />\r\n<Premios_De3 numeroPremios='4' euros='0' />\r\n"
              "</Sorteo>\r\n</Sorteos>\r\n</BASE>\r\n</XML>\r\n");
    LogicaCalculadoraPremios otra(c.escrutar);
    ASSERT_TRUE(otra.AbrirPremiosXML());
    EXPECT_EQ(otra.txtCalculadoraPremios, antes.txtCalculadoraPremios);
    EXPECT_EQ(otra.txtCalculadoraEuros, antes.txtCalculadoraEuros);
    EXPECT_EQ(otra.txtAnio + otra.txtNumeroSorteo, "2020300");
    EXPECT_EQ(otra.cboDia, 3);
    EXPECT_EQ(otra.txtPremiosTOTAL, "1640000,50");
    EXPECT_EQ(c.Peticiones[0].Nombre, "Sin guardar.xml");
    EXPECT_EQ(c.Peticiones[1].Titulo, "Abrir Premios en formato XML");
}

TEST(PremiosXML, UnFicheroMaloSeDiceYNoCambiaNada) {
    const std::string principio = "<XML><BASE><Sorteos>", final = "</Sorteos></BASE></XML>";
    const std::string sorteo = "<Sorteo anio='2020' numero='1' dia='J'>",
                      grupo = "[X] ERROR AL ABRIR EL GRUPO EN XML (",
                      fichero = "[X] ERROR AL ABRIR EL FICHERO EN XML (";
    const std::vector<std::pair<std::string, std::string>> casos{
        {"", grupo},
        {"no es XML", grupo},
        {principio + sorteo, grupo},
        {principio + final, fichero + "el fichero no guarda ningún sorteo)"},
        {"<XML><BASE/></XML>", fichero + "el fichero no guarda ningún sorteo)"},
        {principio + "<Sorteo anio='2020' dia='J'/>" + final, fichero},
        {principio + "<Sorteo anio='2020' numero='1' dia='Z'/>" + final, fichero + "el día 'Z' no existe)"},
        {principio + "<Sorteo anio='mil' numero='1' dia='J'/>" + final, fichero + "el valor 'mil' no es un número)"},
        {principio + sorteo + "<Premios_De6 numeroPremios='99999999999' euros='1'/></Sorteo>" + final,
         fichero + "el valor '99999999999' no es un número)"},
        {principio + sorteo + "<Premios_De6 numeroPremios='1' euros='mucho'/></Sorteo>" + final,
         fichero + "el importe 'mucho' no es un número)"},
        {principio + sorteo + "<PREMIOS_DE3 numeroPremios='1'/></Sorteo>" + final, fichero},
        {std::string((1 << 20) + 1, ' '), fichero + "el fichero es demasiado grande)"},
    };
    for (const auto& [texto, caja] : casos) {
        SCOPED_TRACE(texto.substr(0, 120));
        Calculadora c;
        c.logica->CambiarEuros(0, "77");
        const std::string antes = c.logica->Copiar() + c.logica->txtAnio;
        EscribirTodo(c.carpeta.Ruta("malo.xml"), texto);
        EXPECT_FALSE(c.logica->CargarPremiosXML(c.carpeta.Ruta("malo.xml")));
        ASSERT_EQ(c.Cajas.size(), 1u);
        EXPECT_TRUE(c.Cajas[0].starts_with(caja)) << c.Cajas[0];
        EXPECT_EQ(c.logica->Copiar() + c.logica->txtAnio, antes);
    }
}

TEST(PremiosXML, LosNombresValenEnCualquierCajaYLoQuePegaElUsuarioSeGuardaBien) {
    Calculadora c;
    EscribirTodo(c.carpeta.Ruta("a.xml"),
                 "<x><y><SORTEOS><sorteo anio='2021' numero='7' dia=''>"
                 "<premios_de4 numeroPremios='5' euros='1.000,25'/></sorteo></SORTEOS></y></x>");
    ASSERT_TRUE(c.logica->CargarPremiosXML(c.carpeta.Ruta("a.xml")));
    EXPECT_EQ(c.logica->cboDia, -1);
    EXPECT_EQ(c.logica->txtCalculadoraPremios, (TextosPremio{"1", "2", "0", "5", "4"}));
    EXPECT_EQ(c.logica->txtPremiosTOTAL, "5001,25");
    c.logica->txtNumeroSorteo = "a'b<c&d";
    EXPECT_NE(c.logica->GenerarPremiosXML().find("numero='a&apos;b&lt;c&amp;d'"), std::string::npos);
}

TEST(PremiosXML, SiNoSePuedeGuardarSeConservaElAnterior) {
    Calculadora c;
    c.Ficheros = {c.carpeta.Ruta("no/existe.xml")};
    EXPECT_FALSE(c.logica->GuardarPremiosXML());
    EXPECT_EQ(c.Cajas,
              Textos{"[X] ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (no existe el fichero o la carpeta)"});
    EXPECT_FALSE(c.logica->GuardarPremiosXML()); // cancelled
    EXPECT_EQ(c.Cajas.size(), 1u);
}

} // namespace
