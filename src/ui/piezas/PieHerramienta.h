// What the windows of the tools have in common: heading, foot, figures, the drawing of numbers by lot.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>
#include <string_view>

/// Names and titles the dialog and heads it; the layout that its content goes to.
QVBoxLayout* EmpezarHerramienta(QDialog& dialogo, std::string_view nombre, std::string_view titulo,
                                std::string_view cabecera, std::string_view frase);

/// Ends it with the tool's main button and "Cerrar", which is returned and closes it through `reject`.
QPushButton* TerminarHerramienta(QDialog& dialogo, QVBoxLayout& caja, QPushButton& principal);

/// A caption and, to the right, a figure called `nombre`.
QLabel* CrearCuenta(QGridLayout& rejilla, int fila, std::string_view titulo, std::string_view nombre);

/// A row with the list `cboNumeros`, 1 to `maximo`, bound to `cuantos`, and the button `cmdAlazar`.
void PonerAzar(QGridLayout& rejilla, int maximo, int& cuantos, std::function<void()> alPulsar);
