#include "ListaCR.h"

#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <algorithm>

#include "TextoQt.h"

namespace {

Qt::CheckState Estado(bool elegido) {
    return elegido ? Qt::Checked : Qt::Unchecked;
}

// Rows high enough for the mouse, whose text works as their box does. By itself the toolkit toggles on
// a click in the box alone.
class FilaMarcable final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override {
        constexpr int altoMinimo = 24;
        const QSize previsto = QStyledItemDelegate::sizeHint(opcion, indice);
        return {previsto.width(), std::max(previsto.height(), altoMinimo)};
    }

    bool editorEvent(QEvent* evento, QAbstractItemModel* modelo, const QStyleOptionViewItem& opcion,
                     const QModelIndex& indice) override {
        if (evento->type() == QEvent::KeyPress) return QStyledItemDelegate::editorEvent(evento, modelo, opcion, indice);
        if (evento->type() != QEvent::MouseButtonRelease ||
            static_cast<const QMouseEvent*>(evento)->button() != Qt::LeftButton ||
            !(opcion.state & QStyle::State_Enabled))
            return false;
        const bool elegido = indice.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return modelo->setData(indice, Estado(!elegido), Qt::CheckStateRole);
    }
};

} // namespace

QListWidget* CrearListaCR(const std::function<std::string(size_t)>& texto, std::function<void(size_t, bool)> elegir) {
    auto* lista = new QListWidget;
    lista->setObjectName(Q("lstCR"));
    lista->setItemDelegate(new FilaMarcable(lista));
    lista->setUniformItemSizes(true);
    lista->setAccessibleName(Q("Coeficientes permitidos"));
    lista->setToolTip(Q("Coeficientes permitidos; el último vale también para los mayores"));
    for (size_t i = 0; i < 100; ++i) {
        auto* fila = new QListWidgetItem(Q(texto(i)), lista);
        fila->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        fila->setCheckState(Qt::Unchecked);
    }
    lista->setMinimumWidth(lista->sizeHintForColumn(0) + 40);
    QObject::connect(lista, &QListWidget::itemChanged, lista,
                     [lista, elegir = std::move(elegir)](const QListWidgetItem* fila) {
                         elegir(static_cast<size_t>(lista->row(fila)), fila->checkState() == Qt::Checked);
                     });
    return lista;
}

void PintarListaCR(QListWidget& lista, const std::array<bool, 100>& elegidos) {
    const QSignalBlocker callada(&lista);
    for (size_t i = 0; i < elegidos.size(); ++i) {
        QListWidgetItem& fila = *lista.item(static_cast<int>(i));
        if (fila.checkState() != Estado(elegidos[i])) fila.setCheckState(Estado(elegidos[i]));
    }
    lista.viewport()->update();
}
