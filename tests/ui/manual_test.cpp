// The manual against the windows it tells about: a chapter and a picture for each, and examples that
// give what it says.
#include <QLineEdit>
#include <QtTest/QTest>

#include "Ayuda.h"
#include "AyudaVentanas.h"
#include "CalcularSistema.h"
#include "DialogosFiltro.h"
#include "TablaFiltros.h"
#include "Ventanas.h"
#include "dialogos.h"
#include "modGeneral.h"

namespace {

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
