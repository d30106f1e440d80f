// The manual against the windows it tells about: a chapter and a picture for each, and examples that
// give what it says. Its pictures are taken here too.
#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>
#include <QtTest/QTest>

#include <algorithm>
#include <map>

#include "Ayuda.h"
#include "AyudaVentanas.h"
#include "CalcularSistema.h"
#include "DialogosFiltro.h"
#include "InformeEliminadas.h"
#include "TablaFiltros.h"
#include "Ventanas.h"
#include "dialogos.h"
#include "frmInforme.h"
#include "frmPrincipal.h"
#include "modGeneral.h"
#include "modXML.h"

namespace {

const std::string Ejemplos = EJEMPLOS;

std::string Capitulo(std::string_view nombre) {
    return LeerTodo(std::string(MANUAL) + "/" + std::string(nombre) + ".md");
}

// A section with its title's line, or the whole chapter; empty when there is none.
std::string Seccion(const CapituloVentana& donde) {
    const std::string texto = Capitulo(donde.Capitulo);
    if (donde.Ancla.empty()) return texto;
    const size_t desde = texto.find("{#" + std::string(donde.Ancla) + "}");
    return desde == std::string::npos ? std::string() : texto.substr(desde, texto.find("\n## ", desde) - desde);
}

std::string SeccionDe(const QWidget& ventana) {
    for (const CapituloVentana& donde : CapitulosDeVentanas())
        if (donde.Ventana == Utf8(ventana.objectName())) return Seccion(donde);
    return {};
}

void CalcularDoceNumeros(Guion& g) {
    ASSERT_TRUE(AbrirFicheroBase(Ejemplos + "/doce-numeros.xml", g.sesion, g.entorno));
    EXPECT_TRUE(CalcularSistema(g.sesion, g.entorno));
}

// Every condition with the values of its example, and only that of row k on.
void AbrirEjemplo(Guion& g, int k) {
    ASSERT_TRUE(AbrirFicheroBase(Ejemplos + "/diecinueve-condiciones.xml", g.sesion, g.entorno));
    g.sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo = true;
}

bool EsDeFila(const std::string& ventana) {
    return ventana.starts_with("frmFiltro") || ventana == "frmReduccion";
}

// With the colours that it has most of, in half the bytes: those of the letters' edges are near one.
QImage ConPaleta(const QImage& imagen) {
    std::map<QRgb, int> veces;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) ++veces[imagen.pixel(x, y)];
    std::vector<std::pair<int, QRgb>> orden;
    for (const auto& [color, n] : veces) orden.emplace_back(-n, color);
    std::sort(orden.begin(), orden.end());
    QList<QRgb> paleta;
    for (size_t i = 0; i < std::min<size_t>(orden.size(), 256); ++i) paleta << orden[i].second;
    return imagen.convertToFormat(QImage::Format_Indexed8, paleta, Qt::ThresholdDither | Qt::AvoidDither);
}

void Guardar(QWidget& ventana) {
    ventana.show();
    EsperarCuentas(ventana);
    QApplication::processEvents();
    const QString ruta = Q(MANUAL) + Q("/imagenes/") + ventana.objectName() + Q(".png");
    const QImage imagen = ventana.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(ConPaleta(imagen).save(ruta, "PNG", 0)); // 0 is the smallest file
}

} // namespace

TEST(Manual, CadaVentanaTieneCapituloYRetrato) {
    for (const DialogoProbado& probado : Dialogos()) EXPECT_NE(PaginaDeVentana(probado.nombre), "") << probado.nombre;
    for (const CapituloVentana& donde : CapitulosDeVentanas()) {
        SCOPED_TRACE(donde.Ventana);
        const std::string seccion = Seccion(donde);
        EXPECT_NE(seccion, "");
        if (donde.Ventana == "caja") continue;
        EXPECT_NE(seccion.find("(imagenes/" + std::string(donde.Ventana) + ".png)"), std::string::npos);
    }
}

TEST(Manual, F1AbreElCapituloDeLaVentana) {
    Guion g;
    g.entorno.Manual = "file:///manual/index.html";
    g.entorno.AbrirDireccion = [&](const std::string& direccion) {
        g.Direcciones.push_back(direccion);
        return true;
    };
    const auto ayuda = CrearAyuda(g.entorno);
    const auto sumas = CrearDialogoFiltro(kSUMAS, g.sesion, g.entorno, nullptr);
    sumas->show();
    QTest::keyClick(Hijo<QLineEdit>(*sumas, "txtSumaMinima_0"), Qt::Key_F1);
    QTest::keyClick(sumas.get(), Qt::Key_F1, Qt::ShiftModifier);
    QDialog selector(sumas.get());
    selector.show();
    QTest::keyClick(&selector, Qt::Key_F1);
    QDialog desconocida;
    desconocida.show();
    QTest::keyClick(&desconocida, Qt::Key_F1);
    EXPECT_EQ(g.Direcciones, (Textos{"file:///manual/condiciones.sumas.html", "file:///manual/condiciones.sumas.html",
                                     "file:///manual/index.html"}));
    g.entorno.Manual.clear();
    QTest::keyClick(sumas.get(), Qt::Key_F1);
    EXPECT_EQ(g.Cajas, Textos{"[X] ERROR: FICHERO DE AYUDA NO ENCONTRADO O ERRONEO"});
}

TEST(Manual, LosEjemplosDejanLasApuestasQueDice) {
    for (int k = 0; k < NFiltros; ++k) {
        if (k == kSORTEOSANTERIORES) continue; // its example asks for the draws
        SCOPED_TRACE(TablaFiltros[static_cast<size_t>(k)].nombre);
        Guion g;
        AbrirEjemplo(g, k);
        EXPECT_TRUE(CalcularSistema(g.sesion, g.entorno));
        const std::string quedan = "**" + FormatoMiles(g.sesion.trabajo.Contador.Condicionadas, '.') + "**";
        const auto ventana = CrearDialogoFiltro(k, g.sesion, g.entorno, nullptr);
        EXPECT_NE(SeccionDe(*ventana).find(quedan), std::string::npos) << quedan;
        EXPECT_EQ(g.Cajas, Textos{});
    }
}

// Not a test: the target "capturas" runs it to take the manual's pictures anew.
TEST(Manual, DISABLED_Retratos) {
    QDir().mkpath(Q(MANUAL) + Q("/imagenes"));
    for (int k = 0; k < NFilas; ++k) {
        Guion g;
        AbrirEjemplo(g, k);
        if (k == FilaReduccion) g.sesion.trabajo.Reduccion.TipoReduccion = 2;
        Guardar(*CrearDialogoFiltro(k, g.sesion, g.entorno, nullptr));
    }
    for (const DialogoProbado& probado : Dialogos()) {
        if (EsDeFila(probado.nombre)) continue;
        Guion g;
        if (probado.nombre == "frmEscrutar") {
            CalcularDoceNumeros(g);
            g.sesion.referencia = {{3, 12, 18, 33, 36, 48}, 7};
        }
        const auto ventana = probado.crear(g);
        ventana->show();
        if (probado.nombre == "frmEscrutar") Hijo<QAbstractButton>(*ventana, "imgEscrutar")->click();
        Guardar(*ventana);
    }
    const CarpetaTemporal informes;
    Guion g;
    g.entorno.CarpetaInformes = informes.Ruta();
    CalcularDoceNumeros(g);
    VerApuestasEliminadas(g.sesion, g.entorno);
    frmInforme informe(Q(g.Informes.at(0)), nullptr);
    Guardar(informe);
    frmPrincipal principal(g.sesion, g.entorno);
    principal.Pintar();
    Guardar(principal);
}
