// The list of coefficients, several of which may be chosen.
#pragma once

#include <QListWidget>

#include <array>
#include <functional>
#include <string>

/// A list of 100 rows with a box each, called lstCR. `elegir` gets the row and whether it is chosen now.
QListWidget* CrearListaCR(const std::function<std::string(size_t)>& texto, std::function<void(size_t, bool)> elegir);

void PintarListaCR(QListWidget& lista, const std::array<bool, 100>& elegidos);
