// Tickets on paper: a printer, or a PDF file.
#pragma once

#include <QPagedPaintDevice>

#include "LogicaVisualizar.h"

/// Draws the tickets `desde` to `hasta`, two a page. False when the device takes no drawing.
bool DibujarBoletos(QPagedPaintDevice& papel, const LogicaVisualizar& visor, int32_t desde, int32_t hasta);

/// Writes them as a PDF file of A4 pages. A failure shows its box, keeps a file that was there and
/// gives false.
bool ExportarPdf(const std::string& ruta, LogicaVisualizar& visor, int32_t desde, int32_t hasta);
