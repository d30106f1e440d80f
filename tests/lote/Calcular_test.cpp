#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Guion.h"
#include "Proceso.h"
#include "TablaFiltros.h"
#include "modEncriptarFichero.h"
#include "modXML.h"

namespace {

// A base of eight numbers, one digit 6, in a folder of its own.
class Calcular : public testing::Test {
  protected:
    CarpetaTemporal carpeta;
    Guion guion;

    Calcular() {
        guion.Marcar({2, 5, 9, 14, 23, 31, 38, 47});
        guion.MarcarDigitos({6});
    }
    FilaFiltro& Fila(FilaDe k) { return guion.sesion.condiciones.lstFiltros[k]; }

    // Only the bet of the six lowest numbers, whose sum is 84, and its neighbour of 91 pass.
    void ActivarSumas() {
        guion.sesion.condiciones.SUMAS.intervalos[0] = {21, 91};
        Fila(kSUMAS).Activo = true;
    }
    // "al 5", in cycles without an end.
    void ActivarReduccion() {
        guion.sesion.trabajo.Reduccion.TipoReduccion = 1;
        guion.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    }
    void EscribirBase() { EscribirTodo(carpeta.Ruta("base.xml"), GenerarXMLBase(guion.sesion, guion.entorno)); }
    Resultado Ejecutar(Textos argumentos) {
        EscribirBase();
        return Correr(argumentos, {.Carpeta = carpeta.Ruta()});
    }
    std::string Escrito(const std::string& nombre) { return LeerTodo(carpeta.Ruta(nombre)); }
    bool Existe(const std::string& nombre) { return std::filesystem::exists(carpeta.Ruta(nombre)); }
};

TEST_F(Calcular, EscribeLasCuentasYLasEliminadasDeLoActivo) {
    ActivarSumas();
    Fila(kALTOSBAJOS).Activo = true;
    const Resultado r = Ejecutar({"calcular", "base.xml"});
    EXPECT_EQ(r.Salida, "Iniciales: 28\nCondicionadas: 2\nReducidas: 2\nCiclos: 0\n"
                        "Eliminadas ALTOSBAJOS: 0\nEliminadas SUMAS: 26\n");
    EXPECT_EQ(r.Errores, "");
    EXPECT_EQ(r.Estado, 0);
}

TEST_F(Calcular, EnJsonDiceLoMismo) {
    ActivarSumas();
    EXPECT_EQ(Ejecutar({"calcular", "base.xml", "--json"}).Salida,
              "{\"iniciales\":28,\"condicionadas\":2,\"reducidas\":2,\"ciclos\":0,\"eliminadas\":{\"SUMAS\":26}}\n");
    Fila(kSUMAS).Activo = false;
    EXPECT_EQ(Ejecutar({"calcular", "--json", "base.xml"}).Salida,
              "{\"iniciales\":28,\"condicionadas\":28,\"reducidas\":28,\"ciclos\":0,\"eliminadas\":{}}\n");
}

TEST_F(Calcular, EscribeLasApuestasFinalesYLasCondicionadas) {
    ActivarSumas();
    EXPECT_EQ(Ejecutar({"calcular", "base.xml", "--texto", "final.txt", "--condicionadas", "cond.txt"}).Estado, 0);
    EXPECT_EQ(Escrito("final.txt"), "020509142331\r\n020509142338\r\n");
    EXPECT_EQ(Escrito("cond.txt"), Escrito("final.txt"));
}

TEST_F(Calcular, GuardaElSistemaYSuBaseJuntoAEl) {
    ActivarSumas();
    EXPECT_EQ(Ejecutar({"calcular", "base.xml", "--guardar", "sabado.2"}).Estado, 0);
    Tabla apuestas;
    ASSERT_EQ(LeerFicheroApuestas(carpeta.Ruta("sabado.TOM"), apuestas, nullptr, Juegos[PRIMITIVA], guion.entorno), 2);
    EXPECT_EQ(Apuestas(apuestas, 7), (std::vector<Apuesta>{{2, 5, 9, 14, 23, 31, 6}, {2, 5, 9, 14, 23, 38, 6}}));
    Guion otro;
    EXPECT_TRUE(AbrirFicheroBase(carpeta.Ruta("sabado.xml"), otro.sesion, otro.entorno));
    EXPECT_TRUE(otro.sesion.condiciones.lstFiltros[kSUMAS].Activo);
}

TEST_F(Calcular, UnaCajaLaTerminaConEstado1YNadaEscrito) {
    guion.sesion.trabajo.lblReintegro[6] = false;
    const Resultado sinDigito = Ejecutar({"calcular", "base.xml", "--texto", "final.txt"});
    EXPECT_EQ(sinDigito.Errores, "AVISO: Hay que seleccionar mínimo 1 reintegro\n");
    EXPECT_EQ(sinDigito.Salida, "");
    EXPECT_EQ(sinDigito.Estado, 1);
    EXPECT_FALSE(Existe("final.txt"));

    guion.MarcarDigitos({6});
    guion.sesion.condiciones.SUMAS.intervalos[0] = {279, 279};
    Fila(kSUMAS).Activo = true;
    const Resultado ninguna = Ejecutar({"calcular", "base.xml"});
    EXPECT_EQ(ninguna.Errores, "ERROR: Se han generado 0 apuestas después de condicionar, cambie las condiciones\n");
    EXPECT_EQ(ninguna.Estado, 1);
}

TEST_F(Calcular, LaPreguntaSeContestaNoSalvoConSi) {
    Fila(kSORTEOSANTERIORES).Activo = true;
    const Resultado no = Ejecutar({"calcular", "base.xml"});
    EXPECT_TRUE(no.Errores.starts_with("Está activado el filtro 'SORTEOS ANTERIORES'.")) << no.Errores;
    EXPECT_TRUE(no.Errores.ends_with("¿ Desea continuar ? -> no\n")) << no.Errores;
    EXPECT_EQ(no.Salida, "");
    EXPECT_EQ(no.Estado, 1);
    for (const Textos& argumentos : {Textos{"--si", "calcular", "base.xml"}, Textos{"calcular", "base.xml", "--si"}}) {
        const Resultado si = Ejecutar(argumentos);
        EXPECT_TRUE(si.Errores.ends_with("¿ Desea continuar ? -> sí\n")) << si.Errores;
        EXPECT_EQ(si.Estado, 0);
    }
}

// A maximum of 0 becomes the number of draws loaded.
TEST_F(Calcular, CargaLosSorteosDeUnaRespuestaGuardada) {
    Fila(kSORTEOSANTERIORES).Activo = true;
    BloqueSorteos& grupo = guion.sesion.condiciones.SORTEOSANTERIORES.grupo[7];
    grupo = {{2000, 1}, {2000, 9}, 0, 1, 0, {0, 0, 0, 0, 0, 0, 1}};
    EscribirTodo(carpeta.Ruta("respuesta.xml"),
                 "<r><Primitiva><Combinaciones>"
                 "<Combinacion numeros='02,05,09,14,23,31,1,0' anio='2000' sorteo='1' dia='J'/>"
                 "<Combinacion numeros='47,38,31,23,14,9' anio='2000' sorteo='9' dia='S'/>"
                 "<Combinacion numeros='2,5,9,14,23,38' anio='2001' sorteo='1' dia='J'/>"
                 "</Combinaciones></Primitiva></r>");
    const Resultado r = Ejecutar({"--si", "calcular", "base.xml", "--sorteos", "respuesta.xml", "--texto", "f.txt"});
    EXPECT_EQ(r.Estado, 0) << r.Errores;
    EXPECT_EQ(Escrito("f.txt"), "020509142331\r\n091423313847\r\n");
    EXPECT_NE(r.Salida.find("Eliminadas SORTEOSANTERIORES: 26\n"), std::string::npos) << r.Salida;

    const Resultado sin = Ejecutar({"--si", "calcular", "base.xml", "--sorteos", "no_esta.xml"});
    EXPECT_EQ(sin.Estado, 1);
    EXPECT_TRUE(sin.Errores.starts_with("ERROR AL ABRIR EL FICHERO DE SORTEOS (")) << sin.Errores;
    EXPECT_EQ(sin.Salida, "");
}

TEST_F(Calcular, LoQueNoSePuedeEscribirNoImpideLoDemas) {
    std::filesystem::create_directory(carpeta.Ruta("ocupado.txt"));
    const Resultado r = Ejecutar({"calcular", "base.xml", "--guardar", "no/hay/carpeta.TOM", "--texto", "ocupado.txt",
                                  "--condicionadas", "cond.txt"});
    EXPECT_EQ(r.Estado, 1);
    EXPECT_TRUE(r.Salida.starts_with("Iniciales: 28\n"));
    const std::string caja = "ERROR AL GUARDAR EL FICHERO, FICHERO NO GUARDADO (";
    EXPECT_TRUE(r.Errores.starts_with(caja)) << r.Errores;
    EXPECT_NE(r.Errores.find("\n" + caja), std::string::npos) << r.Errores;
    EXPECT_EQ(Escrito("cond.txt").size(), 28u * 14);
}

TEST_F(Calcular, LaReduccionSinFinHaceLosCiclosPedidos) {
    ActivarReduccion();
    for (const auto& [argumentos, ciclos] :
         {std::pair{Textos{}, "Ciclos: 1\n"}, {Textos{"--ciclos", "7"}, "Ciclos: 7\n"}}) {
        Textos todos{"calcular", "base.xml", "--texto", "final.txt"};
        todos.insert(todos.end(), argumentos.begin(), argumentos.end());
        const Resultado r = Ejecutar(todos);
        EXPECT_EQ(r.Estado, 0);
        EXPECT_NE(r.Salida.find(ciclos), std::string::npos) << r.Salida;
        const auto reducidas = Escrito("final.txt").size() / 14;
        EXPECT_GE(reducidas, 3u); // a bet covers itself and 12 others of the 28
        EXPECT_LT(reducidas, 28u);
        EXPECT_NE(r.Salida.find("\nReducidas: " + std::to_string(reducidas) + "\n"), std::string::npos) << r.Salida;
    }
}

// The 28 bets of eight numbers al 5 take four.
TEST_F(Calcular, MejoraElSistemaAntesDeGrabarlo) {
    ActivarReduccion();
    const Resultado r = Ejecutar({"calcular", "base.xml", "--mejorar-pasos", "3000", "--texto", "f.txt"});
    EXPECT_NE(r.Salida.find("\nReducidas: 4\n"), std::string::npos) << r.Salida << r.Errores;
    EXPECT_EQ(Escrito("f.txt").size(), 4u * 14);
    const std::string antes = Escrito("f.txt");
    Ejecutar({"calcular", "base.xml", "--mejorar-pasos", "3000", "--texto", "f.txt"});
    EXPECT_EQ(Escrito("f.txt"), antes);
}

TEST_F(Calcular, MejorarPideUnaReduccionConGarantia) {
    const Resultado sin = Ejecutar({"calcular", "base.xml", "--mejorar", "1"});
    EXPECT_EQ(sin.Errores, "ERROR: No hay ninguna reducción que mejorar\n");
    EXPECT_EQ(sin.Estado, 1);
    ActivarReduccion();
    guion.sesion.trabajo.Reduccion.ActivarNumeroApuestas = guion.sesion.trabajo.Reduccion.ApuestasExactas = 1;
    guion.sesion.trabajo.Reduccion.NApuestasExactas = 6;
    const Resultado exacto = Ejecutar({"calcular", "base.xml", "--mejorar", "1"});
    EXPECT_EQ(exacto.Errores, "ERROR: No se puede mejorar un sistema con un número exacto de apuestas\n");
    EXPECT_EQ(exacto.Salida, "");
}

// The progress line of the terminal tells when a system stands; then the user stops.
TEST_F(Calcular, InterrumpidaGuardaElMejorSistema) {
    ActivarReduccion();
    EscribirBase();
    const auto parar = [](pid_t hijo, const std::string& errores) {
        const size_t progreso = errores.rfind("%, ");
        const bool hay = progreso != std::string::npos && errores[progreso + 3] >= '1' && errores[progreso + 3] <= '9';
        if (hay) kill(hijo, SIGINT);
        return hay;
    };
    const Resultado r = Correr({"calcular", "base.xml", "--segundos", "600", "--guardar", "mejor.TOM"},
                               {.Carpeta = carpeta.Ruta(), .Terminal = true, .AlLeerErrores = parar});
    EXPECT_EQ(r.Estado, 130);
    EXPECT_TRUE(r.Errores.ends_with("\r\033[K")) << "the progress line stays";
    Tabla apuestas;
    const int32_t n =
        LeerFicheroApuestas(carpeta.Ruta("mejor.TOM"), apuestas, nullptr, Juegos[PRIMITIVA], guion.entorno);
    EXPECT_NE(r.Salida.find("\nReducidas: " + std::to_string(n) + "\n"), std::string::npos) << r.Salida;
    EXPECT_TRUE(Existe("mejor.xml"));
}

// Stopped at some moment of the search: what was best then is saved whole, with its guarantee.
TEST_F(Calcular, InterrumpidaAlMejorarGuardaElMejorSistema) {
    guion.Marcar({1, 3, 4, 6, 7, 8}); // 14 numbers, 3003 bets
    ActivarReduccion();
    EscribirBase();
    for (const useconds_t espera : {0, 40000, 170000}) {
        const auto parar = [espera](pid_t hijo, const std::string& errores) {
            if (errores.find("Mejora ") == std::string::npos) return false;
            usleep(espera);
            return kill(hijo, SIGINT) == 0;
        };
        const Resultado r = Correr({"calcular", "base.xml", "--mejorar", "600", "--guardar", "mejor.TOM"},
                                   {.Carpeta = carpeta.Ruta(), .Terminal = true, .AlLeerErrores = parar});
        EXPECT_EQ(r.Estado, 130);
        Tabla apuestas;
        const int32_t n =
            LeerFicheroApuestas(carpeta.Ruta("mejor.TOM"), apuestas, nullptr, Juegos[PRIMITIVA], guion.entorno);
        EXPECT_NE(r.Salida.find("\nReducidas: " + std::to_string(n) + "\n"), std::string::npos) << r.Salida;
        const Resultado huecos = Correr({"huecos", "base.xml", "--sistema", "mejor.TOM"}, {.Carpeta = carpeta.Ruta()});
        EXPECT_TRUE(huecos.Salida.starts_with("Huecos: 0 de 3003 ")) << huecos.Salida << huecos.Errores;
    }
}

} // namespace
