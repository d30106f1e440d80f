// Colours and icons that do not come from the desktop.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

#include <string_view>

/// Whether the desktop's palette is a dark one.
bool EsOscura(const QPalette& paleta);

/// A mix of two colours: `parte` of the first, 0 to 1, and the rest of the second.
QColor Mezclar(const QColor& una, const QColor& otra, double parte);

/// The contrast of two colours, 1 to 21, by their relative luminances.
double Contraste(const QColor& uno, const QColor& otro);

/// The palette's highlight, darkened until its own text stands out from it by 4.5 to 1.
QColor Resalte(const QPalette& paleta);

/// One of the line icons of 24 px by its name, drawn in the palette's text colour.
QIcon IconoLinea(std::string_view nombre, const QPalette& paleta);

/// The program's own icon.
QIcon IconoPrograma();

/// Style sheet of what is drawn as a printed ticket: paper, red print, marked cells white on red. The
/// paper is the same under light and dark palettes.
QString EstiloBoleto();
