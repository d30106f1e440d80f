#include "LogicaFiltroSUMASPORTRIOS.h"

namespace {

constexpr const char* TresPrimeros = " (Tres primeros números)";
constexpr const char* TresUltimos = " (Tres últimos números)";

bool FueraDeOrden(const std::string& minima, const std::string& maxima) {
    return ValorCampo(minima) > ValorCampo(maxima);
}

} // namespace

void LogicaFiltroSUMASPORTRIOS::Abrir() {
    const RegistroSUMASPORTRIOS& registro = sesion.condiciones.SUMASPORTRIOS;
    for (size_t i = 0; i < txtSumaMinimaT1.size(); ++i) {
        MostrarIntervalo(registro.intervalosT1[i], txtSumaMinimaT1[i], txtSumaMaximaT1[i]);
        MostrarIntervalo(registro.intervalosT2[i], txtSumaMinimaT2[i], txtSumaMaximaT2[i]);
    }
}

void LogicaFiltroSUMASPORTRIOS::CambiarMinimaT1(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtSumaMinimaT1[i], texto);
}

void LogicaFiltroSUMASPORTRIOS::CambiarMaximaT1(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtSumaMaximaT1[i], texto);
}

void LogicaFiltroSUMASPORTRIOS::CambiarMinimaT2(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtSumaMinimaT2[i], texto);
}

void LogicaFiltroSUMASPORTRIOS::CambiarMaximaT2(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtSumaMaximaT2[i], texto);
}

// An interval 0-0 is not in use and is in order by itself.
bool LogicaFiltroSUMASPORTRIOS::Validar(size_t i) {
    const std::string nulos = "ERROR: No se permiten valores nulos en los intervalos";
    const std::string orden = "ERROR: La suma mínima de un intervalo no puede ser mayor que la suma máxima";
    if (EnBlanco(txtSumaMinimaT1[i]) || EnBlanco(txtSumaMaximaT1[i])) return Fallo(entorno, nulos + TresPrimeros);
    if (EnBlanco(txtSumaMinimaT2[i]) || EnBlanco(txtSumaMaximaT2[i])) return Fallo(entorno, nulos + TresUltimos);
    if (FueraDeOrden(txtSumaMinimaT1[i], txtSumaMaximaT1[i])) return Fallo(entorno, orden + TresPrimeros);
    if (FueraDeOrden(txtSumaMinimaT2[i], txtSumaMaximaT2[i])) return Fallo(entorno, orden + TresUltimos);
    return true;
}

// The minimum is no higher than the maximum by then, so that testing the maximum is enough.
bool LogicaFiltroSUMASPORTRIOS::ValidarTamanio(size_t i) {
    const std::string exceso =
        "ERROR: La suma máxima de un intervalo no puede ser mayor que " + std::to_string(MaximoIntervalo);
    if (ValorCampo(txtSumaMaximaT1[i]) > MaximoIntervalo) return Fallo(entorno, exceso + TresPrimeros);
    if (ValorCampo(txtSumaMaximaT2[i]) > MaximoIntervalo) return Fallo(entorno, exceso + TresUltimos);
    return true;
}

void LogicaFiltroSUMASPORTRIOS::Volcar(Condiciones& condiciones) const {
    RegistroSUMASPORTRIOS& registro = condiciones.SUMASPORTRIOS;
    for (size_t i = 0; i < txtSumaMinimaT1.size(); ++i) {
        LeerIntervalo(txtSumaMinimaT1[i], txtSumaMaximaT1[i], registro.intervalosT1[i]);
        LeerIntervalo(txtSumaMinimaT2[i], txtSumaMaximaT2[i], registro.intervalosT2[i]);
    }
}

bool LogicaFiltroSUMASPORTRIOS::PuedeCerrar() {
    const size_t total = txtSumaMinimaT1.size();
    for (size_t i = 0; i < total; ++i)
        if (!Validar(i)) return false;
    for (size_t i = 0; i < total; ++i)
        if (!ValidarTamanio(i)) return false;
    Volcar(sesion.condiciones);
    return true;
}
