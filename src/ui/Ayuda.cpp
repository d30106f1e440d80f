#include "Ayuda.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "AyudaVentanas.h"
#include "TextoQt.h"

namespace {

// Of the window, or of the one it stands over when it is none of ours, as a file chooser.
std::string PaginaDe(const QWidget& control) {
    for (const QWidget* w = control.window(); w != nullptr;
         w = w->parentWidget() == nullptr ? nullptr : w->parentWidget()->window()) {
        const std::string pagina = PaginaDeVentana(Utf8(w->objectName()));
        if (!pagina.empty()) return pagina;
    }
    return {};
}

class FiltroAyuda final : public QObject {
  public:
    explicit FiltroAyuda(Entorno& entorno) : entorno_(entorno) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress || !objeto->isWidgetType()) return false;
        const auto& tecla = *static_cast<const QKeyEvent*>(evento);
        if (tecla.key() != Qt::Key_F1 || tecla.modifiers() != Qt::NoModifier) return false;
        if (!tecla.isAutoRepeat()) AbrirManual(entorno_, PaginaDe(*static_cast<const QWidget*>(objeto)));
        return true;
    }

  private:
    Entorno& entorno_;
};

} // namespace

std::unique_ptr<QObject> CrearAyuda(Entorno& entorno) {
    return std::make_unique<FiltroAyuda>(entorno);
}
