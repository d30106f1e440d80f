#include "TextoFijo.h"

#include <QFontDatabase>

#include "TextoQt.h"

QPlainTextEdit* CrearTextoFijo(std::string_view nombre, std::string_view accesible, TablaEntera tabla,
                               std::function<int(int)> fila) {
    auto* texto = new QPlainTextEdit;
    texto->setObjectName(Q(nombre));
    texto->setAccessibleName(Q(accesible));
    texto->setReadOnly(true);
    texto->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    texto->setTabChangesFocus(true);
    texto->setLineWrapMode(QPlainTextEdit::NoWrap);
    texto->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    texto->setAcceptDrops(false); // a file that is dropped belongs to the window
    texto->viewport()->setAcceptDrops(false);
    if (tabla)
        HabilitarCopia(*texto, std::move(tabla), std::move(fila));
    else
        HabilitarCopia(
            *texto, [texto] { return Utf8(texto->toPlainText()); }, [](int) { return -1; });
    return texto;
}

void PintarTextoFijo(QPlainTextEdit& texto, const std::string& nuevo) {
    const QString q = Q(nuevo).remove(QLatin1Char('\r'));
    if (texto.toPlainText() != q) texto.setPlainText(q);
}
