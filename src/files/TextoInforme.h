// How the lines of a report are put together.
#pragma once

#include <iterator>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "Condiciones.h"
#include "Juegos.h"

/// A text that grows by whole lines.
struct TextoInforme {
    std::string Texto;
    char Decimal = ','; ///< separator of the decimals

    template <class... Valores>
    void Linea(fmt::format_string<Valores...> forma, Valores&&... valores) {
        fmt::format_to(std::back_inserter(Texto), forma, std::forward<Valores>(valores)...);
        Texto += '\n';
    }
    void Linea() { Texto += '\n'; }
};

/// The ticket of 49 as ten lines, a ten in each column; `hueco` stands where the number 0 would be.
template <class Celda>
void LineasBoleto(TextoInforme& informe, std::string_view hueco, Celda celda) {
    for (int r = 0; r < 10; ++r) {
        std::string linea(r == 0 ? hueco : "");
        for (int n = r == 0 ? 10 : r; n <= NumeroMaximoBoleto; n += 10) linea += celda(n);
        informe.Linea("{}", linea);
    }
}

/// The summary's sections of the active filters, in row order.
void EscribirSecciones(TextoInforme& informe, const Condiciones& condiciones);
