#include <filesystem>

#include <gtest/gtest.h>

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
    Resultado Ejecutar(Textos argumentos) {
        EscribirTodo(carpeta.Ruta("base.xml"), GenerarXMLBase(guion.sesion, guion.entorno));
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

} // namespace
