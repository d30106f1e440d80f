// What every window is made of: heading, distances, boxes, buttons, size.
#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>
#include <string_view>

/// The distance between things that belong together, and twice it around what holds them.
inline constexpr int Paso = 8;

/// Names and titles the dialog and puts its heading and a sentence on top; the layout for its content.
QVBoxLayout* EmpezarVentana(QDialog& dialogo, std::string_view nombre, std::string_view titulo,
                            std::string_view cabecera, std::string_view frase);

/// A layout without margins in a widget of its own, which can be disabled as a whole.
QVBoxLayout* CrearCuerpo(QVBoxLayout& caja, QWidget*& cuerpo);

/// Makes the finished dialog as large as it must be to show all it has, and never smaller. By itself the
/// toolkit reckons with fewer lines than a wrapped text takes, and with two thirds of the screen at most.
void AjustarTamanio(QDialog& dialogo);

/// A captioned box for a grid of content.
QGridLayout* CrearCaja(QBoxLayout& donde, std::string_view titulo);

/// A button that Enter presses only when it has the focus.
QPushButton* CrearBoton(std::string_view nombre, std::string_view texto, std::string_view ayuda,
                        std::function<void()> alPulsar);
