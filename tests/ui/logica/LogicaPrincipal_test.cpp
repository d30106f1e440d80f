#include "LogicaPrincipal.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "Guion.h"

namespace {

const std::string Salir = "[?] NO HA GUARDADO LA COMBINACION ACTUAL EN XML, ¿ DESEA SALIR DE TODAS FORMAS ?";
const std::string Continuar = "[?] NO HA GUARDADO LA COMBINACION ACTUAL EN XML, ¿ DESEA CONTINUAR DE TODAS FORMAS ?";

struct Ventana : Guion {
    LogicaPrincipal logica{sesion, entorno};
    EstadoTrabajo& trabajo = sesion.trabajo;

    int Marcados() const {
        return static_cast<int>(std::count(sesion.trabajo.lblNumero.begin(), sesion.trabajo.lblNumero.end(), true));
    }
};

} // namespace

TEST(LogicaPrincipal, CerrarPreguntaSoloSinGuardarYSeNiegaTrabajando) {
    Ventana v;
    EXPECT_TRUE(v.logica.PuedeCerrar());
    v.logica.PulsarNumero(7);
    EXPECT_FALSE(v.logica.PuedeCerrar());
    v.Respuestas = {true};
    EXPECT_TRUE(v.logica.PuedeCerrar());
    const Textos preguntadas = v.Cajas;
    v.trabajo.EstadoCalculando = true;
    EXPECT_FALSE(v.logica.PuedeCerrar());
    v.trabajo.EstadoCalculando = false;
    v.trabajo.FormularioBloqueado = true; // a file is being written
    EXPECT_FALSE(v.logica.PuedeCerrar());
    EXPECT_EQ(v.Cajas, preguntadas);
    EXPECT_EQ(preguntadas, (Textos{Salir + " -> no", Salir + " -> sí"}));
}

TEST(LogicaPrincipal, NuevoPreguntaUnaVezYVacia) {
    Ventana v;
    v.logica.Pegar("1 2 3");
    v.logica.AlternarFila(8);
    v.sesion.condiciones.SUMAS.intervalos[0] = {100, 150};
    v.logica.Hacer(Orden::Nuevo);
    EXPECT_EQ(v.Marcados(), 3);
    v.Respuestas = {true};
    v.logica.Hacer(Orden::Nuevo);
    EXPECT_EQ(v.Cajas, (Textos{Continuar + " -> no", Continuar + " -> sí"}));
    EXPECT_EQ(v.Marcados(), 0);
    EXPECT_FALSE(v.sesion.condiciones.lstFiltros[8].Activo);
    EXPECT_EQ(v.sesion.condiciones.SUMAS.intervalos[0].Minimo, 0);
    EXPECT_EQ(v.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : Sin guardar.xml");
    EXPECT_TRUE(v.trabajo.CombinacionGuardada);
}

TEST(LogicaPrincipal, NuevoDesdeUnaBaseImportadaVuelveAlBoleto) {
    Ventana v;
    v.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    v.trabajo.txtFicheroASCII = "/tmp/apuestas.txt";
    v.MarcarHasta(10);
    EXPECT_FALSE(v.logica.BoletoHabilitado());
    EXPECT_EQ(v.logica.cmdCuadroApuDirecto(), "Apuestas Importadas");
    v.logica.Hacer(Orden::Nuevo);
    EXPECT_EQ(v.trabajo.cboTipoCombinacion, PronosticoManual);
    EXPECT_EQ(v.trabajo.txtFicheroASCII, "");
    EXPECT_EQ(v.Marcados(), 0);
    EXPECT_TRUE(v.logica.BoletoHabilitado());
    EXPECT_EQ(v.logica.cmdCuadroApuDirecto(), "Apuestas en Directo");
}

TEST(LogicaPrincipal, ElJuegoCambiaLasMarcasYDejaLoDemas) {
    Ventana v;
    v.logica.Pegar("5 6 41 49");
    v.logica.AlternarFila(5);
    v.sesion.condiciones.SUMAS.intervalos[0] = {100, 150};
    v.trabajo.Reduccion.TipoReduccion = 2;
    v.trabajo.Titulo = "TOMBOLERA 11.1 - Fichero : mia.xml";
    v.logica.CambiarJuego(EURODREAMS);
    EXPECT_EQ(v.Marcados(), 0);
    EXPECT_EQ(v.trabajo.NumeroMaximo(), 40);
    EXPECT_TRUE(v.sesion.condiciones.lstFiltros[5].Activo);
    EXPECT_EQ(v.sesion.condiciones.lstFiltros[5].Color, ColorFila::NoDisponible);
    EXPECT_EQ(v.sesion.condiciones.SUMAS.intervalos[0].Minimo, 100);
    EXPECT_EQ(v.trabajo.Reduccion.TipoReduccion, 2);
    EXPECT_EQ(v.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : mia.xml");
    v.logica.PulsarNumero(41);
    v.logica.PulsarReintegro(0);
    EXPECT_EQ(v.Marcados(), 0);
    EXPECT_FALSE(v.trabajo.lblReintegro[0]);
    v.logica.CambiarJuego(BONOLOTO);
    EXPECT_FALSE(v.trabajo.chkReintegros);
    EXPECT_NE(v.sesion.condiciones.lstFiltros[5].Color, ColorFila::NoDisponible);
}

TEST(LogicaPrincipal, ElegirElMismoJuegoNoBorraElBoleto) {
    Ventana v;
    v.logica.Pegar("5 6");
    v.logica.CambiarJuego(PRIMITIVA);
    EXPECT_EQ(v.Marcados(), 2);
}

TEST(LogicaPrincipal, ModoDeLaBase) {
    struct Caso {
        int anterior, elegido;
        bool guardada, respuesta;
        int queda, marcados;
        bool abreAlazar;
        size_t preguntas;
    };
    const Caso casos[] = {
        {PronosticoAleatorio, PronosticoManual, true, false, PronosticoManual, 0, false, 0},
        {PronosticoAleatorio, PronosticoManual, false, true, PronosticoManual, 0, false, 1},
        {PronosticoAleatorio, PronosticoManual, false, false, PronosticoManual, 3, false, 1},
        {PronosticoDesdeArchivo, PronosticoManual, false, false, PronosticoDesdeArchivo, 3, false, 1},
        {PronosticoDesdeArchivo, PronosticoManual, false, true, PronosticoManual, 0, false, 1},
        {PronosticoManual, PronosticoManual, false, false, PronosticoManual, 3, false, 0},
        {PronosticoManual, PronosticoAleatorio, false, false, PronosticoAleatorio, 3, true, 0},
        {PronosticoAleatorio, PronosticoAleatorio, false, false, PronosticoAleatorio, 3, true, 0},
        {PronosticoDesdeArchivo, PronosticoAleatorio, false, false, PronosticoAleatorio, 3, true, 0},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(testing::Message() << c.anterior << " -> " << c.elegido << " guardada " << c.guardada);
        Ventana v;
        v.MarcarHasta(3);
        v.trabajo.cboTipoCombinacion = c.anterior;
        v.trabajo.CombinacionGuardada = c.guardada;
        if (c.preguntas > 0) v.Respuestas = {c.respuesta};
        EXPECT_EQ(v.logica.CambiarTipoCombinacion(c.elegido), c.abreAlazar);
        EXPECT_EQ(v.trabajo.cboTipoCombinacion, c.queda);
        EXPECT_EQ(v.Marcados(), c.marcados);
        EXPECT_EQ(v.Cajas, Textos(c.preguntas, Continuar + (c.respuesta ? " -> sí" : " -> no")));
    }
}

TEST(LogicaPrincipal, DesdeArchivoYSoltarUnFicheroDeApuestas) {
    const CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("a.txt"), "010203040506\r\n");
    Ventana v;
    v.trabajo.chkReintegros = false;
    v.MarcarHasta(3);
    EXPECT_FALSE(v.logica.CambiarTipoCombinacion(PronosticoDesdeArchivo)); // no file chosen
    EXPECT_EQ(v.trabajo.cboTipoCombinacion, PronosticoManual);
    EXPECT_EQ(v.Marcados(), 3);
    v.Ficheros = {carpeta.Ruta("a.txt")};
    EXPECT_FALSE(v.logica.CambiarTipoCombinacion(PronosticoDesdeArchivo));
    EXPECT_EQ(v.trabajo.cboTipoCombinacion, PronosticoDesdeArchivo);
    EXPECT_EQ(v.Marcados(), 6);

    EscribirTodo(carpeta.Ruta("b.asc"), "020304050607\r\n030405060708\r\n");
    v.Cajas.clear();
    v.logica.Soltar(carpeta.Ruta("b.asc")); // the import has not been saved
    EXPECT_EQ(v.Cajas, Textos{Continuar + " -> no"});
    EXPECT_EQ(v.trabajo.NApuestasImportadas, 1);
    v.Respuestas = {true};
    v.logica.Soltar(carpeta.Ruta("b.asc"));
    EXPECT_EQ(v.trabajo.NApuestasImportadas, 2);
    EXPECT_EQ(v.trabajo.txtFicheroASCII, carpeta.Ruta("b.asc"));
}

TEST(LogicaPrincipal, LaBanderaDeGuardado) {
    struct Caso {
        const char* nombre;
        std::function<void(LogicaPrincipal&)> hacer;
        bool guardada;
    };
    const Caso casos[] = {
        {"número", [](auto& l) { l.PulsarNumero(1); }, false},
        {"dígito", [](auto& l) { l.PulsarReintegro(1); }, false},
        {"fila", [](auto& l) { l.PulsarFila(0); }, false},
        {"columna", [](auto& l) { l.PulsarColumna(0); }, false},
        {"marcar todos", [](auto& l) { l.MarcarDesmarcarTODOS(); }, false},
        {"pegar", [](auto& l) { l.Pegar("3"); }, false},
        {"pegar lo ya marcado", [](auto& l) { l.Pegar(l.Copiar()); }, true},
        {"alternar una condición", [](auto& l) { l.AlternarFila(3); }, true},
        {"modo de los dígitos", [](auto& l) { l.CambiarTipoReintegro(Aleatorios); }, true},
    };
    for (const Caso& c : casos) {
        Ventana v;
        c.hacer(v.logica);
        EXPECT_EQ(v.trabajo.CombinacionGuardada, c.guardada) << c.nombre;
        v.Cajas.clear();
    }
    Ventana v;
    v.MarcarHasta(49);
    v.logica.MarcarDesmarcarTODOS();
    EXPECT_EQ(v.Marcados(), 0);
    EXPECT_TRUE(v.trabajo.CombinacionGuardada); // unmarking everything does not touch it
}

TEST(LogicaPrincipal, PegarMarcaLoBuenoYDiceLoMalo) {
    Ventana v;
    v.logica.Pegar("3, 7, 12");
    v.logica.Pegar("01-02-03+49;50 x 0\n7.5 99999999999999999999 2147483648");
    EXPECT_EQ(v.logica.Copiar(), "1, 2, 3, 5, 7, 12, 49");
    EXPECT_EQ(v.Cajas, Textos{"[!] AVISO: No se ha podido marcar: 50, x, 0, 99999999999999999999, 2147483648. Se "
                              "esperan números del 1 al 49"});
    v.Cajas.clear();
    v.logica.CambiarJuego(EURODREAMS);
    v.logica.Pegar("40 41");
    v.logica.Pegar(" ,;\t");
    v.logica.Pegar(std::string(100000, 'z'));
    EXPECT_EQ(v.logica.Copiar(), "40");
    EXPECT_EQ(v.Cajas, (Textos{"[!] AVISO: No se ha podido marcar: 41. Se esperan números del 1 al 40",
                               "[!] AVISO: No hay números que pegar. Se esperan números del 1 al 40",
                               "[!] AVISO: No se ha podido marcar: (texto largo). Se esperan números del 1 al 40"}));
    EXPECT_EQ(v.trabajo.Contador.Iniciales, 0);
}

TEST(LogicaPrincipal, BloqueadaNoHaceNada) {
    Ventana v;
    v.MarcarHasta(3);
    v.trabajo.FormularioBloqueado = true;
    v.trabajo.CombinacionGuardada = false;
    v.logica.PulsarNumero(9);
    v.logica.PulsarReintegro(9);
    v.logica.PulsarFila(0);
    v.logica.PulsarColumna(4);
    v.logica.MarcarDesmarcarTODOS();
    v.logica.Pegar("40");
    v.logica.CambiarJuego(BONOLOTO);
    EXPECT_FALSE(v.logica.CambiarTipoCombinacion(PronosticoAleatorio));
    v.logica.CambiarTipoReintegro(Secuenciales);
    v.logica.AlternarFila(0);
    for (const EntradaMenu& entrada : EntradasMenu) {
        v.logica.Hacer(entrada.orden);
        EXPECT_FALSE(v.logica.PuedeAbrir(entrada.orden));
    }
    EXPECT_EQ(v.logica.Copiar(), "1, 2, 3");
    EXPECT_EQ(v.trabajo.cboTipoJuego, PRIMITIVA);
    EXPECT_EQ(v.trabajo.cboTipoCombinacion, PronosticoManual);
    EXPECT_EQ(v.trabajo.cboTipoReintegro, AlDirecto);
    EXPECT_FALSE(v.sesion.condiciones.lstFiltros[0].Activo);
    EXPECT_EQ(v.Cajas, Textos{});
}

TEST(LogicaPrincipal, CalculoDePruebaNoGuardaYCuenta) {
    Ventana v;
    v.MarcarHasta(12);
    v.trabajo.chkGuardarAutomaticamente = true;
    v.logica.PulsarReintegro(3);
    v.logica.Hacer(Orden::CalculoPrueba);
    EXPECT_EQ(v.Peticiones.size(), 0u); // no file was asked for
    EXPECT_EQ(v.logica.lblApuestasIniciales(), "924");
    EXPECT_EQ(v.logica.lblApuestasReducidas(), "924");
    EXPECT_FALSE(v.trabajo.CombinacionGuardada);
    v.logica.PulsarNumero(12);
    EXPECT_EQ(v.logica.lblApuestasReducidas(), "0");
    v.trabajo.Contador.Progreso = "Fil. Sumas";
    EXPECT_EQ(v.logica.lblApuestasCondicionadas(), "Fil. Sumas");
}

TEST(LogicaPrincipal, LosInformesDelMenu) {
    const CarpetaTemporal carpeta;
    Ventana v;
    v.entorno.CarpetaInformes = carpeta.Ruta();
    v.logica.Hacer(Orden::VerResumenFiltros);
    v.logica.Hacer(Orden::InformeApuestasEliminadas);
    EXPECT_EQ(v.Informes, (Textos{carpeta.Ruta("TOMBOLERA_INFORME.txt"), carpeta.Ruta("TOMBOLERA_RESUMEN.txt")}));
    EXPECT_TRUE(LeerTodo(v.Informes[0]).starts_with("RESUMEN\r\n"));
    EXPECT_TRUE(LeerTodo(v.Informes[1]).starts_with("TOTAL Apuestas Iniciales"));
    EXPECT_TRUE(v.trabajo.CombinacionGuardada);
}

TEST(LogicaPrincipal, ElAnalisisPideApuestas) {
    Ventana v;
    v.MarcarHasta(7);
    v.logica.PulsarReintegro(3);
    EXPECT_FALSE(v.logica.PuedeAbrir(Orden::Analisis));
    EXPECT_EQ(v.Cajas, Textos{"[X] ERROR: No hay apuestas generadas"});
    v.logica.Hacer(Orden::CalculoPrueba);
    EXPECT_TRUE(v.logica.PuedeAbrir(Orden::Analisis));
    v.logica.PulsarNumero(7); // the earlier system is still in its table
    EXPECT_FALSE(v.logica.PuedeAbrir(Orden::Analisis));
    EXPECT_EQ(v.Cajas.size(), 2u);
}

TEST(LogicaPrincipal, LaAyudaAbreElSitioOElManualInstalado) {
    Ventana v;
    v.logica.Hacer(Orden::AyudaOnline);
    EXPECT_EQ(v.Cajas, Textos{"[X] ERROR: FICHERO DE AYUDA NO ENCONTRADO O ERRONEO"});
    v.entorno.Manual = "file:///usr/share/doc/tombolera/manual/index.html";
    v.logica.Hacer(Orden::AyudaOnline);
    v.entorno.Sitio = "https://ejemplo.es";
    v.logica.Hacer(Orden::AyudaOnline);
    EXPECT_EQ(v.Direcciones, (Textos{v.entorno.Manual, v.entorno.Sitio}));
    v.Cajas.clear();
    v.entorno.AbrirDireccion = [](const std::string&) { return false; };
    v.logica.Hacer(Orden::AyudaOnline);
    EXPECT_EQ(v.Cajas, Textos{"[X] ERROR: FICHERO DE AYUDA NO ENCONTRADO O ERRONEO"});
}
