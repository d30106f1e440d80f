#include "lstFiltros.h"

#include "TablaFiltros.h"
#include "modGeneral.h"

namespace {

// Columns NºACT and ELIMINAN together.
constexpr size_t AnchoFinal = 20;

} // namespace

std::string TextoFila(const FilaFiltro& fila, int k, char separadorMiles) {
    const std::string eliminan = fila.Eliminadas ? FormatoMiles(*fila.Eliminadas, separadorMiles) : "-";
    const size_t ocupado = fila.NumeroActivos.size() + eliminan.size();
    const std::string relleno(ocupado < AnchoFinal ? AnchoFinal - ocupado : 1, ' ');
    return (fila.Activo ? "Sí   " : "No   ") + std::string(NombreFila(k)) + fila.NumeroActivos + relleno + eliminan;
}

std::string TextoReduccion(int tipoReduccion) {
    return tipoReduccion >= 1 && tipoReduccion <= 4 ? "al " + std::to_string(6 - tipoReduccion) : "-";
}
