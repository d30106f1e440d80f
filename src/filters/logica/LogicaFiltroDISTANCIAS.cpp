#include "LogicaFiltroDISTANCIAS.h"

#include <algorithm>

void LogicaFiltroDISTANCIAS::Abrir() {
    const auto& distancia = sesion.condiciones.DISTANCIAS.Distancia;
    for (size_t i = 0; i < distancia.size(); ++i)
        MostrarIntervalo(distancia[i], txtDistanciaMin[i], txtDistanciaMax[i]);
}

void LogicaFiltroDISTANCIAS::CambiarMin(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtDistanciaMin[i], texto);
}

void LogicaFiltroDISTANCIAS::CambiarMax(size_t i, const std::string& texto) {
    CambiarCampo(marco, txtDistanciaMax[i], texto);
}

bool LogicaFiltroDISTANCIAS::Validar() {
    if (std::any_of(txtDistanciaMin.begin(), txtDistanciaMin.end(), EnBlanco))
        return Fallo(entorno, "ERROR: algún valor de distancia mínima esta en blanco");
    if (std::any_of(txtDistanciaMax.begin(), txtDistanciaMax.end(), EnBlanco))
        return Fallo(entorno, "ERROR: algún valor de distancia máxima esta en blanco");
    for (size_t i = 0; i < ParesDistancias.size(); ++i)
        if (ValorCampo(txtDistanciaMin[i]) > ValorCampo(txtDistanciaMax[i]))
            return Fallo(entorno, "ERROR: La distancia máxima debe ser mayor que la mínima(" +
                                      std::string(ParesDistancias[i].Palabras) + ")");
    for (size_t i = 0; i < ParesDistancias.size(); ++i)
        if (ValorCampo(txtDistanciaMax[i]) > MaximoIntervalo)
            return Fallo(entorno, "ERROR: La distancia máxima no puede ser mayor que " +
                                      std::to_string(MaximoIntervalo) + "(" + std::string(ParesDistancias[i].Palabras) +
                                      ")");
    return true;
}

bool LogicaFiltroDISTANCIAS::PuedeCerrar() {
    if (!Validar()) return false;
    Volcar(sesion.condiciones);
    return true;
}

void LogicaFiltroDISTANCIAS::Volcar(Condiciones& condiciones) const {
    auto& distancia = condiciones.DISTANCIAS.Distancia;
    for (size_t i = 0; i < distancia.size(); ++i) LeerIntervalo(txtDistanciaMin[i], txtDistanciaMax[i], distancia[i]);
}
