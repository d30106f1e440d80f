#include "entornoQt.h"

Entorno EntornoQt() {
    Entorno entorno;
    entorno.Ahora = AhoraDelSistema;
    return entorno;
}
