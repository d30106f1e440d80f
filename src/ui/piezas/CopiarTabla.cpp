#include "CopiarTabla.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QItemSelectionModel>

#include <QKeySequence>

#include <functional>

#include "TextoQt.h"

namespace {

QString Linea(const QAbstractItemModel& modelo, const std::function<QString(int columna)>& celda) {
    QStringList celdas;
    for (int c = 0; c < modelo.columnCount(); ++c) celdas << celda(c);
    return celdas.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

} // namespace

QString TextoTabla(const QAbstractItemView& vista) {
    const QAbstractItemModel& modelo = *vista.model();
    const QItemSelectionModel& seleccion = *vista.selectionModel();
    QString texto = Linea(modelo, [&](int c) { return modelo.headerData(c, Qt::Horizontal).toString(); });
    for (int f = 0; f < modelo.rowCount(); ++f)
        if (!seleccion.hasSelection() || seleccion.rowIntersectsSelection(f))
            texto += Linea(modelo, [&](int c) { return modelo.index(f, c).data().toString(); });
    return texto;
}

void HabilitarCopia(QAbstractItemView& vista) {
    auto* copiar = new QAction(Q("Copiar"), &vista);
    copiar->setObjectName(Q("accionCopiar"));
    copiar->setShortcut(QKeySequence::Copy);
    copiar->setShortcutContext(Qt::WidgetShortcut);
    vista.addAction(copiar);
    vista.setContextMenuPolicy(Qt::ActionsContextMenu);
    QObject::connect(copiar, &QAction::triggered, &vista,
                     [&vista] { QApplication::clipboard()->setText(TextoTabla(vista)); });
}
