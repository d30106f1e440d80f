#include "SelectorBloque.h"

#include "modGeneral.h"

bool SelectorBloque::Ir(Entorno& entorno, const std::string& txtNumeroGrupo) {
    int32_t grupo = 0;
    if (!LeerEntero(txtNumeroGrupo, grupo) || grupo < 1 || grupo > Paginas * PorPagina)
        return Fallo(entorno, "ERROR: EL NUMERO DE GRUPO DEBE ESTAR ENTRE 1 y " + std::to_string(Paginas));
    Actual = (grupo + PorPagina - 1) / PorPagina;
    return true;
}

std::string SelectorBloque::TextoMaximo() const {
    return " (Máx. " + std::to_string(Paginas * PorPagina) + ")";
}
