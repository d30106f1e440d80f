// The list of conditions: nineteen filters and the reduction, one structured row each.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

inline constexpr int NFiltros = 19;
inline constexpr int FilaReduccion = 19; ///< the last row, which is no filter
inline constexpr int NFilas = 20;

enum class ColorFila { Clara, Oscura, NoDisponible };

/// One row. The active state lives here and nowhere else; a filter's parameters do not depend on it.
struct FilaFiltro {
    bool Activo = false;
    std::string NumeroActivos = "-";   ///< column NºACT: "-", "3 de 210", "al 4"
    std::optional<int32_t> Eliminadas; ///< column ELIMINAN, "-" when empty
    ColorFila Color = ColorFila::Clara;
};

using ListaFiltros = std::array<FilaFiltro, NFilas>;

/// Captions of the four columns, each with its width in the row text.
inline constexpr std::array<std::string_view, 4> CabecerasLista{"ACT  ", "CONDICION                   ", "NºACT       ",
                                                                "   ELIMINAN"};

/// The row as fixed-pitch text of 47 characters: "Sí   Sumas                 -             1.204".
std::string TextoFila(const FilaFiltro& fila, int k, char separadorMiles);

/// Text of the NºACT column of the reduction: "al 5" to "al 2" for types 1 to 4, otherwise "-".
std::string TextoReduccion(int tipoReduccion);
