#include "CopiarTabla.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QListView>
#include <QMap>
#include <QShortcut>
#include <QTextBlock>

#include <set>

#include "TextoQt.h"

namespace {

using Copia = std::function<std::string()>;

// Takes the key before the control, which would copy in its own way, and before a window with another
// use for it.
class TeclaCopiar final : public QObject {
  public:
    TeclaCopiar(QWidget& control, Copia copia) : QObject(&control), copia_(std::move(copia)) {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* evento) override {
        if ((evento->type() != QEvent::ShortcutOverride && evento->type() != QEvent::KeyPress) ||
            !static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Copy))
            return false;
        evento->accept();
        if (evento->type() == QEvent::KeyPress) AlPortapapeles(copia_());
        return true;
    }

  private:
    Copia copia_;
};

void PonerCopia(QWidget& control, const Copia& copia) {
    new TeclaCopiar(control, copia);
    auto* copiar = new QAction(Q("Copiar\tCtrl+C"), &control);
    control.addAction(copiar);
    control.setContextMenuPolicy(Qt::ActionsContextMenu);
    QObject::connect(copiar, &QAction::triggered, &control, [copia] { AlPortapapeles(copia()); });
}

// A row without any text only parts others.
QString Linea(const QStringList& celdas) {
    const QString linea = celdas.join(QLatin1Char('\t'));
    return linea.trimmed().isEmpty() ? QString() : linea + QLatin1Char('\n');
}

QString Celda(const QModelIndex& indice) {
    return indice.data().toString().trimmed();
}

bool SeVe(const QAbstractItemView& vista, const QModelIndex& indice) {
    return !vista.visualRect(indice).isEmpty();
}

QString Entera(const QAbstractItemView& vista) {
    const QAbstractItemModel& modelo = *vista.model();
    QString texto;
    for (int f = 0; f < modelo.rowCount(); ++f) {
        QStringList titulos, celdas;
        for (int c = 0; c < modelo.columnCount(); ++c) {
            if (!SeVe(vista, modelo.index(f, c))) continue;
            titulos << modelo.headerData(c, Qt::Horizontal).toString().trimmed();
            celdas << Celda(modelo.index(f, c));
        }
        const bool primera = texto.isEmpty() && qobject_cast<const QListView*>(&vista) == nullptr;
        texto += (primera ? Linea(titulos) : QString()) + Linea(celdas);
    }
    return texto;
}

// The columns that have something selected, so that those of all rows stay one above the other.
QString Elegidas(const QAbstractItemView& vista, const QModelIndexList& indices) {
    QMap<int, QMap<int, QString>> filas;
    std::set<int> columnas;
    for (const QModelIndex& indice : indices) {
        if (!SeVe(vista, indice)) continue;
        columnas.insert(indice.column());
        filas[indice.row()][indice.column()] = Celda(indice);
    }
    QString texto;
    for (const auto& fila : filas) {
        QStringList celdas;
        for (const int c : columnas) celdas << fila.value(c);
        texto += Linea(celdas);
    }
    return texto;
}

// These lines of the table; `suelta` gives what stands for a line that is none.
std::string Lineas(const std::string& tabla, const QList<int>& cuales, const std::function<QString(int)>& suelta) {
    const QStringList lineas = Q(tabla).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QString texto;
    for (int i = 0; i < cuales.size(); ++i) {
        const bool hay = cuales[i] >= 0 && cuales[i] < lineas.size();
        texto += (hay ? lineas[cuales[i]] : suelta(i)) + QLatin1Char('\n');
    }
    return Utf8(texto);
}

} // namespace

void AlPortapapeles(std::string_view texto) {
    if (!texto.empty()) QApplication::clipboard()->setText(Q(texto));
}

void HabilitarCopia(QAbstractItemView& vista) {
    PonerCopia(vista, [&vista] {
        const QModelIndexList indices = vista.selectionModel()->selectedIndexes();
        return Utf8(indices.isEmpty() ? Entera(vista) : Elegidas(vista, indices));
    });
}

void HabilitarCopia(QAbstractItemView& vista, TablaEntera tabla) {
    PonerCopia(vista, [&vista, tabla = std::move(tabla)] {
        std::set<int> filas;
        for (const QModelIndex& indice : vista.selectionModel()->selectedIndexes()) filas.insert(indice.row() + 1);
        if (filas.empty()) return tabla();
        return Lineas(tabla(), QList<int>(filas.begin(), filas.end()), [](int) { return QString(); });
    });
}

void HabilitarCopia(QPlainTextEdit& texto, TablaEntera tabla, std::function<int(int)> fila) {
    PonerCopia(texto, [&texto, tabla = std::move(tabla), fila = std::move(fila)] {
        const QTextCursor cursor = texto.textCursor();
        if (!cursor.hasSelection()) return tabla();
        const QTextDocument& documento = *texto.document();
        const QTextBlock primera = documento.findBlock(cursor.selectionStart());
        // One that ends at the start of a line has nothing of it.
        const QTextBlock ultima = documento.findBlock(cursor.selectionEnd() - 1);
        QList<int> cuales;
        for (int l = primera.blockNumber(); l <= ultima.blockNumber(); ++l) cuales << fila(l);
        return Lineas(tabla(), cuales,
                      [&](int i) { return documento.findBlockByNumber(primera.blockNumber() + i).text(); });
    });
}

void HabilitarCopia(QWidget& ventana, TablaEntera tabla) {
    auto* tecla = new QShortcut(QKeySequence::Copy, &ventana, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    QObject::connect(tecla, &QShortcut::activated, &ventana, [tabla = std::move(tabla)] { AlPortapapeles(tabla()); });
}
