// How the lines of a base file are put together.
#pragma once

#include <string>
#include <string_view>

#include <fmt/format.h>

#include "Condiciones.h"

/// A text that grows by whole lines.
struct TextoXML {
    std::string Texto;

    template <class... Valores>
    void Linea(fmt::format_string<Valores...> forma, Valores&&... valores) {
        fmt::format_to(std::back_inserter(Texto), forma, std::forward<Valores>(valores)...);
        Texto += "\r\n";
    }
};

/// The text as a value in single quotes: `&`, `<` and `'` are escaped, nothing else.
std::string EscaparXML(std::string_view texto);

/// All values from `primero` on, joined by ","; decimals in their shortest form, with ".".
template <class Valores>
std::string TextoValores(const Valores& valores, size_t primero = 0) {
    return fmt::format("{}", fmt::join(valores.begin() + static_cast<std::ptrdiff_t>(primero), valores.end(), ","));
}

/// The nineteen `Filtro` elements in row order.
void GenerarFiltros(TextoXML& xml, const Condiciones& condiciones);
