// An interval as a dialog shows it: its name, minimum, maximum and what joins it to the next.
#pragma once

#include <QGridLayout>
#include <QLineEdit>

#include <functional>
#include <string>

struct FilaIntervalo {
    QLineEdit* minimo = nullptr;
    QLineEdit* maximo = nullptr;
};

/// What an interval's row needs: the controls' names, the words for tips ("Suma", "Intervalo 3"), and
/// the effects of an edit and of a key press.
struct PeticionFilaIntervalo {
    QString etiqueta, nombreMinimo, nombreMaximo, que;
    bool or_ = false; ///< "OR" at the end: the next one is an alternative
    std::function<void(const std::string&)> alCambiarMinimo, alCambiarMaximo;
    std::function<void()> alPulsar;
};

/// The captions "Mínimo" and "Máximo" over the fields, in row 0 of the grid.
void CrearCabeceraIntervalos(QGridLayout& rejilla, const QString& minimo, const QString& maximo);

FilaIntervalo CrearFilaIntervalo(QGridLayout& rejilla, int fila, PeticionFilaIntervalo peticion);

void PintarFilaIntervalo(const FilaIntervalo& fila, const std::string& minimo, const std::string& maximo);
