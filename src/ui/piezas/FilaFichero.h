// The row of a tool that opens a file: its button, the file's name, how many bets it has.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <functional>
#include <string>
#include <string_view>

struct FilaFichero {
    QPushButton* boton = nullptr;
    QLabel* nombre = nullptr; ///< the path is its tip
    QLabel* cuenta = nullptr;
};

/// `boton`, `nombre` and `cuenta` are the names of the controls; the button reads `texto`.
struct PeticionFilaFichero {
    std::string_view boton, texto, ayuda, nombre, cuenta;
    std::function<void()> alPulsar;
};

/// Adds the row to `donde`.
FilaFichero CrearFilaFichero(QBoxLayout& donde, PeticionFilaFichero peticion);

/// Shows the path's last part, cut in its middle when it is long, and the count; without a path a dash.
void PintarFilaFichero(const FilaFichero& fila, const std::string& ruta, const std::string& cuenta);
