// Check boxes of figures or splits, each with a bet as its example.
#pragma once

#include <QCheckBox>
#include <QGridLayout>

#include <functional>
#include <span>
#include <string_view>
#include <vector>

struct CajasFigura {
    std::vector<QCheckBox*> cajas; ///< by index of the figure, from 0
};

/// One row a figure, from the grid's row 0; the first box is called `nombre` + "_" + `primera`.
CajasFigura CrearCajasFigura(QGridLayout& rejilla, std::string_view nombre, int primera,
                             std::span<const std::string_view> figuras, std::span<const std::string_view> ejemplos,
                             std::function<void(size_t i, bool marcada)> alPulsar);

/// `marcadas` holds a flag for each box, or more.
void PintarCajasFigura(const CajasFigura& piezas, std::span<const bool> marcadas);

/// A label in fixed pitch, for bets that stand under each other.
class QLabel;
QLabel* CrearTextoFijo(std::string_view texto);
