// A cell that is chosen or not: hit counts and positions.
#pragma once

#include <QPushButton>

#include <functional>
#include <string_view>

/// White on green when chosen and black on white when not, under any desktop palette.
QPushButton* CrearCeldaVerde(std::string_view nombre, std::string_view texto, std::string_view ayuda, int lado,
                             std::function<void()> alPulsar);
