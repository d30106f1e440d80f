// A table of 49 percentages with its title and its three buttons.
#pragma once

#include <QBoxLayout>
#include <QLineEdit>

#include <array>
#include <functional>
#include <string>

#include "FicheroPorcentajes.h"

/// Texts, names and effects of the table. `sufijo` ends the names of its controls.
struct PeticionTablaPorcentajes {
    std::string titulo, sufijo;
    std::function<void(size_t i, const std::string& texto)> alCambiar;
    std::function<void()> alInicializar, alAbrir, alGuardar;
};

using CamposPorcentajes = std::array<QLineEdit*, 49>;

/// Adds the table to `donde`.
CamposPorcentajes CrearTablaPorcentajes(QBoxLayout& donde, PeticionTablaPorcentajes peticion);

void PintarTablaPorcentajes(const CamposPorcentajes& campos, const TextosPorcentajes& textos);
