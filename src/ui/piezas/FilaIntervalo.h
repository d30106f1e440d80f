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

/// What an interval's row is called: its label, the controls' names and the words for tips ("Suma",
/// "Intervalo 3").
struct PeticionFilaIntervalo {
    QString etiqueta, nombreMinimo, nombreMaximo, que;
    bool or_ = false; ///< "OR" at the end: the next one is an alternative
};

/// The effects of an edit of either field and of a key press in one.
struct EfectosIntervalo {
    std::function<void(const std::string&)> alCambiarMinimo, alCambiarMaximo;
    std::function<void()> alPulsar;
};

/// Those of interval `i` of a filter: an edit runs one of the logic's two setters, a key press turns the
/// condition on, and each is followed by `pintar`. `logica` outlives the row.
template <class Logica>
EfectosIntervalo EfectosDeIntervalo(Logica& logica, size_t i, void (Logica::*minimo)(size_t, const std::string&),
                                    void (Logica::*maximo)(size_t, const std::string&),
                                    const std::function<void()>& pintar) {
    const auto alCambiar = [&logica, i, pintar](auto cambiar) {
        return [&logica, i, pintar, cambiar](const std::string& texto) { (logica.*cambiar)(i, texto), pintar(); };
    };
    return {alCambiar(minimo), alCambiar(maximo), [&logica, pintar] { logica.marco.ActivarFiltro(), pintar(); }};
}

/// The captions "Mínimo" and "Máximo" over the fields, in row 0 of the grid.
void CrearCabeceraIntervalos(QGridLayout& rejilla, const QString& minimo, const QString& maximo);

FilaIntervalo CrearFilaIntervalo(QGridLayout& rejilla, int fila, const PeticionFilaIntervalo& peticion,
                                 EfectosIntervalo efectos);

void PintarFilaIntervalo(const FilaIntervalo& fila, const std::string& minimo, const std::string& maximo);
