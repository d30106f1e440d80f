// The dialog of a filter, shown, and whether its row is on.
#pragma once

#include <QDialog>

#include <memory>

#include "DialogosFiltro.h"
#include "Guion.h"

inline std::unique_ptr<QDialog> Abierto(Guion& guion, int k) {
    auto dialogo = CrearDialogoFiltro(k, guion.sesion, guion.entorno, nullptr);
    dialogo->show();
    return dialogo;
}

inline bool Activa(const Guion& guion, int k) {
    return guion.sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo;
}
