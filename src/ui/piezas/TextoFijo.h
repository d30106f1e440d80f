// Results of the system as text of fixed pitch that can be read, selected and copied.
#pragma once

#include <QPlainTextEdit>

#include <string>
#include <string_view>

#include "CopiarTabla.h"

/// With a `tabla`, that is what its copy gives; see `HabilitarCopia`. Without one, the text as it stands.
QPlainTextEdit* CrearTextoFijo(
    std::string_view nombre, std::string_view accesible, TablaEntera tabla = {},
    std::function<int(int linea)> fila = [](int linea) { return linea + 1; });

/// Shows the text, and leaves the view and the selection as they are when it has not changed.
void PintarTextoFijo(QPlainTextEdit& texto, const std::string& nuevo);
