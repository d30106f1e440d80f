#include "LogicaFiltroGRUPOSENTRELIMITES.h"

#include <algorithm>

namespace {

constexpr int UltimoItem = RegistroGRUPOSENTRELIMITES::Grupos;

} // namespace

void LogicaFiltroGRUPOSENTRELIMITES::Abrir() {
    const RegistroGRUPOSENTRELIMITES& registro = sesion.condiciones.GRUPOSENTRELIMITES;
    cboIntervalo1 = std::clamp(registro.aciertosMinimoGRUPOSENTRELIMITES, 0, UltimoItem);
    cboIntervalo2 = std::clamp(registro.aciertosMaximoGRUPOSENTRELIMITES, 0, UltimoItem);
    MostrarPagina();
}

void LogicaFiltroGRUPOSENTRELIMITES::MostrarPagina() {
    for (size_t i = 0; i < Paneles; ++i) txtAciertos[i] = TextoLista(Grupo(i).aciertos);
}

void LogicaFiltroGRUPOSENTRELIMITES::cmdMASBloque() {
    bloque.Mas();
    MostrarPagina();
}

void LogicaFiltroGRUPOSENTRELIMITES::cmdMENOSBloque() {
    bloque.Menos();
    MostrarPagina();
}

void LogicaFiltroGRUPOSENTRELIMITES::IrAGrupo(const std::string& txtNumeroGrupo) {
    if (bloque.Ir(entorno, txtNumeroGrupo)) MostrarPagina();
}

void LogicaFiltroGRUPOSENTRELIMITES::ElegirIntervalo1(int item) {
    cboIntervalo1 = std::clamp(item, 0, UltimoItem);
    marco.ActivarFiltro();
}

void LogicaFiltroGRUPOSENTRELIMITES::ElegirIntervalo2(int item) {
    cboIntervalo2 = std::clamp(item, 0, UltimoItem);
    marco.ActivarFiltro();
}

void LogicaFiltroGRUPOSENTRELIMITES::CerrarModificar(size_t i, const LogicaAciertos& aciertos) {
    CerrarAciertos(aciertos, marco, Grupo(i).aciertos, txtAciertos[i]);
}

void LogicaFiltroGRUPOSENTRELIMITES::Volcar(Condiciones& condiciones) const {
    condiciones.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES = cboIntervalo1;
    condiciones.GRUPOSENTRELIMITES.aciertosMaximoGRUPOSENTRELIMITES = cboIntervalo2;
}

bool LogicaFiltroGRUPOSENTRELIMITES::PuedeCerrar() {
    const RegistroGRUPOSENTRELIMITES& registro = sesion.condiciones.GRUPOSENTRELIMITES;
    for (size_t g = 0; g < registro.grupo.size(); ++g) {
        const bool numeros = EnVigor(registro.grupo[g].numeros), aciertos = EnVigor(registro.grupo[g].aciertos);
        const std::string prefijo = "ERROR en GRUPO" + std::to_string(g + 1);
        if (numeros && !aciertos) return Fallo(entorno, prefijo + " : Debe rellenar al menos un acierto");
        if (!numeros && aciertos)
            return Fallo(entorno, prefijo + " : No ha marcado ningún número y hay aciertos seleccionados");
    }
    Volcar(sesion.condiciones);
    if (cboIntervalo1 > cboIntervalo2)
        return Fallo(entorno, "ERROR en LIMITE DE GRUPOS : El número de aciertos máximo es menor que el mínimo");
    return true;
}
