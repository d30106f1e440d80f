#include "FiltrosSencillos.h"

#include "Figuras.h"
#include "modGeneral.h"

namespace {

using Lista = std::string_view;

constexpr std::span<const Lista> Figuras(NombresFiguras);

constexpr std::array<FilaAciertosFiltro, 2> TablasALTOSBAJOS{{
    {"01 al 24 : ", "txtAciertos0124", "cmdModificar0124"},
    {"25 al 49 :  ", "txtAciertos2549", "cmdModificar2549"},
}};

constexpr std::array<FilaAciertosFiltro, 5> TablasDECENAS{{
    {"01 al 09 : ", "txtAciertos0109", "cmdModificar0109"},
    {"10 al 19 : ", "txtAciertos1019", "cmdModificar1019"},
    {"20 al 29 : ", "txtAciertos2029", "cmdModificar2029"},
    {"30 al 39 : ", "txtAciertos3039", "cmdModificar3039"},
    {"40 al 49 : ", "txtAciertos4049", "cmdModificar4049"},
}};

constexpr std::array<Lista, 10> EjemplosDECENAS{
    "01 02 03 04 05 06", "01 02 03 04 05 11", "01 02 03 04 11 12", "01 02 03 04 11 21", "01 02 03 11 12 13",
    "01 02 03 11 12 21", "01 02 03 11 21 31", "01 02 11 12 21 22", "01 02 11 12 21 31", "01 02 11 21 31 41"};

constexpr std::array<Lista, 7> CasillasPARESIMPARES{"0 pares y 6 impares", "1 par y 5 impares",   "2 pares y 4 impares",
                                                    "3 pares y 3 impares", "4 pares y 2 impares", "5 pares y 1 impar",
                                                    "6 pares y 0 impares"};
constexpr std::array<Lista, 7> EjemplosPARESIMPARES{"01 03 05 07 09 11", "01 02 03 05 07 09", "01 02 03 04 05 07",
                                                    "01 02 03 04 05 06", "01 02 03 04 06 08", "01 02 04 06 08 10",
                                                    "02 04 06 08 10 12"};

constexpr std::array<Lista, 7> CasillasEXTERIORES{"0 exteriores y 6 interiores", "1 exterior y 5 interiores",
                                                  "2 exteriores y 4 interiores", "3 exteriores y 3 interiores",
                                                  "4 exteriores y 2 interiores", "5 exteriores y 1 interior",
                                                  "6 exteriores y 0 interiores"};
constexpr std::array<Lista, 7> EjemplosEXTERIORES{"11 12 13 14 15 16", "01 11 12 13 14 15", "01 02 11 12 13 14",
                                                  "01 02 03 11 12 13", "01 02 03 04 11 12", "01 02 03 04 05 11",
                                                  "01 02 03 04 05 06"};

constexpr std::array<Lista, 7> CasillasSUPERIORES{"0 superiores y 6 inferiores", "1 superior y 5 inferiores",
                                                  "2 superiores y 4 inferiores", "3 superiores y 3 inferiores",
                                                  "4 superiores y 2 inferiores", "5 superiores y 1 inferior",
                                                  "6 superiores y 0 inferiores"};
constexpr std::array<Lista, 7> EjemplosSUPERIORES{"05 06 07 08 09 15", "01 05 06 07 08 09", "01 02 05 06 07 08",
                                                  "01 02 03 05 06 07", "01 02 03 04 05 06", "01 02 03 04 05 10",
                                                  "01 02 03 04 10 11"};

constexpr std::array<FilaAciertosFiltro, 1> TablasSEGUIDOS{{{"Números Seguidos : ", "txtNumero", "cmdModificar"}}};
constexpr std::array<Lista, 11> EjemplosSEGUIDOS{"01 02 03 04 05 06", "01 02 03 04 05 07", "01 02 03 04 06 07",
                                                 "01 02 03 04 06 08", "01 02 03 05 06 07", "01 02 03 05 06 08",
                                                 "01 02 03 05 07 09", "01 02 04 05 07 08", "01 02 04 05 07 09",
                                                 "01 02 04 06 08 10", "01 03 05 07 09 11"};
constexpr std::array<EjemploFiltro, 6> SeriesSEGUIDOS{{
    {"01 02 03 04 05 06->6", ""},
    {"01 02 03 04 05 11->5", ""},
    {"01 02 03 04 09 11->4", ""},
    {"01 02 03 07 09 11->3", ""},
    {"01 02 05 07 09 11->2", ""},
    {"01 03 05 07 09 11->1", ""},
}};

constexpr std::array<FilaAciertosFiltro, 1> TablasHOMOLOGOS{{{"Aciertos : ", "txtAciertos", "cmdModificar"}}};
constexpr std::array<EjemploFiltro, 9> GruposHOMOLOGOS{{
    {"Del uno", "01 10 19 28 37 46"},
    {"Del dos", "02 11 20 29 38 47"},
    {"Del tres", "03 12 21 30 39 48"},
    {"Del cuatro", "04 13 22 31 40 49"},
    {"Del cinco", "05 14 23 32 41"},
    {"Del seis", "06 15 24 33 42"},
    {"Del siete", "07 16 25 34 43"},
    {"Del ocho", "08 17 26 35 44"},
    {"Del nueve", "09 18 27 36 45"},
}};

constexpr std::array<FilaAciertosFiltro, 1> TablasCOLINDANTES{{{"Colindantes : ", "txtAciertos", "cmdModificar"}}};
constexpr std::array<EjemploFiltro, 2> EjemplosCOLINDANTES{{
    {"Apuesta con 6 colindantes", "01 02 03 04 05 06"},
    {"Apuesta con 0 colindantes", "01 03 05 07 09 49"},
}};

constexpr TonoNumero Tono(bool resaltado) {
    return resaltado ? TonoNumero::Resaltado : TonoNumero::Normal;
}

// The frame of the ticket seen as tens by units.
constexpr TonoNumero DibujoEXTERIORES(int n) {
    return Tono(n < 10 || n >= 40 || n % 10 == 0 || n % 10 == 9);
}

constexpr TonoNumero DibujoSUPERIORES(int n) {
    return Tono(n % 10 < 5);
}

// The numbers that touch 24 in any of the eight directions.
constexpr TonoNumero DibujoCOLINDANTES(int n) {
    const int columnas = n / 10 - 2, filas = n % 10 - 4;
    return n == 24 ? TonoNumero::Central : Tono(columnas * columnas <= 1 && filas * filas <= 1);
}

} // namespace

constexpr std::array<FiltroSencillo, 8> FiltrosSencillos{{
    {.Fila = kALTOSBAJOS,
     .Ventana = "frmFiltroALTOSBAJOS",
     .Frase = "Cuántos números bajos y cuántos altos puede tener la apuesta.",
     .CabeceraTablas = "ACIERTOS PERMITIDOS",
     .Tablas = TablasALTOSBAJOS,
     .Tabla = [](Condiciones& c, size_t i) -> TablaAciertos& {
         return i == 0 ? c.ALTOSBAJOS.Bajos : c.ALTOSBAJOS.Altos;
     }},
    {.Fila = kDECENAS,
     .Ventana = "frmFiltroDECENAS",
     .Frase = "Cuántos números de cada decena puede tener la apuesta, y cómo pueden repartirse entre las decenas.",
     .CabeceraTablas = "ACIERTOS POR DECENA",
     .Tablas = TablasDECENAS,
     .Tabla = [](Condiciones& c, size_t i) -> TablaAciertos& { return c.DECENAS.Decena.at(i); },
     .CabeceraCasillas = "FIGURAS",
     .NombreCasillas = "chkFigura",
     .PrimeraCasilla = 1,
     .Casillas = Figuras.first(10),
     .EjemplosCasillas = EjemplosDECENAS,
     .Marcas = [](Condiciones& c) -> std::span<uint8_t> { return c.DECENAS.FigurasDecenas; }},
    {.Fila = kPARESIMPARES,
     .Ventana = "frmFiltroPARESIMPARES",
     .Frase = "Cuántos números pares y cuántos impares puede tener la apuesta.",
     .CabeceraCasillas = "PARES-IMPARES",
     .NombreCasillas = "chkParesImpares",
     .Casillas = CasillasPARESIMPARES,
     .EjemplosCasillas = EjemplosPARESIMPARES,
     .Marcas = [](Condiciones& c) -> std::span<uint8_t> { return c.PARESIMPARES.ParesActivos; },
     .GuardaAlPulsar = true},
    {.Fila = kEXTERIORESINTERIORES,
     .Ventana = "frmFiltroEXTERIORES",
     .Frase = "Cuántos números del borde del boleto y cuántos de su interior puede tener la apuesta.",
     .CabeceraCasillas = "EXTERIORES-INTERIORES",
     .NombreCasillas = "chkExterioresInteriores",
     .Casillas = CasillasEXTERIORES,
     .EjemplosCasillas = EjemplosEXTERIORES,
     .Marcas = [](Condiciones& c) -> std::span<uint8_t> { return c.EXTERIORESINTERIORES.ExterioresInterioresActivos; },
     .GuardaAlPulsar = true,
     .CabeceraEjemplos = "NUMEROS EXTERIORES",
     .Definicion = "Los números exteriores son los del borde del boleto: del 01 al 10, 19, 20, 29, 30, 39 y del 40 al "
                   "49. Los interiores son los demás.",
     .PieDibujo = "Números exteriores",
     .Dibujo = DibujoEXTERIORES},
    {.Fila = kSUPERIORESINFERIORES,
     .Ventana = "frmFiltroSUPERIORES",
     .Frase = "Cuántos números de la mitad superior del boleto y cuántos de la inferior puede tener la apuesta.",
     .CabeceraCasillas = "SUPERIORES-INFERIORES",
     .NombreCasillas = "chkSuperioresInferiores",
     .Casillas = CasillasSUPERIORES,
     .EjemplosCasillas = EjemplosSUPERIORES,
     .Marcas = [](Condiciones& c) -> std::span<uint8_t> { return c.SUPERIORESINFERIORES.SuperioresInferioresActivos; },
     .GuardaAlPulsar = true,
     .CabeceraEjemplos = "NUMEROS SUPERIORES",
     .Definicion =
         "Los números superiores son los terminados en 0, 1, 2, 3 y 4. Los inferiores son los terminados en 5, "
         "6, 7, 8 y 9.",
     .PieDibujo = "Números superiores",
     .Dibujo = DibujoSUPERIORES},
    {.Fila = kSEGUIDOS,
     .Ventana = "frmFiltroSEGUIDOS",
     .Frase = "Cuántos números seguidos puede tener la serie más larga de la apuesta, y en qué series puede dividirse.",
     .CabeceraTablas = "SERIE MAS LARGA",
     .Tablas = TablasSEGUIDOS,
     .MinimoAcierto = 1,
     .Tabla = [](Condiciones& c, size_t) -> TablaAciertos& { return c.SEGUIDOS.NumerosSeguidos; },
     .CabeceraCasillas = "FIGURAS",
     .NombreCasillas = "chkFigura",
     .PrimeraCasilla = 1,
     .Casillas = Figuras,
     .EjemplosCasillas = EjemplosSEGUIDOS,
     .Marcas = [](Condiciones& c) -> std::span<uint8_t> { return c.SEGUIDOS.FigurasSeguidos; },
     .CabeceraEjemplos = "EJEMPLOS",
     .Ejemplos = SeriesSEGUIDOS},
    {.Fila = kHOMOLOGOS,
     .Ventana = "frmFiltroHOMOLOGOS",
     .Frase = "Cuántos números de un mismo grupo de homólogos debe tener la apuesta en algún grupo.",
     .CabeceraTablas = "HOMOLOGOS EN ALGUN GRUPO",
     .Tablas = TablasHOMOLOGOS,
     .MinimoAcierto = 1,
     .Tabla = [](Condiciones& c, size_t) -> TablaAciertos& { return c.HOMOLOGOS.HomologosAcertados; },
     .CabeceraEjemplos = "GRUPOS DE HOMOLOGOS",
     .Ejemplos = GruposHOMOLOGOS},
    {.Fila = kCOLINDANTES,
     .Ventana = "frmFiltroCOLINDANTES",
     .Frase = "Cuántos números de la apuesta pueden tocar a otro de ella en el boleto.",
     .CabeceraTablas = "COLINDANTES PERMITIDOS",
     .Tablas = TablasCOLINDANTES,
     .Tabla = [](Condiciones& c, size_t) -> TablaAciertos& { return c.COLINDANTES.ColindantesAcertados; },
     .CabeceraEjemplos = "DEFINICION DE COLINDANTE",
     .Definicion = "Los números colindantes son aquellos que se tocan en cualquier posición según su disposición en el "
                   "boleto de primitiva (en cada apuesta puede haber entre 0 y 6 colindantes).",
     .Ejemplos = EjemplosCOLINDANTES,
     .PieDibujo = "Ejemplo de colindantes del número 24",
     .Dibujo = DibujoCOLINDANTES},
}};

const FiltroSencillo* FiltroSencilloDeFila(int k) {
    for (const FiltroSencillo& filtro : FiltrosSencillos)
        if (filtro.Fila == k) return &filtro;
    return nullptr;
}

std::string_view TituloFila(int k) {
    return Recortar(NombreFila(k));
}
