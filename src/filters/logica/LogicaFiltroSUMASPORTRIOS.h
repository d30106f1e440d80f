// The dialog of SUMASPORTRIOS: five intervals of the sum of the three first numbers, T1, and five of
// the three last, T2.
#pragma once

#include <array>
#include <string>

#include "Entorno.h"
#include "LogicaMarco.h"
#include "TablaFiltros.h"

struct LogicaFiltroSUMASPORTRIOS {
    Sesion& sesion;
    Entorno& entorno;
    LogicaMarco marco{sesion, kSUMASPORTRIOS};

    std::array<std::string, 5> txtSumaMinimaT1{}, txtSumaMaximaT1{}, txtSumaMinimaT2{}, txtSumaMaximaT2{};

    void Abrir();
    void CambiarMinimaT1(size_t i, const std::string& texto);
    void CambiarMaximaT1(size_t i, const std::string& texto);
    void CambiarMinimaT2(size_t i, const std::string& texto);
    void CambiarMaximaT2(size_t i, const std::string& texto);
    /// Puts in `condiciones` what the controls show, checked or not; what does not fit its field stays as it is.
    void Volcar(Condiciones& condiciones) const;
    /// Stores the twenty values if all are good; otherwise tells the first fault and stores none.
    bool PuedeCerrar();

  private:
    bool Validar(size_t i);
    bool ValidarTamanio(size_t i);
};
