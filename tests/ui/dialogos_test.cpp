// What every dialog must be: named, reachable by keyboard, closed by the same three ways, not cut.
#include <QAbstractButton>
#include <QLabel>
#include <QToolButton>
#include <QtTest/QTest>

#include <set>

#include "Sesiones.h"
#include "Temas.h"
#include "Ventanas.h"
#include "dialogos.h"

namespace {

// What the smallest desktop leaves to a window between its own bars.
constexpr QSize Pantalla(1280, 690);

// Every stop of the Tab key.
std::vector<QWidget*> EnOrdenDeTabulador(QWidget& ventana) {
    std::vector<QWidget*> orden;
    for (QWidget* w = ventana.nextInFocusChain(); w != &ventana; w = w->nextInFocusChain())
        if (w->isEnabled() && w->isVisible() && (w->focusPolicy() & Qt::TabFocus) != 0) orden.push_back(w);
    return orden;
}

// Where the control is; the one stop of a ticket stands for all of its cells.
QRect Lugar(const QWidget& control, const QWidget& ventana) {
    const auto* celda = qobject_cast<const QToolButton*>(&control);
    QRect lugar = control.rect().translated(control.mapTo(&ventana, QPoint()));
    if (celda == nullptr || !celda->isCheckable()) return lugar;
    for (const auto* otra : celda->parentWidget()->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly))
        if (otra->isCheckable() && otra->isVisible()) lugar |= otra->rect().translated(otra->mapTo(&ventana, QPoint()));
    return lugar;
}

// Whether the eye that goes in lines from the top meets b after a: lower down, or further in its line.
bool VaDespues(const QWidget& a, const QWidget& b, const QWidget& ventana) {
    const QRect ra = Lugar(a, ventana), rb = Lugar(b, ventana);
    return rb.top() >= ra.bottom() || (rb.left() >= ra.right() && rb.bottom() > ra.top());
}

// The ancestor of `w`, or itself, that stands beside its like in `caja`.
const QWidget& En(const QWidget& caja, const QWidget& w) {
    const QWidget* hijo = &w;
    while (hijo->parentWidget() != &caja) hijo = hijo->parentWidget();
    return *hijo;
}

// Columns are read one after the other, so that two neighbours are compared by the boxes that hold
// them in the smallest box that holds both.
void ComprobarOrden(QWidget& ventana) {
    const auto orden = EnOrdenDeTabulador(ventana);
    for (size_t i = 1; i < orden.size(); ++i) {
        const QWidget &a = *orden[i - 1], &b = *orden[i];
        const QWidget* comun = a.parentWidget();
        while (!comun->isAncestorOf(&b)) comun = comun->parentWidget();
        EXPECT_TRUE(VaDespues(En(*comun, a), En(*comun, b), ventana))
            << Utf8(a.objectName()) << " -> " << Utf8(b.objectName());
    }
}

bool Cabe(const QAbstractButton& boton) {
    const QSize texto = boton.fontMetrics().size(Qt::TextShowMnemonic, boton.text());
    const int icono = boton.icon().isNull() ? 0 : boton.iconSize().width() + 4;
    return texto.width() + icono + 6 <= boton.width() && texto.height() <= boton.height();
}

bool Cabe(const QLabel& etiqueta) {
    if (etiqueta.wordWrap()) return etiqueta.heightForWidth(etiqueta.width()) <= etiqueta.height();
    return etiqueta.sizeHint().width() <= etiqueta.width() && etiqueta.sizeHint().height() <= etiqueta.height();
}

void ComprobarTextos(QWidget& ventana) {
    for (const QLabel* e : ventana.findChildren<QLabel*>())
        if (e->isVisible()) {
            EXPECT_TRUE(Cabe(*e)) << "cut: " << Utf8(e->text());
        }
    for (const QAbstractButton* b : ventana.findChildren<QAbstractButton*>())
        if (b->isVisible() && !b->text().isEmpty()) {
            EXPECT_TRUE(Cabe(*b)) << "cut: " << Utf8(b->text());
        }
}

// Widgets of one parent that stand on each other.
void ComprobarSolapes(QWidget& ventana) {
    const auto todos = ventana.findChildren<QWidget*>();
    for (const QWidget* a : todos)
        for (const QWidget* b : todos)
            if (a < b && a->parentWidget() == b->parentWidget() && a->isVisible() && b->isVisible() && !a->isWindow() &&
                !b->isWindow()) {
                EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                    << Utf8(a->objectName() + QLatin1String(" and ") + b->objectName());
            }
}

void ComprobarNombres(QWidget& ventana) {
    std::set<QString> nombres;
    for (const QWidget* w : EnOrdenDeTabulador(ventana)) {
        EXPECT_FALSE(w->objectName().isEmpty());
        EXPECT_TRUE(nombres.insert(w->objectName()).second) << "twice: " << Utf8(w->objectName());
        EXPECT_FALSE(w->toolTip().isEmpty() && w->accessibleName().isEmpty()) << Utf8(w->objectName());
    }
}

} // namespace

TEST(Dialogos, NombresTeclasYTextosEnCadaJuego) {
    for (const VentanaProbada& probada : TodasLasVentanas()) {
        for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
            SCOPED_TRACE(probada.nombre + " " + std::string(Juegos[static_cast<size_t>(juego)].Nombre));
            Guion guion;
            CambiarJuego(guion.sesion, juego);
            const auto ventana = probada.crear(guion);
            ventana->show();
            EXPECT_EQ(Utf8(ventana->objectName()), probada.nombre);
            EXPECT_FALSE(ventana->windowTitle().isEmpty());
            EXPECT_LE(ventana->minimumSizeHint().width(), Pantalla.width());
            EXPECT_LE(ventana->minimumSizeHint().height(), Pantalla.height());
            ComprobarNombres(*ventana);
            ComprobarOrden(*ventana);
            ComprobarTextos(*ventana);
            ComprobarSolapes(*ventana);
            EXPECT_EQ(guion.Cajas, Textos{});
        }
    }
}

TEST(Dialogos, UnaLetraGrandeNoCortaTextos) {
    const QFont normal = QApplication::font();
    QFont grande = normal;
    grande.setPointSizeF(normal.pointSizeF() * 1.7);
    QApplication::setFont(grande);
    for (const DialogoProbado& probado : Dialogos()) {
        SCOPED_TRACE(probado.nombre);
        Guion guion;
        const auto dialogo = probado.crear(guion);
        dialogo->show();
        ComprobarTextos(*dialogo);
        ComprobarSolapes(*dialogo);
    }
    QApplication::setFont(normal);
}

TEST(Dialogos, EscapeElAspaYVolverCierranIgual) {
    const std::function<void(QDialog&)> maneras[] = {
        [](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); },
        [](QDialog& d) { d.close(); },
        [](QDialog& d) { QTest::mouseClick(Hijo<QAbstractButton>(d, "imgVolver"), Qt::LeftButton); },
    };
    for (const DialogoProbado& probado : Dialogos()) {
        for (const auto& manera : maneras) {
            SCOPED_TRACE(probado.nombre);
            Guion guion;
            const auto dialogo = probado.crear(guion);
            dialogo->show();
            manera(*dialogo);
            const bool cierra = !probado.soloVolver || &manera == &maneras[2];
            EXPECT_EQ(dialogo->isVisible(), !cierra) << &manera - maneras;
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        }
    }
}

TEST(Dialogos, LosTextosSeLeenEnClaroYEnOscuro) {
    for (const VentanaProbada& probada : TodasLasVentanas())
        for (const bool oscuro : {false, true}) {
            SCOPED_TRACE(probada.nombre + (oscuro ? " dark" : " light"));
            const ConPaleta paleta(oscuro ? PaletaOscura() : QApplication::palette());
            Guion guion;
            for (FilaFiltro& fila : guion.sesion.condiciones.lstFiltros) fila.Activo = oscuro;
            const auto ventana = probada.crear(guion);
            ventana->show();
            EsperarCuentas(*ventana);
            EXPECT_EQ(TextosApagados(*ventana), Textos{});
        }
}
