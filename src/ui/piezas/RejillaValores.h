// A control for each number, beside it, on paper and in the shape of the ticket.
#pragma once

#include <QFrame>
#include <QPalette>

#include <functional>

/// `crear` makes the control of a number from 1 to `maximo`. 49 numbers stand in five columns of tens,
/// which the Tab key goes down one after the other, and 40 in rows of five.
QFrame* CrearRejillaValores(int maximo, const std::function<QWidget*(int numero)>& crear);

/// For a control on the paper: dark on white whatever the desktop's palette `base`.
QPalette ColoresSobrePapel(const QPalette& base);
