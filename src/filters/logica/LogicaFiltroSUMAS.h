// The dialog of SUMAS: ten intervals of the sum of the six numbers, alternatives of each other.
#pragma once

#include <array>
#include <string>

#include "Entorno.h"
#include "LogicaMarco.h"
#include "TablaFiltros.h"

struct LogicaFiltroSUMAS {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kSUMAS};

    std::array<std::string, 10> txtSumaMinima{}, txtSumaMaxima{};

    void Abrir();
    void CambiarMinima(size_t i, const std::string& texto);
    void CambiarMaxima(size_t i, const std::string& texto);
    /// Puts in `condiciones` what the controls show, checked or not; what does not fit its field stays as it is.
    void Volcar(Condiciones& condiciones) const;
    /// Stores the twenty values if all ten intervals are good; otherwise tells the first fault and
    /// stores none.
    bool PuedeCerrar();

  private:
    bool Validar(size_t i);
};
