// How long SORTEOSANTERIORES takes, as its dialog tells. Measured with bench/sorteos; the result is the
// number of bets left.
#pragma once

#include <array>
#include <string_view>

struct TiempoSorteos {
    std::string_view Numeros, Apuestas, Filtro, NSorteos, Tiempo, Resultado;
};

inline constexpr TiempoSorteos CabeceraTiempos{"Números", "Apuestas", "Filtro", "Nº Sorteos", "Tiempo", "Resultado"};

extern const std::array<TiempoSorteos, 6> TiemposSorteos;
