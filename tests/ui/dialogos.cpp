#include "dialogos.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QtTest/QTest>

#include "CalcularSistema.h"
#include "DialogosFiltro.h"
#include "HistoriaInventada.h"
#include "InformeEliminadas.h"
#include "PanelReparto.h"
#include "TablaFiltros.h"
#include "Ventanas.h"
#include "frmAcercaDe.h"
#include "frmAciertos.h"
#include "frmAlazar.h"
#include "frmAlgebra.h"
#include "frmAnalisis.h"
#include "frmCalculadoraPremios.h"
#include "frmCoeficienteRentabilidad.h"
#include "frmEscrutar.h"
#include "frmEstadisticas.h"
#include "frmGarantiasTOTAL.h"
#include "frmGeneradorApuestas.h"
#include "frmGeneradorApuestasXPorcentaje.h"
#include "frmInforme.h"
#include "frmMultiEscrutinioEstadistico.h"
#include "frmMultiEscrutinioMultiFichero.h"
#include "frmPrincipal.h"
#include "frmSistemasPropios.h"
#include "frmVentanaProceso.h"
#include "frmVisualizar.h"
#include "modXML.h"

namespace {

DialogoProbado DeFila(const std::string& nombre, int k, bool soloVolver = false, bool cambiaConJuego = false) {
    const auto crear = [k](Guion& g) {
        g.MarcarHasta(24);
        return CrearDialogoFiltro(k, g.sesion, g.entorno, nullptr);
    };
    return {nombre, crear, soloVolver, cambiaConJuego};
}

DialogoProbado ConNumeros(const std::string& nombre, int k, bool soloVolver = false) {
    return DeFila(nombre, k, soloVolver, true);
}

// The chooser works on a scratch copy of its caller's.
std::unique_ptr<QDialog> Aciertos(Guion&) {
    static LogicaAciertos aciertos;
    aciertos = AbrirAciertos({0, 1, 0, 1, 1, 0, 0}, 0);
    return std::make_unique<frmAciertos>(aciertos, QStringLiteral("10 al 19 : "), nullptr);
}

// Idle after thirty cycles over fourteen numbers, with nothing conditioned.
std::unique_ptr<QDialog> VentanaProceso(Guion& g) {
    static std::unique_ptr<LogicaVentanaProceso> proceso;
    for (FilaFiltro& fila : g.sesion.condiciones.lstFiltros) fila.Activo = false;
    g.MarcarHasta(14);
    g.MarcarDigitos({1});
    CalcularSistema(g.sesion, g.entorno);
    g.sesion.trabajo.Reduccion.TipoReduccion = 3;
    proceso = std::make_unique<LogicaVentanaProceso>(g.sesion, g.entorno);
    proceso->TopeCiclos = 30;
    proceso->Activar();
    return std::make_unique<frmVentanaProceso>(*proceso, nullptr);
}

// The final system of a base of fourteen numbers under a condition, so that they differ.
std::unique_ptr<QDialog> Analisis(Guion& g) {
    Condiciones& c = g.sesion.condiciones;
    for (FilaFiltro& fila : c.lstFiltros) fila.Activo = false;
    c.lstFiltros[kSUMAS].Activo = true;
    c.SUMAS.intervalos[0] = {21, 40};
    g.MarcarHasta(14);
    g.MarcarDigitos({1});
    CalcularSistema(g.sesion, g.entorno);
    return std::make_unique<frmAnalisis>(g.sesion, g.entorno, g.sesion.trabajo.Contador.Reducidas, nullptr);
}

// With a history of the game and its numbers counted.
std::unique_ptr<QDialog> Estadisticas(Guion& g) {
    const CarpetaTemporal carpeta;
    g.Ficheros = {carpeta.Ruta("sorteos.txt")};
    EscribirTodo(g.Ficheros[0], TextoFicheroSorteos(SorteosInventados(g.sesion.trabajo.cboTipoJuego, 3000)));
    auto ventana = std::make_unique<frmEstadisticas>(g.sesion.trabajo, g.entorno, nullptr);
    ventana->findChild<QAbstractButton*>(QStringLiteral("cmdAbrirEstadisticas"))->click();
    ventana->findChild<QAbstractButton*>(QStringLiteral("cmdConsultar"))->click();
    return ventana;
}

// A reduction "al 4" of fourteen numbers, measured.
std::unique_ptr<QDialog> Garantias(Guion& g) {
    for (FilaFiltro& fila : g.sesion.condiciones.lstFiltros) fila.Activo = false;
    g.MarcarHasta(14);
    g.MarcarDigitos({1});
    g.sesion.trabajo.Reduccion.TipoReduccion = 2;
    g.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    CalcularSistema(g.sesion, g.entorno);
    auto ventana = std::make_unique<frmGarantiasTOTAL>(g.sesion, g.entorno, nullptr);
    Hijo<QAbstractButton>(*ventana, "imgCalcularGarantias")->click();
    return ventana;
}

// Over a check that stays as long as the next one is made.
std::unique_ptr<QDialog> CalculadoraPremios(Guion& g) {
    static std::unique_ptr<LogicaEscrutar> escrutar;
    g.sesion.referencia = {{1, 2, 3, 4, 5, 6}, 7};
    escrutar = std::make_unique<LogicaEscrutar>(g.sesion, g.entorno);
    escrutar->Abrir();
    return std::make_unique<frmCalculadoraPremios>(*escrutar, nullptr);
}

// Its question before it closes is answered "sí".
std::unique_ptr<QDialog> MultiFichero(Guion& g) {
    g.entorno.Preguntar = [](const std::string&) { return true; };
    return std::make_unique<frmMultiEscrutinioMultiFichero>(g.sesion, g.entorno, nullptr);
}

// Two systems and their sum.
std::unique_ptr<QDialog> Algebra(Guion& g) {
    static const CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("peña del sábado.txt"), "030712182941\r\n031012183341\r\n");
    EscribirTodo(carpeta.Ruta("abono.txt"), "030712182941\r\n051419233840\r\n");
    auto dialogo = std::make_unique<frmAlgebra>(g.sesion, g.entorno, nullptr);
    for (const auto& [i, nombre] : {std::pair{"0", "peña del sábado.txt"}, {"1", "abono.txt"}}) {
        g.Ficheros = {carpeta.Ruta(nombre)};
        Hijo<QAbstractButton>(*dialogo, std::string("cmdDesdeFichero_") + i)->click();
    }
    Hijo<QAbstractButton>(*dialogo, "optTipo_2")->click();
    Hijo<QAbstractButton>(*dialogo, "imgCalcular")->click();
    return dialogo;
}

// Some bets with their coefficients, two of which are chosen.
std::unique_ptr<QDialog> Rentabilidad(Guion& g) {
    static const CarpetaTemporal carpeta;
    std::string apuestas;
    for (int a = 10; a < 40; ++a)
        for (int b = a + 1; b < 46; ++b)
            apuestas += "0" + std::to_string(1 + b % 9) + std::to_string(a) + std::to_string(b) + "464749\r\n";
    EscribirTodo(carpeta.Ruta("peña del sábado.txt"), apuestas);
    auto dialogo = std::make_unique<frmCoeficienteRentabilidad>(g.sesion, g.entorno, nullptr);
    g.Ficheros = {carpeta.Ruta("peña del sábado.txt")};
    Hijo<QAbstractButton>(*dialogo, "cmdDesdeFichero")->click();
    Hijo<QAbstractButton>(*dialogo, "imgCalcular")->click();
    for (const int i : {15, 16}) Hijo<QListWidget>(*dialogo, "lstCR")->item(i)->setCheckState(Qt::Checked);
    return dialogo;
}

// A base, without which no number takes a mark.
std::unique_ptr<QDialog> Valoraciones(Guion& g) {
    g.MarcarHasta(14);
    return CrearDialogoFiltro(kVALORACIONES, g.sesion, g.entorno, nullptr);
}

// A tool over a fresh piece of work.
template <class Ventana>
std::unique_ptr<QDialog> De(Guion& g) {
    return std::make_unique<Ventana>(g.sesion.trabajo, g.entorno, nullptr);
}

// Twelve numbers under a condition, calculated, unless there is a system already.
std::unique_ptr<QWidget> Principal(Guion& g) {
    if (g.sesion.trabajo.Contador.Reducidas > 0) return std::make_unique<frmPrincipal>(g.sesion, g.entorno);
    for (FilaFiltro& fila : g.sesion.condiciones.lstFiltros) fila.Activo = false;
    g.Marcar({3, 7, 9, 12, 15, 21, 22, 28, 30, 34, 38, 40});
    if (g.sesion.trabajo.JuegoActual().TieneDigito()) g.MarcarDigitos({4});
    g.sesion.condiciones.SUMAS.intervalos[0] = {60, 150};
    g.sesion.condiciones.lstFiltros[kSUMAS].Activo = true;
    EXPECT_TRUE(CalcularSistema(g.sesion, g.entorno));
    return std::make_unique<frmPrincipal>(g.sesion, g.entorno);
}

std::unique_ptr<QWidget> Informe(Guion& g) {
    const CarpetaTemporal informes;
    g.entorno.CarpetaInformes = informes.Ruta();
    AbrirDoceNumeros(g);
    VerApuestasEliminadas(g.sesion, g.entorno);
    return std::make_unique<frmInforme>(Q(g.Informes.at(0)), nullptr);
}

} // namespace

const std::vector<DialogoProbado>& Dialogos() {
    static const std::vector<DialogoProbado> dialogos{
        DeFila("frmFiltroALTOSBAJOS", kALTOSBAJOS),
        DeFila("frmFiltroDECENAS", kDECENAS),
        DeFila("frmFiltroDISTANCIAS", kDISTANCIAS),
        ConNumeros("frmFiltroGRUPOS", kGRUPOS),
        ConNumeros("frmFiltroGRURELACIONADOS", kGRUPOSRELACIONADOS, true),
        DeFila("frmFiltroHOMOLOGOS", kHOMOLOGOS),
        DeFila("frmFiltroPARESIMPARES", kPARESIMPARES),
        DeFila("frmFiltroSEGUIDOS", kSEGUIDOS),
        DeFila("frmFiltroSUMAS", kSUMAS),
        DeFila("frmFiltroTERMINACIONES", kTERMINACIONES),
        ConNumeros("frmFiltroPOSICIONES", kPOSICIONES),
        DeFila("frmFiltroEXTERIORES", kEXTERIORESINTERIORES),
        DeFila("frmFiltroSUPERIORES", kSUPERIORESINFERIORES),
        DeFila("frmFiltroCOLINDANTES", kCOLINDANTES),
        DeFila("frmFiltroSORTEOSANTERIORES", kSORTEOSANTERIORES, true),
        DeFila("frmFiltroSUMASPORTRIOS", kSUMASPORTRIOS),
        {"frmFiltroVALORACIONES", Valoraciones, true, true},
        ConNumeros("frmFiltroCR", kCOEFICIENTERENTABILIDAD, true),
        ConNumeros("frmFiltroGRUPOSENTRELIMITES", kGRUPOSENTRELIMITES),
        DeFila("frmReduccion", FilaReduccion),
        {"frmVentanaProceso", VentanaProceso, true},
        {"frmAnalisis", Analisis},
        {"frmEstadisticas", Estadisticas, false, true},
        {"frmGarantiasTOTAL", Garantias},
        {"frmAciertos", Aciertos},
        {"frmEscrutar", [](Guion& g) { return std::make_unique<frmEscrutar>(g.sesion, g.entorno, nullptr); }},
        {"frmCalculadoraPremios", CalculadoraPremios},
        {"frmMultiEscrutinioEstadistico",
         [](Guion& g) { return std::make_unique<frmMultiEscrutinioEstadistico>(g.sesion, g.entorno, nullptr); }},
        {"frmMultiEscrutinioMultiFichero", MultiFichero},
        {"frmAlgebra", Algebra},
        {"frmCoeficienteRentabilidad", Rentabilidad},
        {"frmAlazar", [](Guion& g) { return std::make_unique<frmAlazar>(g.sesion.trabajo, nullptr); }},
        {"frmGeneradorApuestas", De<frmGeneradorApuestas>},
        {"frmGeneradorApuestasXPorcentaje", De<frmGeneradorApuestasXPorcentaje>},
        {"frmSistemasPropios", De<frmSistemasPropios>},
        {"frmVisualizar", De<frmVisualizar>},
        {"frmAcercaDe", [](Guion&) { return std::make_unique<frmAcercaDe>(nullptr); }},
    };
    return dialogos;
}

std::vector<VentanaProbada> TodasLasVentanas() {
    std::vector<VentanaProbada> ventanas;
    for (const DialogoProbado& dialogo : Dialogos()) ventanas.push_back({dialogo.nombre, dialogo.crear});
    ventanas.push_back({"frmInforme", Informe});
    ventanas.push_back({"frmPrincipal", Principal});
    return ventanas;
}

void AbrirEjemplo(Guion& g, int k) {
    EXPECT_TRUE(AbrirFicheroBase(std::string(EJEMPLOS) + "/diecinueve-condiciones.xml", g.sesion, g.entorno));
    g.sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo = true;
}

void AbrirDoceNumeros(Guion& g) {
    EXPECT_TRUE(AbrirFicheroBase(std::string(EJEMPLOS) + "/doce-numeros.xml", g.sesion, g.entorno));
    EXPECT_TRUE(CalcularSistema(g.sesion, g.entorno));
}

void EsperarCuentas(const QWidget& ventana) {
    for (const QWidget* panel : ventana.findChildren<QWidget*>(Q("panelReparto")))
        EXPECT_TRUE(QTest::qWaitFor([&] { return !static_cast<const PanelReparto*>(panel)->EnMarcha(); }, 20000));
    for (const QLabel* linea : ventana.findChildren<QLabel*>(Q("lblAlVuelo")))
        EXPECT_TRUE(QTest::qWaitFor([&] { return linea->text() != Q("Al vuelo: "); }, 20000));
}
