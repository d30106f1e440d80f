#include "Sesiones.h"

#include <gtest/gtest.h>

#include "Boleto.h"
#include "Guion.h"
#include "TablaFiltros.h"

TEST(Sesiones, AlEmpezar) {
    Guion guion;
    const Sesion& s = guion.sesion;
    EXPECT_EQ(s.trabajo.Titulo, "TOMBOLERA 11.1");
    EXPECT_EQ(NombreFicheroActual(s.trabajo), "Sin guardar.xml");
    EXPECT_TRUE(s.trabajo.CombinacionGuardada);
    EXPECT_EQ(s.trabajo.TipoJuego(), "PRIMITIVA");
    EXPECT_EQ(s.condiciones.SORTEOSANTERIORES.grupo[19].HASTA.anio, 2024);
    EXPECT_EQ(s.condiciones.TERMINACIONES.SumaMaxima, 53);
    EXPECT_EQ(s.condiciones.GRUPOSENTRELIMITES.aciertosMaximoGRUPOSENTRELIMITES, 210);
    EXPECT_DOUBLE_EQ(s.condiciones.COEFICIENTERENTABILIDAD.PorcentajesApostados[49], 11.05);
}

TEST(Sesiones, TextoDeLasFilas) {
    Guion guion;
    ListaFiltros& filas = guion.sesion.condiciones.lstFiltros;
    const auto texto = [&](int k) { return TextoFila(filas[static_cast<size_t>(k)], k, '.'); };
    EXPECT_EQ(texto(kSUMAS), "No   Sumas                 -                  -");
    EXPECT_EQ(texto(kGRUPOS), "No   Grupos de Números     0 de 210           -");
    EXPECT_EQ(texto(FilaReduccion), "No   Reducción             -                  -");
    AlternarFila(guion.sesion, kSUMAS);
    EXPECT_TRUE(guion.sesion.trabajo.CombinacionGuardada);
    guion.sesion.condiciones.EliminadasPorFiltro[kSUMAS] = 1204567;
    ReiniciarEliminados(guion.sesion);
    EXPECT_EQ(texto(kSUMAS), "Sí   Sumas                 -          1.204.567");
    for (auto& grupo : guion.sesion.condiciones.GRUPOS.grupo) grupo.aciertos[2] = 1;
    ActualizarFila(guion.sesion, kGRUPOS);
    EXPECT_EQ(texto(kGRUPOS), "No   Grupos de Números     210 de 210         -");
    guion.sesion.trabajo.Reduccion.TipoReduccion = 2;
    ActualizarFila(guion.sesion, FilaReduccion);
    EXPECT_EQ(texto(FilaReduccion), "No   Reducción             al 4               -");
}

TEST(Sesiones, BloquesUsados) {
    Guion guion;
    Condiciones& c = guion.sesion.condiciones;
    c.GRUPOSRELACIONADOS.subgrupos[6 * 3 + 5][17] = 1; // group 4, its last subgroup
    c.GRUPOSRELACIONADOS.subgrupos[6 * 3][2] = 1;
    c.GRUPOSRELACIONADOS.condiciones[0][1] = 1; // a condition alone does not make a group count
    c.SORTEOSANTERIORES.grupo[7].acertarEN[0] = 1;
    c.VALORACIONES.grupo[2].intervalos[3].Minimo = -1;
    c.GRUPOSENTRELIMITES.grupo[0].numeros[1] = 1; // numbers without hits do not count
    for (const auto& [nombre, texto] : {std::pair{"GRUPOS DE NUMEROS", "0 de 210"},
                                        {"GRUPOS RELACIONADOS", "1 de 60"},
                                        {"SORTEOS ANTERIORES", "1 de 20"},
                                        {"VALORACIONES", "1 de 10"},
                                        {"GRUPOS ENTRE LIMITES", "0 de 210"},
                                        {"OTRO", ""}})
        EXPECT_EQ(TextoBloquesUsados(c, nombre), texto) << nombre;
}

TEST(Sesiones, ElCambioDeJuegoSoloTocaMarcasYColores) {
    Guion guion;
    Sesion& s = guion.sesion;
    guion.MarcarHasta(45);
    guion.MarcarDigitos({0, 4});
    AlternarFila(s, kHOMOLOGOS);
    s.condiciones.SUMAS.intervalos[0] = {21, 100};
    s.trabajo.Reduccion.TipoReduccion = 3;
    s.trabajo.Titulo = "TOMBOLERA 11.1 - Fichero : mia.xml";
    CambiarJuego(s, EURODREAMS);
    EXPECT_EQ(ContarBase(s.trabajo), 0);
    EXPECT_FALSE(s.trabajo.lblReintegro[4]);
    EXPECT_TRUE(s.condiciones.lstFiltros[kHOMOLOGOS].Activo);
    EXPECT_EQ(s.condiciones.SUMAS.intervalos[0].Maximo, 100);
    EXPECT_EQ(s.trabajo.Reduccion.TipoReduccion, 3);
    EXPECT_EQ(NombreFicheroActual(s.trabajo), "mia.xml");
    std::vector<int> grises;
    for (int k = 0; k < NFilas; ++k)
        if (s.condiciones.lstFiltros[static_cast<size_t>(k)].Color == ColorFila::NoDisponible) grises.push_back(k);
    EXPECT_EQ(grises, (std::vector<int>{5, 11, 12, 13, 17}));
    CambiarJuego(s, BONOLOTO);
    EXPECT_FALSE(s.trabajo.chkReintegros);
    EXPECT_EQ(s.condiciones.lstFiltros[5].Color, ColorFila::Oscura);
}

TEST(Sesiones, ReiniciarDejaLasMarcasDeUnaBaseImportada) {
    Guion guion;
    Sesion& s = guion.sesion;
    guion.MarcarHasta(10);
    s.trabajo.txtFicheroASCII = "/tmp/a.TOM";
    s.trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    s.condiciones.SUMAS.intervalos[0] = {21, 100};
    AlternarFila(s, kSUMAS);
    s.trabajo.CombinacionGuardada = false;
    ReiniciarSesion(s, guion.entorno);
    EXPECT_EQ(ContarBase(s.trabajo), 10);
    EXPECT_EQ(s.trabajo.txtFicheroASCII, "/tmp/a.TOM");
    EXPECT_FALSE(s.condiciones.lstFiltros[kSUMAS].Activo);
    EXPECT_FALSE(s.condiciones.SUMAS.intervalos[0].EnUso());
    EXPECT_TRUE(s.trabajo.CombinacionGuardada);
    EXPECT_EQ(s.trabajo.Titulo, "TOMBOLERA 11.1 - Fichero : Sin guardar.xml");
    s.trabajo.cboTipoCombinacion = PronosticoManual;
    ReiniciarSesion(s, guion.entorno);
    EXPECT_EQ(ContarBase(s.trabajo), 0);
    EXPECT_TRUE(s.trabajo.txtFicheroASCII.empty());
}
