#include "LogicaFiltroGRUPOS.h"

#include <algorithm>
#include <string_view>

namespace {

// What is wrong with a group, empty if nothing is.
std::string_view FaltaDe(const GrupoNumeros& grupo) {
    const auto posiciones = std::count(grupo.posiciones.begin(), grupo.posiciones.end(), uint8_t{1});
    if (!EnVigor(grupo.numeros)) {
        if (EnVigor(grupo.aciertos)) return " : No ha marcado ningún número y hay aciertos seleccionados";
        if (posiciones < 6)
            return " : No ha marcado ningún número por tanto todas las posiciones del grupo tienen que estar marcadas";
        return "";
    }
    if (!EnVigor(grupo.aciertos)) return " : Debe rellenar al menos un acierto";
    if (posiciones == 0) return " : Debe rellenar al menos una posición";
    const auto mayor = std::find(grupo.aciertos.rbegin(), grupo.aciertos.rend(), uint8_t{1});
    if (grupo.aciertos.rend() - mayor - 1 > posiciones)
        return " : El acierto máximo es mayor que las posiciones marcadas";
    return "";
}

} // namespace

void LogicaFiltroGRUPOS::MostrarPagina() {
    for (size_t i = 0; i < Paneles; ++i) txtAciertos[i] = TextoLista(Grupo(i).aciertos);
}

void LogicaFiltroGRUPOS::cmdMASBloque() {
    bloque.Mas();
    MostrarPagina();
}

void LogicaFiltroGRUPOS::cmdMENOSBloque() {
    bloque.Menos();
    MostrarPagina();
}

void LogicaFiltroGRUPOS::IrAGrupo(const std::string& txtNumeroGrupo) {
    if (bloque.Ir(entorno, txtNumeroGrupo)) MostrarPagina();
}

void LogicaFiltroGRUPOS::PulsarPosicion(size_t i, size_t posicion) {
    uint8_t& marca = Grupo(i).posiciones[posicion];
    marca = marca != 1;
    marco.ActivarFiltro();
}

void LogicaFiltroGRUPOS::CerrarModificar(size_t i, const LogicaAciertos& aciertos) {
    CerrarAciertos(aciertos, marco, Grupo(i).aciertos, txtAciertos[i]);
}

bool LogicaFiltroGRUPOS::PuedeCerrar() {
    int g = 0;
    for (const GrupoNumeros& grupo : sesion.condiciones.GRUPOS.grupo) {
        ++g;
        if (const std::string_view falta = FaltaDe(grupo); !falta.empty())
            return Fallo(entorno, "ERROR en GRUPO" + std::to_string(g) + std::string(falta));
    }
    return true;
}
