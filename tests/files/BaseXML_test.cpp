#include <random>

#include <gtest/gtest.h>

#include "Guion.h"
#include "Sesiones.h"
#include "modXML.h"

namespace {

const std::string CajaErrores = "[X] ERRORES detectados al abrir la BASE:\n\n";
const std::string ErrorFichero = CajaErrores + "FICHERO : ERROR AL ABRIR EL FICHERO\n";

// A base file that opens what the test tells it to.
struct Base : Guion {
    bool Abrir(const std::string& texto, const std::string& nombre = "base.xml") {
        EscribirTodo(carpeta.Ruta(nombre), texto);
        return AbrirFicheroBase(carpeta.Ruta(nombre), sesion, entorno);
    }
    std::string Texto() { return GenerarXMLBase(sesion, entorno); }
    bool Tiene(const std::string& linea) { return Texto().find(linea + "\r\n") != std::string::npos; }

    CarpetaTemporal carpeta;
};

std::string Documento(const std::string& bloques) {
    return "<XML><BASE>" + bloques + "</BASE></XML>";
}

std::string Filtro(const std::string& nombre, const std::string& contenido, const std::string& activado = "0") {
    return Documento("<Filtros><Filtro nombre='" + nombre + "' activado='" + activado + "'>" + contenido +
                     "</Filtro></Filtros>");
}

class Relleno {
  public:
    explicit Relleno(uint32_t semilla) : azar_(semilla) {}

    template <class Entero>
    void Poner(Entero& destino, int hasta) {
        destino = static_cast<Entero>(azar_() % static_cast<unsigned>(hasta + 1));
    }
    template <class Marcas>
    void Marcar(Marcas& marcas, size_t primero = 0) {
        for (size_t i = primero; i < marcas.size(); ++i) marcas[i] = azar_() % 3 == 0;
    }
    void Poner(Intervalo& intervalo) {
        Poner(intervalo.Minimo, 300);
        Poner(intervalo.Maximo, 32767);
    }
    bool Moneda() { return azar_() % 2 == 0; }

    void Llenar(Sesion& sesion);

  private:
    void LlenarTablas(Condiciones& c);
    void LlenarGrupos(Condiciones& c);
    void LlenarValores(Condiciones& c);

    std::mt19937 azar_;
};

void Relleno::LlenarTablas(Condiciones& c) {
    Marcar(c.ALTOSBAJOS.Bajos);
    Marcar(c.ALTOSBAJOS.Altos);
    for (auto& tabla : c.DECENAS.Decena) Marcar(tabla);
    Marcar(c.DECENAS.FigurasDecenas);
    Marcar(c.HOMOLOGOS.HomologosAcertados, 1);
    Marcar(c.PARESIMPARES.ParesActivos);
    Marcar(c.SEGUIDOS.NumerosSeguidos, 1);
    for (auto& figura : c.SEGUIDOS.FigurasSeguidos) Poner(figura, 255);
    for (auto& tabla : c.TERMINACIONES.TerminadosEn) Marcar(tabla);
    Marcar(c.TERMINACIONES.FigurasTerminaciones);
    for (auto& bola : c.POSICIONES.Bola) Marcar(bola, 1);
    Marcar(c.EXTERIORESINTERIORES.ExterioresInterioresActivos);
    Marcar(c.SUPERIORESINFERIORES.SuperioresInferioresActivos);
    Marcar(c.COLINDANTES.ColindantesAcertados);
    Marcar(c.COEFICIENTERENTABILIDAD.RangosCR);
}

void Relleno::LlenarGrupos(Condiciones& c) {
    for (auto& grupo : c.GRUPOS.grupo) {
        if (Moneda()) continue;
        Marcar(grupo.numeros, 1);
        Marcar(grupo.aciertos);
        for (auto& posicion : grupo.posiciones) Poner(posicion, 1);
    }
    // Without gaps: what a file does with them is a test of its own.
    for (size_t g = 0; g < RegistroGRUPOSRELACIONADOS::Grupos; ++g)
        for (size_t s = 0; s < 6 && Moneda(); ++s) {
            Marcar(c.GRUPOSRELACIONADOS.subgrupos[g * 6 + s], 1);
            c.GRUPOSRELACIONADOS.subgrupos[g * 6 + s][s + 1] = 1;
            Marcar(c.GRUPOSRELACIONADOS.condiciones[g * 6 + s]);
        }
    for (auto& grupo : c.GRUPOSENTRELIMITES.grupo) {
        if (Moneda()) continue;
        Marcar(grupo.numeros, 1);
        Marcar(grupo.aciertos);
    }
    Poner(c.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES, 210);
    Poner(c.GRUPOSENTRELIMITES.aciertosMaximoGRUPOSENTRELIMITES, 1000000);
}

void Relleno::LlenarValores(Condiciones& c) {
    for (auto& distancia : c.DISTANCIAS.Distancia) Poner(distancia);
    for (auto& intervalo : c.SUMAS.intervalos) Poner(intervalo);
    for (auto& intervalo : c.SUMASPORTRIOS.intervalosT1) Poner(intervalo);
    for (auto& intervalo : c.SUMASPORTRIOS.intervalosT2) Poner(intervalo);
    Poner(c.TERMINACIONES.SumaMinima, 255);
    Poner(c.TERMINACIONES.SumaMaxima, 255);
    for (auto& bloque : c.SORTEOSANTERIORES.grupo) {
        if (Moneda()) continue;
        bloque.acertarEN[3] = 1;
        Poner(bloque.DESDE.anio, 32767);
        Poner(bloque.DESDE.numero, 2000);
        Poner(bloque.HASTA.anio, 32767);
        Poner(bloque.HASTA.numero, 2000);
        Poner(bloque.sorteoDIAS, 6);
        Poner(bloque.aciertosMinimoSORTEOS, 2000000000);
        Poner(bloque.aciertosMaximoSORTEOS, 2000000000);
    }
    for (auto& grupo : c.VALORACIONES.grupo) {
        if (Moneda()) continue;
        Poner(grupo.intervalos[2]);
        grupo.intervalos[3].Maximo = 7;
        for (size_t n = 1; n < grupo.valoraciones.size(); ++n) Poner(grupo.valoraciones[n], 100);
    }
    for (size_t n = 1; n <= 49; ++n) {
        c.COEFICIENTERENTABILIDAD.PorcentajesApostados[n] = static_cast<double>(azar_() % 10000) / 100;
        c.COEFICIENTERENTABILIDAD.PorcentajesReales[n] = static_cast<double>(azar_()) / 7;
    }
}

void Relleno::Llenar(Sesion& sesion) {
    CambiarJuego(sesion, static_cast<int>(azar_() % 3));
    Marcar(sesion.trabajo.lblReintegro);
    for (int n = 1; n <= sesion.trabajo.NumeroMaximo(); ++n)
        sesion.trabajo.lblNumero[static_cast<size_t>(n)] = Moneda();
    Poner(sesion.trabajo.cboTipoReintegro, 2);
    for (auto& numero : sesion.referencia.CombinacionGanadora) Poner(numero, 49);
    Poner(sesion.referencia.Complementario, 49);
    LlenarTablas(sesion.condiciones);
    LlenarGrupos(sesion.condiciones);
    LlenarValores(sesion.condiciones);
    for (size_t k = 0; k < NFiltros; ++k) sesion.condiciones.lstFiltros[k].Activo = Moneda();
    AjustesReduccion& r = sesion.trabajo.Reduccion;
    Poner(r.TipoReduccion, 4);
    Poner(r.PorcentajeReduccion, 100);
    Poner(r.NApuestasExactas, 13983816);
    for (int16_t* bandera : {&r.ActivarNumeroApuestas, &r.ActivarCiclos, &r.Aleatorio, &r.ApuestasExactas})
        Poner(*bandera, 1);
}

} // namespace

TEST(GenerarXMLBase, TextoExacto) {
    Base base;
    base.Marcar({1, 9, 49});
    base.MarcarDigitos({0, 7});
    Sesion& s = base.sesion;
    s.trabajo.cboTipoReintegro = Secuenciales;
    s.trabajo.txtFicheroASCII = "/casa/José's <a> & b \"c\".txt";
    s.referencia.CombinacionGanadora = {1, 2, 3, 4, 5, 49};
    s.referencia.Complementario = 33;
    s.trabajo.Reduccion = {2, 95, 1200, 1, 0, 1, 1};
    Condiciones& c = s.condiciones;
    c.lstFiltros[0].Activo = c.lstFiltros[18].Activo = true;
    c.ALTOSBAJOS.Bajos = {1, 0, 1, 1, 0, 0, 0};
    c.DISTANCIAS.Distancia[5] = {10, 40};
    c.GRUPOS.grupo[209].numeros[49] = c.GRUPOS.grupo[209].numeros[1] = c.GRUPOS.grupo[209].aciertos[0] = 1;
    c.GRUPOS.grupo[209].posiciones[2] = 0;
    c.GRUPOSRELACIONADOS.subgrupos[6][10] = c.GRUPOSRELACIONADOS.subgrupos[8][11] = 1;
    c.GRUPOSRELACIONADOS.condiciones[8][2] = 1;
    c.SEGUIDOS.NumerosSeguidos = {1, 1, 0, 0, 0, 0, 1};
    c.SEGUIDOS.FigurasSeguidos[0] = 2;
    c.SUMAS.intervalos[9] = {21, 279};
    c.TERMINACIONES.TerminadosEn[9][6] = 1;
    c.POSICIONES.Bola[5][44] = 1;
    c.SORTEOSANTERIORES.grupo[19] = {{2023, 5}, {2024, 300}, 6, 1, 2, {0, 0, 0, 1, 0, 0, 0}};
    c.SUMASPORTRIOS.intervalosT2[0] = {6, 144};
    c.VALORACIONES.grupo[0].intervalos[1].Maximo = 300;
    c.VALORACIONES.grupo[0].valoraciones[49] = 100;
    c.COEFICIENTERENTABILIDAD.PorcentajesReales[1] = 4.5;
    c.COEFICIENTERENTABILIDAD.RangosCR[0] = c.COEFICIENTERENTABILIDAD.RangosCR[100] = 1;
    c.GRUPOSENTRELIMITES.grupo[0].aciertos[6] = 1;
    EXPECT_EQ(base.Texto(), LeerTodo(DATOS_FICHEROS "/completa.xml"));
}

TEST(GenerarXMLBase, LosNumerosQueElJuegoOcultaNoSonDeLaBase) {
    Base base;
    CambiarJuego(base.sesion, EURODREAMS);
    base.MarcarHasta(49);
    const std::string texto = base.Texto();
    EXPECT_NE(texto.find(",39,40'/>"), std::string::npos);
    EXPECT_EQ(texto.find(",41"), std::string::npos);
}

TEST(BaseXML, LeerYGuardarDevuelveElMismoTexto) {
    for (uint32_t semilla = 1; semilla <= 40; ++semilla) {
        Base base;
        Relleno(semilla).Llenar(base.sesion);
        const std::string texto = base.Texto();
        Base otra;
        ASSERT_TRUE(otra.Abrir(texto));
        ASSERT_EQ(otra.Texto(), texto) << "seed " << semilla;
        EXPECT_EQ(otra.Cajas, Textos{});
        for (const size_t k : {3u, 4u, 14u, 16u, 18u})
            EXPECT_EQ(otra.sesion.condiciones.lstFiltros[k].NumeroActivos,
                      (ActualizarFila(base.sesion, static_cast<int>(k)),
                       base.sesion.condiciones.lstFiltros[k].NumeroActivos));
    }
}

TEST(AbrirBaseXML, EmpiezaDeCeroYSeTitulaConElNombre) {
    Base base;
    base.Marcar({1, 2, 3});
    base.sesion.condiciones.lstFiltros[3].Activo = true;
    base.sesion.condiciones.SUMAS.intervalos[0] = {21, 100};
    base.sesion.trabajo.CombinacionGuardada = false;
    EXPECT_TRUE(base.Abrir(Documento("<Reduccion><Tipo valor='3'/></Reduccion>"), "peña.xml"));
    EXPECT_EQ(base.sesion.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : peña.xml");
    EXPECT_TRUE(base.sesion.trabajo.CombinacionGuardada);
    EXPECT_TRUE(base.Tiene("<Base_Numeros numeros=''/>"));
    EXPECT_TRUE(base.Tiene("<intervalo numero='1' suma='0-0'/>"));
    EXPECT_FALSE(base.sesion.condiciones.lstFiltros[3].Activo);
    EXPECT_EQ(base.sesion.condiciones.lstFiltros[FilaReduccion].NumeroActivos, "al 3");
    EXPECT_TRUE(base.sesion.condiciones.lstFiltros[FilaReduccion].Activo);
}

TEST(AbrirBaseXML, PideElFicheroYNadaPasaSiNoSeElige) {
    Base base;
    base.Marcar({1, 2, 3});
    base.Ficheros = {"  "};
    EXPECT_FALSE(AbrirBaseXML(base.sesion, base.entorno));
    EXPECT_TRUE(base.Tiene("<Base_Numeros numeros='1,2,3'/>"));
    ASSERT_EQ(base.Peticiones.size(), 1u);
    EXPECT_EQ(base.Peticiones[0].Titulo, "Abrir Fichero BASE en XML");
    EXPECT_EQ(base.Peticiones[0].Filtros[0].first, "Fichero BASE de TOMBOLERA (*.XML)");
}

TEST(AbrirBaseXML, ElJuegoDelFichero) {
    struct Caso {
        std::string atributo;
        int juego;
        bool error;
    };
    const std::vector<Caso> casos{
        {"IDtipojuego='0'", PRIMITIVA, false},
        {"IDtipojuego='1'", BONOLOTO, false},
        {"IDtipojuego='2'", EURODREAMS, false},
        {"IDtipojuego='3'", BONOLOTO, false},
        {"IDtipojuego='70000'", BONOLOTO, false},
        {"IDtipojuego='-1'", BONOLOTO, true},
        {"IDtipojuego=''", BONOLOTO, true},
        {"IDtipojuego='dos'", BONOLOTO, true},
        {"tipojuego='EURODREAMS' version='99'", BONOLOTO, false},
    };
    for (const Caso& caso : casos) {
        Base base;
        CambiarJuego(base.sesion, BONOLOTO);
        EXPECT_TRUE(base.Abrir(Documento("<Programa " + caso.atributo + "/><Complementario valor='7'/>")));
        EXPECT_EQ(base.sesion.trabajo.cboTipoJuego, caso.juego) << caso.atributo;
        EXPECT_EQ(base.sesion.referencia.Complementario, 7);
        ASSERT_EQ(base.Cajas.size(), caso.error ? 1u : 0u) << caso.atributo;
        EXPECT_EQ(caso.error, !base.Cajas.empty() && base.Cajas[0].starts_with(CajaErrores + "TIPOJUEGO : "));
    }
}

TEST(AbrirBaseXML, NombresYAlturas) {
    Base base;
    const std::string bloque = "<pArEsAcTiVoS valores=' 2 , 3 '/>";
    const std::string filtro = "<FILTROS><!-- nota --><filtro nombre='ParesImpares' activado='1'>" + bloque +
                               "</filtro><Filtro nombre='OTRO' activado='1'/><raro/></FILTROS>";
    EXPECT_TRUE(base.Abrir("<?xml version='1.0'?><otro><nombre>" + filtro + "</nombre></otro>"));
    EXPECT_TRUE(base.Tiene("<ParesActivos valores='2,3' />"));
    EXPECT_TRUE(base.Tiene("<Filtro nombre='PARESIMPARES' activado='1'>"));
    for (const std::string& altura : {"<BASE>" + filtro + "</BASE>", "<a><b><c>" + filtro + "</c></b></a>"}) {
        EXPECT_TRUE(base.Abrir(altura));
        EXPECT_TRUE(base.Tiene("<ParesActivos valores='' />"));
    }
    EXPECT_EQ(base.Cajas, Textos{});
}

TEST(AbrirBaseXML, ActivadoSoloEncienteConUnUno) {
    for (const auto& [activado, encendida] : std::vector<std::pair<std::string, bool>>{
             {"1", true}, {"0", false}, {"2", false}, {"-1", false}, {"Sí", false}, {"", false}}) {
        Base base;
        EXPECT_TRUE(base.Abrir(Filtro("SUMAS", "", activado)));
        EXPECT_EQ(base.sesion.condiciones.lstFiltros[8].Activo, encendida) << activado;
        EXPECT_EQ(base.Cajas, Textos{}) << activado;
    }
}

TEST(AbrirBaseXML, LosSubgruposCierranHuecosYSusCondicionesNo) {
    Base base;
    EXPECT_TRUE(
        base.Abrir(Filtro("GRUPOSRELACIONADOS", "<grupo numero='2'><subgrupos><subgrupo numero='7' numeros='1,2'/>"
                                                "<subgrupo numero='9' numeros='3'/></subgrupos><condiciones>"
                                                "<aciertos bloque='1' valores='1'/><aciertos bloque='3' valores='0,1'/>"
                                                "</condiciones></grupo>")));
    const std::string texto = base.Texto();
    EXPECT_NE(texto.find("<subgrupo numero='7' numeros='1,2' />\r\n<subgrupo numero='8' numeros='3' />\r\n"
                         "</subgrupos>\r\n<condiciones>\r\n<aciertos bloque='1' valores='1' />\r\n"
                         "<aciertos bloque='3' valores='0,1' />\r\n"),
              std::string::npos);
    EXPECT_EQ(base.sesion.condiciones.lstFiltros[4].NumeroActivos, "1 de 60");
}

TEST(AbrirBaseXML, ConApuestasImportadasSoloCambianFiltrosYReduccion) {
    Base base;
    base.sesion.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    base.sesion.trabajo.txtFicheroASCII = "/datos/mias.txt";
    base.Marcar({40, 41});
    EXPECT_TRUE(base.Abrir(Documento("<Combinacion><Base_Numeros numeros='1,2'/></Combinacion><BaseASCII valor='x'/>"
                                     "<Reduccion><Porcentaje valor='50'/></Reduccion>")));
    EXPECT_EQ(base.Cajas, Textos{});
    EXPECT_TRUE(base.Tiene("<Base_Numeros numeros='40,41'/>"));
    EXPECT_TRUE(base.Tiene("<BaseASCII valor='/datos/mias.txt' />"));
    EXPECT_TRUE(base.Tiene("<Porcentaje valor='50' />"));
}

TEST(AbrirBaseXML, AvisaDeLaBaseImportadaDetrasDeLosErrores) {
    Base base;
    EXPECT_TRUE(base.Abrir(Documento("<BaseASCII valor='C:\\a&amp;b.txt'/><Complementario valor='x'/>")));
    ASSERT_EQ(base.Cajas.size(), 2u);
    EXPECT_EQ(base.Cajas[0], CajaErrores + "COMPLEMENTARIO : valor no válido: 'x'\n");
    EXPECT_EQ(base.Cajas[1], "[!] AVISO : La Base fue importada desde el fichero en ASCII: (C:\\a&b.txt)\nDebe "
                             "importarlo de nuevo con la opción 'Desde Archivo' si quiere que su Combinación parta de "
                             "dicho fichero.");
    EXPECT_TRUE(base.sesion.trabajo.txtFicheroASCII.empty());
}

// Every block with something bad in it: reported once under its name, and what is good around counts.
TEST(AbrirBaseXML, CadaBloqueInformaDeSuUltimoFalloYLoBuenoCuenta) {
    struct Caso {
        std::string documento, nombre, linea;
    };
    const std::string cienMil(200000, ',');
    const std::vector<Caso> casos{
        {Documento("<Combinacion><Base_Numeros numeros='0,5,50,70000,-1,x,,6'/></Combinacion>"), "NUMEROS-REINTEGROS",
         "<Base_Numeros numeros='5,6'/>"},
        {Documento("<Combinacion><Base_Reintegros numeros='3,10' tipo='1'/></Combinacion>"), "NUMEROS-REINTEGROS",
         "<Base_Reintegros numeros='3' tipo='1' tipoDescripcion='Secuenciales' />"},
        {Documento("<Combinacion><Base_Reintegros numeros='3' tipo='3'/></Combinacion>"), "NUMEROS-REINTEGROS",
         "<Base_Reintegros numeros='3' tipo='0' tipoDescripcion='Al directo' />"},
        {Documento("<CombinacionGanadora valor='1,2,300,4,5,6,7'/>"), "COMBINACION GANADORA",
         "<CombinacionGanadora valor='1,2,0,4,5,6' />"},
        {Documento("<Complementario valor='256'/>"), "COMPLEMENTARIO", "<Complementario valor='0' />"},
        {Documento("<Complementario valor=''/>"), "COMPLEMENTARIO", "<Complementario valor='0' />"},
        {Documento("<BaseASCII/>"), "BASE ASCII", "<BaseASCII valor='' />"},
        {Documento("<Reduccion><Tipo valor='2'/><Porcentaje valor='40000'/></Reduccion>"), "REDUCCION",
         "<Tipo descripcion='al 4' valor='2' />"},
        {Documento("<Reduccion><NuApuestas valor='3000000000'/></Reduccion>"), "REDUCCION", "<NuApuestas valor='1' />"},
        {Filtro("ALTOSBAJOS", "<Bajos valores='7,2'/><Altos/>"), "BAJOS Y ALTOS", "<Bajos valores='2' />"},
        {Filtro("DECENAS", "<FigurasDecenas valores='1,256,1,0,0,0,0,0,0,0,1'/>"), "DECENAS",
         "<FigurasDecenas valores='1,0,1,0,0,0,0,0,0,0'/>"},
        {Filtro("DISTANCIAS", "<Distancia12Minima valor='70000'/><Distancia12Maxima valor='9'/>"), "DISTANCIAS",
         "<Distancia12Maxima valor='9' />"},
        {Filtro("GRUPOS", "<grupo numero='211'><aciertos valores='1'/></grupo><grupo numero='210'><aciertos "
                          "valores='2'/><posiciones valores='0,0,0,0,0,1,1'/></grupo>"),
         "GRUPOS DE NUMEROS", "<posiciones valores='0,0,0,0,0,1' />"},
        {Filtro("GRUPOS", "<grupo numero='0'/><grupo/><grupo numero='1'><aciertos valores='3'/></grupo>"),
         "GRUPOS DE NUMEROS", "<aciertos valores='3' />"},
        {Filtro("GRUPOSRELACIONADOS", "<grupo numero='1'><subgrupos><s numeros='1'/><s numeros='2'/><s numeros='3'/>"
                                      "<s numeros='4'/><s numeros='5'/><s numeros='6'/><s numeros='7'/></subgrupos>"
                                      "<condiciones><aciertos bloque='7' valores='1'/></condiciones></grupo>"),
         "GRUPOS RELACIONADOS", "<subgrupo numero='6' numeros='6' />"},
        {Filtro("GRUPOSRELACIONADOS", "<grupo numero='61'><subgrupos><s numeros='1'/></subgrupos></grupo>"),
         "GRUPOS RELACIONADOS", "<Filtro nombre='GRUPOSRELACIONADOS' activado='0'>"},
        {Filtro("HOMOLOGOS", "<HomologosAcertados valores='1,,2'/>"), "HOMOLOGOS",
         "<HomologosAcertados valores='1,2' />"},
        {Filtro("PARESIMPARES", "<ParesActivos valores='3," + cienMil + "'/>"), "PARES E IMPARES",
         "<ParesActivos valores='3' />"},
        {Filtro("SEGUIDOS", "<NumerosSeguidos valores='6'/><FigurasSeguidos/>"), "SEGUIDOS",
         "<NumerosSeguidos valores='6' />"},
        {Filtro("SUMAS", "<intervalos><intervalo numero='11' suma='1-2'/><intervalo numero='1' suma='21-x'/>"
                         "<intervalo numero='2' suma='30'/></intervalos>"),
         "SUMAS", "<intervalo numero='2' suma='30-0'/>"},
        {Filtro("TERMINACIONES", "<TerminadosEn id='10' valores='1'/><SumaTerminaciones suma='3-256'/>"),
         "TERMINACIONES", "<SumaTerminaciones suma='3-53'/>"},
        {Filtro("POSICIONES", "<Bola id='7' valores='1'/><Bola id='6' valores='0,49,50'/>"), "POSICIONES",
         "<Bola id='6' valores='49' />"},
        {Filtro("EXTERIORESINTERIORES", "<ExterioresInterioresActivos valores='-1,1'/>"), "EXTERIORES INTERIORES",
         "<ExterioresInterioresActivos valores='1' />"},
        {Filtro("SUPERIORESINFERIORES", "<SuperioresInferioresActivos valores='1.5,1'/>"), "SUPERIORES INFERIORES",
         "<SuperioresInferioresActivos valores='1' />"},
        {Filtro("COLINDANTES", "<ColindantesAcertados valores='99999999999,4'/>"), "COLINDANTES",
         "<ColindantesAcertados valores='4' />"},
        {Filtro("SORTEOSANTERIORES", "<grupo numero='21'/><grupo numero='20'><sorteoDESDE numero='32768' anio='2023'/>"
                                     "<acertarEN valores='3'/></grupo>"),
         "SORTEOS ANTERIORES", "<sorteoDESDE numero='1' anio='2023'/>"},
        {Filtro("SUMASPORTRIOS", "<intervalosT2><intervalo numero='0' suma='1-2'/><intervalo numero='5' suma='6-7'/>"
                                 "</intervalosT2>"),
         "SUMASPORTRIOS", "<intervalo numero='5' suma='6-7'/>"},
        {Filtro("VALORACIONES", "<grupo numero='10'><intervalos><intervalo numero='4' valores='1-2'/><intervalo "
                                "numero='5' valores='1-2'/></intervalos><valoraciones valores='40000,7'/></grupo>"),
         "VALORACIONES", "<intervalo numero='4' valores='1-2'/>"},
        {Filtro("COEFICIENTERENTABILIDAD", "<PorcentajesReales valores='4.5,nan,inf,1e999,4;5,'/><RangosCR "
                                           "valores='101,100'/>"),
         "COEFICIENTERENTABILIDAD", "<RangosCR valores='100' />"},
        {Filtro("GRUPOSENTRELIMITES", "<aciertosMinimoGRUPOSENTRELIMITES/><aciertosMaximoGRUPOSENTRELIMITES "
                                      "valor='9'/>"),
         "GRUPOS ENTRE LIMITES", "<aciertosMaximoGRUPOSENTRELIMITES valor='9' />"},
        {Documento("<Filtros><Filtro nombre='SUMAS'/></Filtros>"), "SUMAS", "<Filtro nombre='SUMAS' activado='0'>"},
    };
    for (const Caso& caso : casos) {
        Base base;
        EXPECT_TRUE(base.Abrir(caso.documento));
        ASSERT_EQ(base.Cajas.size(), 1u) << caso.nombre;
        const std::string& caja = base.Cajas[0];
        EXPECT_TRUE(caja.starts_with(CajaErrores + caso.nombre + " : ")) << caja;
        EXPECT_EQ(std::count(caja.begin(), caja.end(), '\n'), 3) << caja;
        EXPECT_TRUE(base.Tiene(caso.linea)) << caso.nombre << " " << caja << base.Texto();
    }
}

TEST(AbrirBaseXML, LosBlancosYLasListasVaciasNoFallan) {
    Base base;
    EXPECT_TRUE(base.Abrir(Documento("<Combinacion><Base_Numeros numeros='  '/><Base_Reintegros numeros='' tipo='0'/>"
                                     "</Combinacion><Filtros><Filtro nombre='DECENAS' activado='0'><Decena0109 "
                                     "valores=' '/><FigurasDecenas valores=''/></Filtro></Filtros>")));
    EXPECT_EQ(base.Cajas, Textos{});
}

TEST(AbrirBaseXML, LoQueNoEsUnDocumentoDejaElEstadoReiniciado) {
    const std::vector<std::string> malos{
        "",
        " \r\n",
        "<XML><BASE>",
        "<XML></BASE></XML>",
        "texto",
        "<a/><b/>",
        "<a b=c/>",
        std::string(1000, '\0'),
        std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
    };
    for (const std::string& malo : malos) {
        Base base;
        base.Marcar({1, 2});
        base.sesion.trabajo.CombinacionGuardada = false;
        EXPECT_FALSE(base.Abrir(malo, "mala.xml"));
        EXPECT_EQ(base.Cajas, Textos{ErrorFichero}) << malo;
        EXPECT_TRUE(base.Tiene("<Base_Numeros numeros=''/>"));
        EXPECT_EQ(base.sesion.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : mala.xml");
        EXPECT_TRUE(base.sesion.trabajo.CombinacionGuardada);
    }
    Base base;
    for (const std::string& ruta :
         {base.carpeta.Ruta("no-existe.xml"), base.carpeta.Ruta(), std::string("/dev/zero")}) {
        base.Cajas.clear();
        EXPECT_FALSE(AbrirFicheroBase(ruta, base.sesion, base.entorno));
        EXPECT_EQ(base.Cajas, Textos{ErrorFichero}) << ruta;
    }
}

TEST(AbrirBaseXML, CortadaEnCualquierByteNoSeLee) {
    Base base;
    base.Marcar({1, 2, 3, 4, 5, 6});
    const std::string texto = base.Texto(), ruta = base.carpeta.Ruta("base.xml");
    EXPECT_TRUE(base.Abrir(texto.substr(0, texto.size() - 2))); // only the last line end is missing
    for (size_t n = texto.size() - 3; n > 0; --n) {
        std::filesystem::resize_file(ruta, n);
        base.Cajas.clear();
        EXPECT_FALSE(AbrirFicheroBase(ruta, base.sesion, base.entorno)) << n;
        EXPECT_EQ(base.Cajas, Textos{ErrorFichero}) << n;
    }
}

TEST(AbrirBaseXML, Codificaciones) {
    const std::string utf8 = Documento("<BaseASCII valor='peña.txt'/>");
    const std::string codigo8 = Documento("<BaseASCII valor='pe\xF1"
                                          "a.txt'/>");
    std::string utf16 = "\xFF\xFE";
    for (const char16_t c : std::u16string(u"<XML><BASE><BaseASCII valor='peña.txt'/></BASE></XML>"))
        utf16 += {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
    for (const std::string& texto : {utf8, "\xEF\xBB\xBF" + utf8, "<?xml version='1.0' encoding='UTF-8'?>" + utf8,
                                     codigo8, "<?xml version='1.0' encoding='windows-1252'?>" + codigo8,
                                     "<?xml version='1.0' encoding='ISO-8859-1'?>" + codigo8, utf16}) {
        Base base;
        EXPECT_TRUE(base.Abrir(texto));
        ASSERT_EQ(base.Cajas.size(), 1u);
        EXPECT_NE(base.Cajas[0].find("(peña.txt)"), std::string::npos) << base.Cajas[0];
    }
}

TEST(AbrirBaseXML, DocumentosDesmesurados) {
    Base base;
    std::string hondo, ancho = "<grupo numero='1'>";
    for (int i = 0; i < 300000; ++i) hondo += "<a>";
    for (int i = 0; i < 300000; ++i) hondo += "</a>";
    EXPECT_TRUE(base.Abrir(Documento("<Filtros>" + hondo + "</Filtros>")));
    for (int i = 0; i < 100000; ++i) ancho += "<numeros valores='7'/>";
    EXPECT_TRUE(base.Abrir(Filtro("GRUPOS", ancho + "<aciertos valores='1'/></grupo>")));
    EXPECT_TRUE(base.Tiene("<numeros valores='7' />"));
    EXPECT_EQ(base.Cajas, Textos{});
    EXPECT_FALSE(base.Abrir(Documento(std::string(40 << 20, ' '))));
    EXPECT_EQ(base.Cajas, Textos{ErrorFichero});
}
