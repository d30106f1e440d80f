// The windows without eyes: names and states for a screen reader, the ticket by keyboard and by the
// actions of an assistive program.
#include "Accesible.h"

#include <QAccessible>
#include <QCheckBox>
#include <QToolButton>
#include <QtTest/QTest>

#include "Sesiones.h"
#include "Ventanas.h"
#include "dialogos.h"
#include "frmAlgebra.h"
#include "frmPrincipal.h"

namespace {

QAccessibleInterface& Interfaz(QObject& objeto) {
    QAccessibleInterface* interfaz = QAccessible::queryAccessibleInterface(&objeto);
    if (interfaz == nullptr) throw std::runtime_error("sin interfaz: " + Utf8(objeto.objectName()));
    return *interfaz;
}

std::string Nombre(QObject& objeto) {
    return Utf8(Interfaz(objeto).text(QAccessible::Name));
}

const QString Alternar = QAccessibleActionInterface::toggleAction();

} // namespace

TEST(Accesible, TodoControlTieneNombre) {
    for (const VentanaProbada& probada : TodasLasVentanas())
        for (const int juego : {PRIMITIVA, BONOLOTO, EURODREAMS}) {
            Guion g;
            CambiarJuego(g.sesion, juego);
            const auto ventana = probada.crear(g);
            ventana->show();
            EXPECT_NE(Nombre(*ventana), "") << probada.nombre;
            for (QWidget* control : ventana->findChildren<QWidget*>())
                if (control->isVisible() && (control->focusPolicy() & Qt::TabFocus) != 0) {
                    EXPECT_NE(Nombre(*control), "") << probada.nombre << " " << Utf8(control->objectName());
                }
        }
}

TEST(Accesible, LasCeldasDelBoletoSeLeenYSeMarcan) {
    Guion g;
    frmPrincipal ventana(g.sesion, g.entorno);
    ventana.show();
    auto& celda = *Hijo<QToolButton>(ventana, "lblNumero_6");
    QAccessibleInterface& interfaz = Interfaz(celda);
    EXPECT_EQ(Nombre(celda), "Número 7, sin marcar");
    EXPECT_EQ(interfaz.role(), QAccessible::CheckBox);
    EXPECT_TRUE(interfaz.state().checkable);
    EXPECT_TRUE(interfaz.actionInterface()->actionNames().contains(Alternar));

    interfaz.actionInterface()->doAction(Alternar);
    EXPECT_TRUE(g.sesion.trabajo.lblNumero[7]) << "the work must hear of it, not the button alone";
    EXPECT_TRUE(interfaz.state().checked);
    EXPECT_EQ(Nombre(celda), "Número 7, marcado");

    celda.setFocus();
    QTest::keyClick(&celda, Qt::Key_Down);
    auto* siguiente = qobject_cast<QToolButton*>(ventana.focusWidget());
    ASSERT_NE(siguiente, nullptr);
    QTest::keyClick(siguiente, Qt::Key_Space);
    EXPECT_EQ(Nombre(*siguiente), "Número 8, marcado");
    EXPECT_TRUE(g.sesion.trabajo.lblNumero[8]);

    auto& digito = *Hijo<QToolButton>(ventana, "lblReintegro_4");
    Interfaz(digito).actionInterface()->doAction(Alternar);
    EXPECT_TRUE(g.sesion.trabajo.lblReintegro[4]);
    auto& reintegros = *Hijo<QCheckBox>(ventana, "chkReintegros");
    const bool antes = g.sesion.trabajo.chkReintegros;
    Interfaz(reintegros).actionInterface()->doAction(Alternar);
    EXPECT_NE(g.sesion.trabajo.chkReintegros, antes);
}

// A grid that only shows says so.
TEST(Accesible, LoQueSoloSeVeNoSeOfreceParaMarcar) {
    Guion g;
    frmAlgebra ventana(g.sesion, g.entorno, nullptr);
    ventana.show();
    auto& celda = *Hijo<QToolButton>(ventana, "lblNumero_6");
    QAccessibleInterface& interfaz = Interfaz(celda);
    EXPECT_TRUE(interfaz.state().readOnly);
    EXPECT_FALSE(interfaz.actionInterface()->actionNames().contains(Alternar));
    interfaz.actionInterface()->doAction(Alternar);
    EXPECT_FALSE(celda.isChecked());
}
