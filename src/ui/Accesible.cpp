#include "Accesible.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QToolButton>

#include "TextoQt.h"

namespace {

// Asks the button anew each time: it may be met before it is finished.
class Boton final : public QAccessibleWidget {
  public:
    explicit Boton(QAbstractButton* boton) : QAccessibleWidget(boton), boton_(*boton) {}

    QAccessible::Role role() const override {
        if (!boton_.isCheckable()) return QAccessible::Button;
        return boton_.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
    }

    QString text(QAccessible::Text cual) const override {
        if (cual != QAccessible::Name) return QAccessibleWidget::text(cual);
        const QString propio = boton_.accessibleName();
        const QString nombre = propio.isEmpty() ? boton_.text().remove(QLatin1Char('&')) : propio;
        if (!boton_.isCheckable() || qobject_cast<const QToolButton*>(&boton_) == nullptr) return nombre;
        return nombre + (boton_.isChecked() ? Q(", marcado") : Q(", sin marcar"));
    }

    QAccessible::State state() const override {
        QAccessible::State estado = QAccessibleWidget::state();
        estado.checkable = boton_.isCheckable();
        estado.checked = boton_.isChecked();
        estado.pressed = boton_.isDown();
        estado.readOnly = SoloParaVer();
        return estado;
    }

    QStringList actionNames() const override {
        QStringList acciones = QAccessibleWidget::actionNames();
        if (boton_.isEnabled() && !SoloParaVer()) acciones.prepend(Accion());
        return acciones;
    }

    void doAction(const QString& accion) override {
        if (accion != Accion()) return QAccessibleWidget::doAction(accion);
        if (boton_.isEnabled() && !SoloParaVer()) boton_.click();
    }

    QStringList keyBindingsForAction(const QString& accion) const override {
        return accion == Accion() && !boton_.shortcut().isEmpty() ? QStringList(boton_.shortcut().toString())
                                                                  : QStringList();
    }

  private:
    QString Accion() const { return boton_.isCheckable() ? toggleAction() : pressAction(); }
    // A cell that neither the keyboard nor the mouse reaches.
    bool SoloParaVer() const { return boton_.isCheckable() && boton_.focusPolicy() == Qt::NoFocus; }

    QAbstractButton& boton_;
};

QAccessibleInterface* Fabricar(const QString&, QObject* objeto) {
    auto* boton = qobject_cast<QAbstractButton*>(objeto);
    return boton == nullptr ? nullptr : new Boton(boton);
}

} // namespace

void InstalarAccesibilidad() {
    QAccessible::installFactory(Fabricar);
}
