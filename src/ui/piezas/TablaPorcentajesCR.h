// A table of 49 percentages with its title and its three buttons.
#pragma once

#include <QBoxLayout>
#include <QLineEdit>

#include <array>
#include <functional>
#include <string>

#include "FicheroPorcentajes.h"
#include "PorcentajesCR.h"

/// Which table, and the effects of its controls.
struct PeticionTablaPorcentajes {
    TablaCR tabla;
    std::function<void(size_t i, const std::string& texto)> alCambiar;
    std::function<void()> alInicializar, alAbrir, alGuardar;
};

using CamposPorcentajes = std::array<QLineEdit*, 49>;

/// Adds the table to `donde`.
CamposPorcentajes CrearTablaPorcentajes(QBoxLayout& donde, PeticionTablaPorcentajes peticion);

/// Wired to a logic, which outlives it; `pintar` follows each effect.
template <class Logica>
CamposPorcentajes CrearTablaPorcentajes(QBoxLayout& donde, Logica& logica, TablaCR tabla,
                                        const std::function<void()>& pintar) {
    const auto orden = [&logica, tabla, pintar](void (Logica::*efecto)(TablaCR)) {
        return [&logica, tabla, pintar, efecto] { (logica.*efecto)(tabla), pintar(); };
    };
    return CrearTablaPorcentajes(donde, {tabla,
                                         [&logica, tabla, pintar](size_t i, const std::string& texto) {
                                             logica.CambiarPorcentaje(tabla, i, texto), pintar();
                                         },
                                         orden(&Logica::imgINIPorcentajes), orden(&Logica::imgAbrirPorcentajes),
                                         orden(&Logica::imgGuardarPorcentajes)});
}

void PintarTablaPorcentajes(const CamposPorcentajes& campos, const TextosPorcentajes& textos);
