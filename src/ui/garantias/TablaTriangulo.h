// The triangle of a measure of guarantees: a row for each class of draw, a column for each hit level.
#pragma once

#include <QTableWidget>

#include "LogicaGarantias.h"

/// An empty table as large as its content at most needs.
QTableWidget* CrearTablaTriangulo();

void PintarTablaTriangulo(QTableWidget& tabla, const LogicaGarantias& logica);
