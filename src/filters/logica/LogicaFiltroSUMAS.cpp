#include "LogicaFiltroSUMAS.h"

namespace {

// 1+2+3+4+5+6 and 44+45+46+47+48+49, both allowed although the texts say "mayor" and "menor".
constexpr int SumaMenor = 21, SumaMayor = 279;

} // namespace

void LogicaFiltroSUMAS::Abrir() {
    const auto& intervalos = sesion.condiciones.SUMAS.intervalos;
    for (size_t i = 0; i < intervalos.size(); ++i) MostrarIntervalo(intervalos[i], txtSumaMinima[i], txtSumaMaxima[i]);
}

void LogicaFiltroSUMAS::CambiarMinima(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtSumaMinima[i], texto);
}

void LogicaFiltroSUMAS::CambiarMaxima(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtSumaMaxima[i], texto);
}

// An interval that passes has both bounds up to 279, so that 16 bits always hold them.
bool LogicaFiltroSUMAS::Validar(size_t i) {
    if (EnBlanco(txtSumaMinima[i]) || EnBlanco(txtSumaMaxima[i]))
        return Fallo(entorno, "ERROR: No se permiten valores nulos en los intervalos");
    const int32_t minima = ValorCampo(txtSumaMinima[i]), maxima = ValorCampo(txtSumaMaxima[i]);
    if (minima <= 0 && maxima <= 0) return true;
    if (minima < SumaMenor)
        return Fallo(entorno, "ERROR: La suma mínima de los intervalos activados(<>0) debe ser mayor que 21");
    if (maxima > SumaMayor)
        return Fallo(entorno, "ERROR: La suma máxima de los intervalos activados(<>0) debe ser menor que 279");
    if (minima > maxima)
        return Fallo(entorno, "ERROR: La suma mínima de un intervalo no puede ser mayor que la suma máxima");
    return true;
}

void LogicaFiltroSUMAS::Volcar(Condiciones& condiciones) const {
    auto& intervalos = condiciones.SUMAS.intervalos;
    for (size_t i = 0; i < intervalos.size(); ++i) LeerIntervalo(txtSumaMinima[i], txtSumaMaxima[i], intervalos[i]);
}

bool LogicaFiltroSUMAS::PuedeCerrar() {
    for (size_t i = 0; i < txtSumaMinima.size(); ++i)
        if (!Validar(i)) return false;
    Volcar(sesion.condiciones);
    return true;
}
