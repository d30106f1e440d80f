// Tables of results as text for a spreadsheet: cells between tabs, lines between line ends. Ctrl+C, and
// "Copiar" in the control's own menu, copy what is selected in it, or all of it with its headings when
// nothing is.
#pragma once

#include <QAbstractItemView>
#include <QPlainTextEdit>

#include <functional>
#include <string>
#include <string_view>

/// The whole table with its line of headings. While it is empty there is nothing to copy.
using TablaEntera = std::function<std::string()>;

void AlPortapapeles(std::string_view texto);

/// A view whose cells are as they are to be copied.
void HabilitarCopia(QAbstractItemView& vista);

/// A view that shows each line of `tabla` after the headings as a row in its own way.
void HabilitarCopia(QAbstractItemView& vista, TablaEntera tabla);

/// A text that shows the table: `fila` gives the line of `tabla`, the headings being line 0, that a line of
/// the text stands for, or -1 for one that is copied as it stands.
void HabilitarCopia(QPlainTextEdit& texto, TablaEntera tabla, std::function<int(int linea)> fila);

/// A window of labels and fields, where no control that has the focus copies by itself.
void HabilitarCopia(QWidget& ventana, TablaEntera tabla);
