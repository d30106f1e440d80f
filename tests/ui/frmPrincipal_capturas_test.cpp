// Pictures of the main window for people to look at, written to the build folder. What they can tell
// by themselves is that nothing is cut off.
#include "frmPrincipal.h"

#include <QDir>
#include <QPainter>
#include <QScreen>
#include <QTreeWidget>

#include "Guion.h"
#include "Sesiones.h"
#include "Temas.h"
#include "Ventanas.h"

namespace {

void Capturar(QWidget& ventana, const std::string& nombre) {
    QDir().mkpath(Q(CAPTURAS));
    const QString escala = QString::number(qRound(ventana.devicePixelRatioF() * 100));
    EXPECT_TRUE(ventana.grab().save(Q(CAPTURAS) + Q("/") + Q(nombre) + Q("_") + escala + Q(".png")));
}

// A text that its label does not hold whole.
void NadaCortado(const QWidget& ventana) {
    for (const auto* etiqueta : ventana.findChildren<QLabel*>())
        if (etiqueta->isVisible()) {
            EXPECT_GE(etiqueta->width() + 1, etiqueta->sizeHint().width()) << Utf8(etiqueta->text());
        }
    for (const auto* boton : ventana.findChildren<QAbstractButton*>())
        if (boton->isVisible() && !boton->text().isEmpty()) {
            EXPECT_GE(boton->width(), boton->fontMetrics().horizontalAdvance(boton->text())) << Utf8(boton->text());
        }
}

} // namespace

class Capturas : public testing::TestWithParam<bool> {};

TEST_P(Capturas, NingunTextoNiFilaSeCorta) {
    const bool oscura = GetParam();
    const ConPaleta paleta(oscura ? PaletaOscura() : QApplication::palette());
    for (int juego = PRIMITIVA; juego <= EURODREAMS; ++juego) {
        Guion guion;
        frmPrincipal ventana(guion.sesion, guion.entorno);
        LogicaPrincipal logica{guion.sesion, guion.entorno};
        logica.CambiarJuego(juego);
        logica.Pegar("3 7 9 12 15 21 22 28 30 34 38 40");
        logica.PulsarReintegro(4);
        logica.AlternarFila(8);
        guion.sesion.condiciones.EliminadasPorFiltro[8] = 112;
        ReiniciarEliminados(guion.sesion);
        ventana.show();
        ventana.Pintar();
        QApplication::processEvents();
        EXPECT_EQ(ventana.size(), QSize(1280, 720));
        auto* lista = Hijo<QTreeWidget>(ventana, "lstFiltros");
        const QRect ultima = lista->visualItemRect(lista->topLevelItem(NFilas - 1));
        EXPECT_LE(ultima.bottom(), lista->viewport()->height());
        EXPECT_GE(ultima.height(), 22);
        NadaCortado(ventana);
        Capturar(ventana, guion.sesion.trabajo.TipoJuego() + (oscura ? "_oscura" : "_clara"));
    }
}

INSTANTIATE_TEST_SUITE_P(Paletas, Capturas, testing::Bool());
