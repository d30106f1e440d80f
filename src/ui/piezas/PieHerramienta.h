// What the windows of the tools have in common: foot, figures, the drawing of numbers by lot.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>
#include <string_view>

/// Ends the dialog with the tool's main button and "Cerrar", which is returned and closes it through `reject`.
QPushButton* TerminarHerramienta(QDialog& dialogo, QVBoxLayout& caja, QPushButton& principal);

/// A caption and, to the right, a figure called `nombre`.
QLabel* CrearCuenta(QGridLayout& rejilla, int fila, std::string_view titulo, std::string_view nombre);

/// A row with the list `cboNumeros`, 1 to `maximo`, bound to `cuantos`, and the button `cmdAlazar`.
void PonerAzar(QGridLayout& rejilla, int maximo, int& cuantos, std::function<void()> alPulsar);
