// The digits of a game in a row of cells: ten reintegros or five sueños.
#pragma once

#include <QFrame>
#include <QToolButton>

#include <array>
#include <functional>
#include <string_view>

#include "Juegos.h"

struct RejillaDigitos {
    QFrame* papel = nullptr;
    std::array<QToolButton*, 10> digito{};
};

/// Cell d is called nombre_d and calls `pulsar` with its digit.
RejillaDigitos CrearRejillaDigitos(QWidget* padre, std::string_view nombre, std::function<void(int)> pulsar);

/// Shows the digits of the game with these marks.
void PintarRejillaDigitos(const RejillaDigitos& rejilla, const std::array<bool, 10>& marcas, const Juego& juego,
                          bool habilitada);
