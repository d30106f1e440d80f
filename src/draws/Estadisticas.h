// The ten statistics over a slice of the draw history, as figures and as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Sorteos.h"

inline constexpr int NEstadisticas = 10;

/// The draws asked for. The range of draw numbers holds within each year alike.
struct ConsultaSorteos {
    int anioDesde = 0, anioHasta = 0;     ///< both included
    int sorteoDesde = 0, sorteoHasta = 0; ///< both included
    int dia = 0;                          ///< code of the weekday, 0 for all
};

bool Coincide(const Sorteo& sorteo, const ConsultaSorteos& consulta);
int64_t ContarCoincidentes(const Sorteos& sorteos, const ConsultaSorteos& consulta);

/// One row of a statistic.
struct BarraEstadistica {
    std::string etiqueta; ///< what was counted, short: "07", "4-2", "021-032"
    int64_t veces = 0;    ///< how often
    int valor = 0;        ///< the number, class, distance, band or hit count behind the label
};

/// Caption of the choice and title of the text; `tipo` 0 to 9.
std::string_view NombreEstadistica(int tipo);
std::string_view TituloEstadistica(int tipo);

/// The rows in the order of the text, of the draws that match. Empty only for the two statistics that
/// leave out what never came up, Números and Sumas. Draws hold numbers of 1 to 49 in any order.
std::vector<BarraEstadistica> FigurasEstadistica(int tipo, const Sorteos& sorteos, const ConsultaSorteos& consulta);

/// The same rows as text, LF line ends.
std::string TextoEstadistica(int tipo, const std::vector<BarraEstadistica>& figuras);
