#include "LogicaPrincipal.h"

bool LogicaPrincipal::PuedeCerrar() {
    if (sesion.trabajo.EstadoCalculando) return false;
    return sesion.trabajo.CombinacionGuardada ||
           entorno.Preguntar("NO HA GUARDADO LA COMBINACION ACTUAL EN XML, ¿ DESEA SALIR DE TODAS FORMAS ?");
}
