// The numbers of a ticket as a grid of cells, in the shape of the game's printed ticket.
#pragma once

#include <QFrame>
#include <QGridLayout>
#include <QToolButton>

#include <array>
#include <functional>
#include <string_view>

#include "GestorCeldas.h"
#include "Juegos.h"

/// What the clicks do. Without `numero` the grid only shows; without `fila` and `columna` there are no buttons for
/// whole series.
struct OrdenesRejilla {
    std::function<void(int numero)> numero;
    std::function<void(int r)> fila;    ///< the numbers r + 1, r + 11, ...
    std::function<void(int c)> columna; ///< the numbers 10c to 10c + 9
};

struct RejillaNumeros {
    QFrame* papel = nullptr;
    QGridLayout* rejilla = nullptr;
    GestorCeldas* gestor = nullptr;                            ///< none for a grid that only shows
    std::array<QToolButton*, NumeroMaximoBoleto + 1> numero{}; ///< from 1
    std::array<QToolButton*, 10> fila{};
    std::array<QToolButton*, 5> columna{};
    QWidget* series = nullptr; ///< where the series' buttons stand on a ticket in rows of five
    int maximo = 0;            ///< of the shape laid out
};

/// `nombre` is that of the control array: cell n is called nombre_(n - 1).
RejillaNumeros CrearRejillaNumeros(QWidget* padre, std::string_view nombre, const OrdenesRejilla& ordenes);

/// Shows these marks, indexed by number. 49 numbers stand in five columns of tens, 40 in rows of five.
void PintarRejillaNumeros(RejillaNumeros& rejilla, const std::array<bool, NumeroMaximoBoleto + 1>& marcas, int maximo,
                          bool habilitada);

/// An empty cell of a ticket, checkable, at least 30 px square.
QToolButton* CrearCelda(QWidget* papel, const QString& nombre, const QString& texto, const QString& accesible);
