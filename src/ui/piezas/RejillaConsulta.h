// Which draws of the history a query takes: seasons, draws of each season and day of the week.
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>

#include <array>
#include <string>

/// The fields, in the order of the grid: first and last season, first and last draw.
struct RejillaConsulta {
    std::array<QLineEdit*, 4> campos{};
    QComboBox* cboDia = nullptr;
};

/// What the fields write to, in the same order.
struct DatosConsulta {
    std::array<std::string*, 4> textos{};
    int* dia = nullptr;
};

/// Those of a logic, which outlives the grid.
template <class Logica>
DatosConsulta ConsultaDe(Logica& l) {
    return {{&l.txtTemporadaDESDE, &l.txtTemporadaHASTA, &l.txtSorteoDESDE, &l.txtSorteoHASTA}, &l.cboDia};
}

/// Fills rows 0 to 3 of the grid.
RejillaConsulta CrearRejillaConsulta(QGridLayout& rejilla, const DatosConsulta& datos);

void PintarRejillaConsulta(const RejillaConsulta& consulta, const DatosConsulta& datos);
