// What every dialog must be: named, reachable by keyboard, closed by the same three ways, not cut.
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QtTest/QTest>

#include <set>

#include "Sesiones.h"
#include "Ventanas.h"
#include "dialogos.h"

namespace {

// What the smallest desktop leaves to a window between its own bars.
constexpr QSize Pantalla(1280, 690);

bool EsEntrada(const QWidget& w) {
    if (!w.isEnabled() || !w.isVisible() || (w.focusPolicy() & Qt::TabFocus) == 0) return false;
    return qobject_cast<const QAbstractButton*>(&w) || qobject_cast<const QLineEdit*>(&w) ||
           qobject_cast<const QComboBox*>(&w) || qobject_cast<const QAbstractSpinBox*>(&w) ||
           qobject_cast<const QAbstractItemView*>(&w);
}

std::vector<QWidget*> EnOrdenDeTabulador(QDialog& dialogo) {
    std::vector<QWidget*> orden;
    for (QWidget* w = dialogo.nextInFocusChain(); w != &dialogo; w = w->nextInFocusChain())
        if (EsEntrada(*w)) orden.push_back(w);
    return orden;
}

// Whether the eye that goes in lines from the top meets b after a: lower down, or further in its line.
bool VaDespues(const QWidget& a, const QWidget& b, const QWidget& ventana) {
    const QRect ra(a.mapTo(&ventana, QPoint()), a.size()), rb(b.mapTo(&ventana, QPoint()), b.size());
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
void ComprobarOrden(QDialog& dialogo) {
    const auto orden = EnOrdenDeTabulador(dialogo);
    for (size_t i = 1; i < orden.size(); ++i) {
        const QWidget &a = *orden[i - 1], &b = *orden[i];
        const QWidget* comun = a.parentWidget();
        while (!comun->isAncestorOf(&b)) comun = comun->parentWidget();
        EXPECT_TRUE(VaDespues(En(*comun, a), En(*comun, b), dialogo))
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

void ComprobarTextos(QDialog& dialogo) {
    for (const QLabel* e : dialogo.findChildren<QLabel*>())
        if (e->isVisible()) {
            EXPECT_TRUE(Cabe(*e)) << "cut: " << Utf8(e->text());
        }
    for (const QAbstractButton* b : dialogo.findChildren<QAbstractButton*>())
        if (b->isVisible() && !b->text().isEmpty()) {
            EXPECT_TRUE(Cabe(*b)) << "cut: " << Utf8(b->text());
        }
}

// Widgets of one parent that stand on each other.
void ComprobarSolapes(QDialog& dialogo) {
    const auto todos = dialogo.findChildren<QWidget*>();
    for (const QWidget* a : todos)
        for (const QWidget* b : todos)
            if (a < b && a->parentWidget() == b->parentWidget() && a->isVisible() && b->isVisible() && !a->isWindow() &&
                !b->isWindow()) {
                EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                    << Utf8(a->objectName() + QLatin1String(" and ") + b->objectName());
            }
}

void ComprobarNombres(QDialog& dialogo) {
    std::set<QString> nombres;
    for (const QWidget* w : EnOrdenDeTabulador(dialogo)) {
        EXPECT_FALSE(w->objectName().isEmpty());
        EXPECT_TRUE(nombres.insert(w->objectName()).second) << "twice: " << Utf8(w->objectName());
        EXPECT_FALSE(w->toolTip().isEmpty() && w->accessibleName().isEmpty()) << Utf8(w->objectName());
    }
}

QPalette Oscura() {
    QPalette p;
    const QColor fondo(0x2B, 0x2B, 0x2E), campo(0x1E, 0x1E, 0x20), texto(0xEE, 0xEE, 0xEE);
    p.setColor(QPalette::Window, fondo);
    p.setColor(QPalette::Button, QColor(0x3A, 0x3A, 0x3E));
    p.setColor(QPalette::Base, campo);
    p.setColor(QPalette::AlternateBase, fondo);
    for (const auto rol : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::ToolTipText})
        p.setColor(rol, texto);
    for (const auto rol : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        p.setColor(QPalette::Disabled, rol, QColor(0x85, 0x85, 0x88));
    p.setColor(QPalette::ToolTipBase, fondo);
    p.setColor(QPalette::PlaceholderText, QColor(0xB0, 0xB0, 0xB0));
    p.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xE4));
    p.setColor(QPalette::HighlightedText, Qt::white);
    return p;
}

void Retratar(QWidget& ventana, const QString& nombre, qreal escala) {
    EsperarCuentas(ventana);
    QPixmap retrato(ventana.size() * escala);
    retrato.setDevicePixelRatio(escala);
    ventana.render(&retrato);
    QDir().mkpath(QStringLiteral(CAPTURAS));
    EXPECT_TRUE(retrato.save(QStringLiteral(CAPTURAS "/") + nombre + QStringLiteral(".png")));
}

} // namespace

TEST(Dialogos, NombresTeclasYTextosEnCadaJuego) {
    for (const DialogoProbado& probado : Dialogos()) {
        for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
            SCOPED_TRACE(probado.nombre + " " + std::string(Juegos[static_cast<size_t>(juego)].Nombre));
            Guion guion;
            CambiarJuego(guion.sesion, juego);
            const auto dialogo = probado.crear(guion);
            ASSERT_NE(dialogo, nullptr);
            dialogo->show();
            EXPECT_EQ(Utf8(dialogo->objectName()), probado.nombre);
            EXPECT_FALSE(dialogo->windowTitle().isEmpty());
            EXPECT_LE(dialogo->width(), Pantalla.width());
            EXPECT_LE(dialogo->height(), Pantalla.height());
            ComprobarNombres(*dialogo);
            ComprobarOrden(*dialogo);
            ComprobarTextos(*dialogo);
            ComprobarSolapes(*dialogo);
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

TEST(Dialogos, Retratos) {
    const QPalette clara = QApplication::palette();
    for (const DialogoProbado& probado : Dialogos()) {
        for (const bool oscuro : {false, true}) {
            Guion guion;
            for (FilaFiltro& fila : guion.sesion.condiciones.lstFiltros) fila.Activo = oscuro;
            QApplication::setPalette(oscuro ? Oscura() : clara);
            const auto dialogo = probado.crear(guion);
            dialogo->show();
            const QString nombre = Q(probado.nombre) + QLatin1String(oscuro ? "_oscuro" : "_claro");
            Retratar(*dialogo, nombre, 1);
            if (!oscuro) Retratar(*dialogo, nombre + QLatin1String("_200"), 2);
        }
    }
    QApplication::setPalette(clara);
}

TEST(Dialogos, RetratosDeCadaJuego) {
    for (const DialogoProbado& probado : Dialogos()) {
        if (!probado.cambiaConJuego) continue;
        for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
            Guion guion;
            CambiarJuego(guion.sesion, juego);
            const auto dialogo = probado.crear(guion);
            dialogo->show();
            Retratar(*dialogo, Q(probado.nombre) + Q("_") + Q(Juegos[static_cast<size_t>(juego)].Nombre), 1);
        }
    }
}
