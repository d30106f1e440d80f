#include "SoltarFicheros.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "TextoQt.h"

namespace {

// None unless all that is dragged are regular files, and as many as are taken.
std::vector<std::string> FicherosArrastrados(const QMimeData* datos, bool varios) {
    std::vector<std::string> rutas;
    for (const QUrl& direccion : datos->urls()) {
        const QString ruta = direccion.toLocalFile();
        if (!QFileInfo(ruta).isFile()) return {};
        rutas.push_back(Utf8(ruta));
    }
    return varios || rutas.size() == 1 ? rutas : std::vector<std::string>();
}

class Receptor final : public QObject {
  public:
    Receptor(QWidget& ventana, bool varios, std::function<bool()> puede,
             std::function<void(const std::vector<std::string>&)> alSoltar)
        : QObject(&ventana), varios_(varios), puede_(std::move(puede)), alSoltar_(std::move(alSoltar)) {}

    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() != QEvent::DragEnter && evento->type() != QEvent::Drop) return false;
        auto& arrastre = static_cast<QDropEvent&>(*evento); // a drag's entry is a kind of drop
        const std::vector<std::string> rutas = FicherosArrastrados(arrastre.mimeData(), varios_);
        if (rutas.empty() || !puede_()) return false;
        arrastre.acceptProposedAction();
        if (evento->type() == QEvent::Drop) QTimer::singleShot(0, this, [this, rutas] { alSoltar_(rutas); });
        return true;
    }

  private:
    bool varios_;
    std::function<bool()> puede_;
    std::function<void(const std::vector<std::string>&)> alSoltar_;
};

} // namespace

void AceptarFicheros(QWidget& ventana, bool varios, std::function<bool()> puede,
                     std::function<void(const std::vector<std::string>&)> alSoltar) {
    ventana.setAcceptDrops(true);
    ventana.installEventFilter(new Receptor(ventana, varios, std::move(puede), std::move(alSoltar)));
}
