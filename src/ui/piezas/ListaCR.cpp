#include "ListaCR.h"

#include "TextoQt.h"

namespace {

Qt::CheckState Estado(bool elegido) {
    return elegido ? Qt::Checked : Qt::Unchecked;
}

} // namespace

QListWidget* CrearListaCR(const std::function<std::string(size_t)>& texto, std::function<void(size_t, bool)> elegir) {
    auto* lista = new QListWidget;
    lista->setObjectName(Q("lstCR"));
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
