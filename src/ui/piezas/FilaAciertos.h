// A hit table as a dialog shows it: caption, list of the hit counts allowed, "Modificar".
#pragma once

#include <QGridLayout>
#include <QLineEdit>

#include <functional>

/// Adds a row of three widgets to the grid. The field is a display and takes no focus.
QLineEdit* CrearFilaAciertos(QGridLayout& rejilla, int fila, const QString& etiqueta, const QString& texto,
                             const QString& boton, std::function<void()> alModificar);
