#include "InformeEliminadas.h"

#include <gtest/gtest.h>

#include "Guion.h"
#include "Sesiones.h"
#include "TablaFiltros.h"

namespace {

std::string Totales(const std::string& iniciales, const std::string& eliminadas, const std::string& condicionadas,
                    const std::string& reducidas) {
    return "TOTAL Apuestas Iniciales     : " + iniciales + "\nTOTAL Apuestas Eliminadas    : " + eliminadas +
           "\nTOTAL Apuestas Condicionadas : " + condicionadas + "\nTOTAL Apuestas Reducidas     : " + reducidas +
           "\n\nEliminadas por cada Filtro Activo:\n";
}

std::string Texto(const Guion& guion) {
    return TextoApuestasEliminadas(guion.sesion, guion.entorno);
}

} // namespace

TEST(InformeEliminadas, AntesDeCalcularTodoEsCero) {
    const Guion guion;
    EXPECT_EQ(Texto(guion), Totales("0", "0", "0", "0"));
}

// Every condition on, condition k with k million and one.
TEST(InformeEliminadas, CadaCondicionActivaConSuNombre) {
    Guion guion;
    EstadoTrabajo& trabajo = guion.sesion.trabajo;
    Condiciones& c = guion.sesion.condiciones;
    trabajo.ApuestasEnTabla = 13983816;
    trabajo.Contador.Condicionadas = 1000;
    trabajo.Contador.Reducidas = 57;
    for (size_t k = 0; k < NFilas; ++k) c.lstFiltros[k].Activo = true;
    for (size_t k = 0; k < NFiltros; ++k) c.EliminadasPorFiltro[k] = static_cast<int32_t>(k * 1000000 + 1);
    ReiniciarEliminados(guion.sesion);
    EXPECT_EQ(Texto(guion),
              Totales("13.983.816", "171.000.019", "1.000", "57") +
                  "BAJOS Y ALTOS: 1\nDECENAS: 1.000.001\nDISTANCIAS: 2.000.001\nGRUPOS DE NUMEROS: 3.000.001\n"
                  "GRUPOS RELACIONADOS: 4.000.001\nHOMOLOGOS: 5.000.001\nPARES E IMPARES: 6.000.001\n"
                  "SEGUIDOS: 7.000.001\nSUMAS: 8.000.001\nTERMINACIONES: 9.000.001\nPOSICIONES: 10.000.001\n"
                  "EXTERIORES/INTERIORES: 11.000.001\nSUPERIORES/INFERIORES: 12.000.001\nCOLINDANTES: 13.000.001\n"
                  "SORTEOS ANTERIORES: 14.000.001\nSUMAS POR TRIOS: 15.000.001\nVALORACIONES: 16.000.001\n"
                  "COEFICIENTE RENTABILIDAD: 17.000.001\nGRUPOS ENTRE LIMITES: 18.000.001\n");
}

// The counts are those of the list: a condition switched after the calculation keeps, or lacks, its own.
TEST(InformeEliminadas, LoQueSeCambiaDespuesDeCalcular) {
    Guion guion;
    Condiciones& c = guion.sesion.condiciones;
    c.lstFiltros[kSUMAS].Activo = true;
    c.EliminadasPorFiltro[kSUMAS] = 40;
    ReiniciarEliminados(guion.sesion);
    AlternarFila(guion.sesion, kSUMAS);
    AlternarFila(guion.sesion, kDECENAS);
    EXPECT_EQ(Texto(guion), Totales("0", "40", "0", "0") + "DECENAS: 0\n");
}

TEST(InformeEliminadas, SeEscribeConElNombreCruzado) {
    const CarpetaTemporal carpeta;
    Guion guion;
    guion.entorno.CarpetaInformes = carpeta.Ruta();
    EXPECT_TRUE(VerApuestasEliminadas(guion.sesion, guion.entorno));
    EXPECT_TRUE(
        LeerTodo(carpeta.Ruta("TOMBOLERA_RESUMEN.txt")).starts_with("TOTAL Apuestas Iniciales     : 0\r\nTOTAL"));
    EXPECT_EQ(guion.Informes, Textos{carpeta.Ruta("TOMBOLERA_RESUMEN.txt")});
    guion.entorno.CarpetaInformes = carpeta.Ruta("TOMBOLERA_RESUMEN.txt"); // a file, no folder
    EXPECT_FALSE(VerApuestasEliminadas(guion.sesion, guion.entorno));
    ASSERT_EQ(guion.Cajas.size(), 1u);
    EXPECT_TRUE(guion.Cajas[0].starts_with("[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (")) << guion.Cajas[0];
}
