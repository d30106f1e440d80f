#include "Conductor.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>
#include <QtTest/QTest>

#include <algorithm>

#include "TextoQt.h"

namespace {

constexpr int Latido = 5, Paciencia = 300; // ms
constexpr int PasosDeLista = 10;

// What empties or hides goes after what needs to be full, and what ends the visit last.
int Turno(const QWidget& control) {
    const QString nombre = control.objectName();
    if (nombre == Q("imgCalculoDefinitivo")) return 2;
    for (const char* principio : {"imgINI", "cmdDEL", "cmdIni", "cmdCerrar"})
        if (nombre.startsWith(Q(principio))) return 1;
    return 0;
}

void PorTurnos(std::vector<QPointer<QWidget>>& controles) {
    std::stable_sort(controles.begin(), controles.end(),
                     [](const auto& a, const auto& b) { return Turno(*a) < Turno(*b); });
}

std::string NombreDe(const QWidget& control) {
    return Utf8(control.window()->objectName() + QLatin1Char(' ') + control.objectName());
}

bool EsControl(const QWidget& control) {
    return control.focusPolicy() != Qt::NoFocus && !control.objectName().isEmpty() &&
           !control.objectName().startsWith(Q("qt_")) && !control.isWindow();
}

// The button that stops the window's run, while there is one.
QAbstractButton* Freno(const QWidget& ventana) {
    for (auto* boton : ventana.findChildren<QAbstractButton*>())
        if ((boton->objectName() == Q("imgDetener") || boton->objectName() == Q("cmdStop")) && boton->isVisible() &&
            boton->isEnabled())
            return boton;
    return nullptr;
}

// Whether the window is in the middle of a run, in whose turns it can do no more than stop.
bool Ocupada(const QWidget& ventana) {
    const auto* imgVolver = ventana.findChild<QAbstractButton*>(Q("imgVolver"));
    return Freno(ventana) != nullptr || (imgVolver != nullptr && !imgVolver->isEnabled());
}

// Where the mouse finds a button: a box or a radio button takes it on its sign and text alone.
QPoint Punto(const QWidget& boton) {
    const bool signo = qobject_cast<const QCheckBox*>(&boton) || qobject_cast<const QRadioButton*>(&boton);
    return signo ? QPoint(8, boton.height() / 2) : boton.rect().center();
}

void Teclas(QWidget& control, std::initializer_list<Qt::Key> teclas) {
    const QPointer<QWidget> queda(&control);
    for (const Qt::Key tecla : teclas)
        if (queda != nullptr && queda->isVisible()) QTest::keyClick(queda.data(), tecla);
}

void Recorrer(QComboBox& lista) {
    Teclas(lista, {Qt::Key_End, Qt::Key_Home});
    for (int i = 1; i < std::min(lista.count(), PasosDeLista); ++i) Teclas(lista, {Qt::Key_Down});
    Teclas(lista, {Qt::Key_Home});
}

void Teclear(QLineEdit& campo) {
    const QString antes = campo.text();
    campo.setFocus();
    campo.selectAll();
    QTest::keyClicks(&campo, Q("7,"));
    campo.selectAll();
    QTest::keyClick(&campo, Qt::Key_Delete);
    QTest::keyClicks(&campo, antes);
}

} // namespace

Conductor::Conductor() {
    Vigilar();
}

// A timer does not fire within its own slot, so that each beat has one of its own.
void Conductor::Vigilar() {
    QTimer::singleShot(Latido, qApp, [this, vivo = std::weak_ptr<int>(vivo_)] {
        if (vivo.expired()) return;
        Vigilar();
        Atender();
    });
}

void Conductor::Atender() {
    if (pulsado_.isValid() && pulsado_.elapsed() > Paciencia) Detener();
    QPointer<QWidget> ventana = QApplication::activeModalWidget();
    if (ventana == nullptr || Ocupada(*ventana) ||
        std::find(abiertas_.begin(), abiertas_.end(), ventana) != abiertas_.end())
        return;
    abiertas_.push_back(ventana);
    if (conocidas_.insert(Utf8(ventana->objectName())).second) Usar(*ventana);
    if (ventana != nullptr && ventana->isVisible()) Cerrar(*ventana);
    abiertas_.pop_back();
}

void Conductor::Detener() {
    for (const QWidget* ventana : QApplication::topLevelWidgets())
        if (QAbstractButton* freno = Freno(*ventana)) {
            usados_.insert(NombreDe(*freno));
            freno->click();
        }
}

// A condition that its values do not let stand is switched off on the way out.
void Conductor::Cerrar(QWidget& ventana) {
    const QPointer<QWidget> queda(&ventana);
    for (const char* nombre : {"imgVolver", "imgActivar", "imgVolver"}) {
        auto* boton = queda == nullptr ? nullptr : queda->findChild<QAbstractButton*>(Q(nombre));
        if (boton == nullptr || !boton->isEnabled() || !queda->isVisible()) continue;
        usados_.insert(NombreDe(*boton));
        boton->click();
    }
    if (queda == nullptr || !queda->isVisible()) return;
    rebeldes_.insert(Utf8(ventana.objectName()));
    if (auto* dialogo = qobject_cast<QDialog*>(&ventana)) dialogo->done(QDialog::Rejected);
}

void Conductor::Hacer(const std::function<void()>& accion) {
    pulsado_.start();
    accion();
    QTest::qWait(2 * Latido);
    pulsado_.invalidate();
}

std::vector<QPointer<QWidget>> Conductor::Usables(QWidget& ventana) {
    std::vector<QPointer<QWidget>> usables;
    for (QWidget* control : ventana.findChildren<QWidget*>()) {
        if (!control->isVisible() || control->window() != &ventana || !EsControl(*control)) continue;
        vistos_.insert(NombreDe(*control));
        const bool aparte = Intocables.contains(NombreDe(*control)) || control->objectName() == Q("imgVolver");
        if (control->isEnabled() && !aparte) usables.emplace_back(control);
    }
    PorTurnos(usables);
    return usables;
}

void Conductor::Usar(QWidget& ventana) {
    ventanas_.insert(Utf8(ventana.objectName()));
    std::set<const QWidget*> hechos;
    UsarLosDe(ventana, Usables(ventana), hechos);
}

// What a control brings to life is used at once, the last first: its next neighbour may put it out again.
void Conductor::UsarLosDe(QWidget& ventana, const std::vector<QPointer<QWidget>>& controles,
                          std::set<const QWidget*>& hechos) {
    const QPointer<QWidget> queda(&ventana);
    for (const QPointer<QWidget>& control : controles) {
        if (queda == nullptr || !queda->isVisible()) return;
        if (control == nullptr || !control->isVisible() || !control->isEnabled()) continue;
        if (!hechos.insert(control).second) continue;
        const auto antes = Usables(*queda);
        const auto vuelta = UsarControl(*control);
        if (queda == nullptr || !queda->isVisible()) return;
        auto nuevos = Usables(*queda);
        std::erase_if(nuevos, [&](const auto& w) { return std::find(antes.begin(), antes.end(), w) != antes.end(); });
        std::reverse(nuevos.begin(), nuevos.end());
        PorTurnos(nuevos);
        UsarLosDe(*queda, nuevos, hechos);
        if (vuelta && control != nullptr && control->isVisible() && control->isEnabled()) UsarControl(*control);
    }
}

// Whether the same again puts it back.
bool Conductor::UsarControl(QWidget& control) {
    usados_.insert(NombreDe(control));
    pulsado_.start();
    const auto* boton = qobject_cast<QAbstractButton*>(&control);
    const bool vuelve = boton != nullptr && boton->isCheckable() && !boton->autoExclusive();
    if (boton != nullptr)
        QTest::mouseClick(&control, Qt::LeftButton, {}, Punto(control));
    else if (auto* lista = qobject_cast<QComboBox*>(&control))
        Recorrer(*lista);
    else if (auto* campo = qobject_cast<QLineEdit*>(&control); campo != nullptr && !campo->isReadOnly())
        Teclear(*campo);
    else if (qobject_cast<QAbstractItemView*>(&control))
        Teclas(control, {Qt::Key_Home, Qt::Key_Down, Qt::Key_Space, Qt::Key_Space, Qt::Key_End});
    else // texts and charts
        Teclas(control, {Qt::Key_Home, Qt::Key_Right, Qt::Key_Left, Qt::Key_End});
    pulsado_.invalidate();
    return vuelve;
}

void Conductor::Anotar(const QWidget& control) {
    usados_.insert(NombreDe(control));
}

std::set<std::string> Conductor::SinUsar() const {
    std::set<std::string> faltan;
    std::set_difference(vistos_.begin(), vistos_.end(), usados_.begin(), usados_.end(),
                        std::inserter(faltan, faltan.end()));
    return faltan;
}
