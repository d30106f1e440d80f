#include "GuardarCombinacion.h"

bool GuardarBaseXML(Sesion&, Entorno&) {
    return false;
}
bool GuardarCombinacion(Sesion&, Entorno&) {
    return false;
}
