#include "EstadoTrabajo.h"

std::string NombreFicheroActual(const EstadoTrabajo& trabajo) {
    const size_t corte = trabajo.Titulo.find(": ");
    return corte == std::string::npos ? "Sin guardar.xml" : trabajo.Titulo.substr(corte + 2);
}
