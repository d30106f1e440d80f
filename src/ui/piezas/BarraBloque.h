// The pager of a dialog with numbered blocks: back, on, and the way to a group by its number.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>
#include <string>

#include "SelectorBloque.h"

struct BarraBloque {
    QLabel* lblNumeroGrupo = nullptr; ///< where the dialog shows one group at a time
    QPushButton *cmdMENOSBloque = nullptr, *cmdMASBloque = nullptr;
    QLineEdit* txtNumeroGrupo = nullptr; ///< only with `ir`
};

/// What the pager does. Without `ir` it has no field to go by.
struct OrdenesBloque {
    std::function<void()> menos, mas;
    std::function<void(const std::string& grupo)> ir;
};

/// `etiqueta` is the caption of the field; the highest number is added to it. The field's text stays
/// selected after Enter.
BarraBloque CrearBarraBloque(QBoxLayout& donde, const SelectorBloque& bloque, std::string_view etiqueta,
                             OrdenesBloque ordenes);

/// Shows the title, if it is not empty, and which of the two buttons lead somewhere.
void PintarBarraBloque(const BarraBloque& barra, const SelectorBloque& bloque, const std::string& titulo);
