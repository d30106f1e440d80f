// The dialog of DISTANCIAS: an interval for each difference of neighbours and for the whole bet.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Entorno.h"
#include "LogicaMarco.h"
#include "TablaFiltros.h"

/// The pairs in the order of the record: the two digits in the names of their controls, and the words
/// that name them.
struct ParDistancia {
    std::string_view Cifras, Palabras;
};
inline constexpr std::array<ParDistancia, 6> ParesDistancias{{{"12", "números 1 y 2"},
                                                              {"23", "números 2 y 3"},
                                                              {"34", "números 3 y 4"},
                                                              {"45", "números 4 y 5"},
                                                              {"56", "números 5 y 6"},
                                                              {"16", "números del 1 al 6"}}};

struct LogicaFiltroDISTANCIAS {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kDISTANCIAS};

    /// `txtDistancia12Min`, `txtDistancia12Max` and so on, in the order of `ParesDistancias`.
    std::array<std::string, 6> txtDistanciaMin{}, txtDistanciaMax{};

    void Abrir();
    void CambiarMin(size_t i, const std::string& texto);
    void CambiarMax(size_t i, const std::string& texto);
    /// Puts in `condiciones` what the controls show, checked or not; what does not fit its field stays as it is.
    void Volcar(Condiciones& condiciones) const;
    /// Stores the twelve values if all are good; otherwise tells the first fault and stores none.
    bool PuedeCerrar();

  private:
    bool Validar();
};
