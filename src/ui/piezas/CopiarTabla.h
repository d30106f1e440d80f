// Tables of results as text for a spreadsheet.
#pragma once

#include <QAbstractItemView>

/// Ctrl+C, and "Copiar" in the view's own menu, copy its selected rows, or all when none is, with
/// headings, cells between tabs and lines between line ends.
void HabilitarCopia(QAbstractItemView& vista);

/// What is copied.
QString TextoTabla(const QAbstractItemView& vista);
