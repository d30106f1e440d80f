#include "LogicaFiltroGRURELACIONADOS.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

constexpr size_t Filas = LogicaFiltroGRURELACIONADOS::Filas;

// What is wrong with a group, empty if nothing is.
std::string_view FaltaDe(std::span<const MarcasNumeros> subgrupos, std::span<const TablaAciertos> condiciones) {
    const auto s = std::count_if(subgrupos.begin(), subgrupos.end(), EnVigor<MarcasNumeros>);
    const auto k = std::count_if(condiciones.begin(), condiciones.end(), EnVigor<TablaAciertos>);
    if (k > s) return "No puede haber más condiciones que subgrupos activados";
    if (s >= 1 && k == 0) return "Si activa un subgrupo, debe de haber al menos una condición marcada";
    return "";
}

} // namespace

void LogicaFiltroGRURELACIONADOS::MostrarGrupo() {
    for (size_t i = 0; i < Filas; ++i)
        txtAciertos[i] = TextoLista(sesion.condiciones.GRUPOSRELACIONADOS.condiciones[Ranura(i)]);
}

void LogicaFiltroGRURELACIONADOS::cmdMASBloque() {
    bloque.Mas();
    MostrarGrupo();
}

void LogicaFiltroGRURELACIONADOS::cmdMENOSBloque() {
    bloque.Menos();
    MostrarGrupo();
}

void LogicaFiltroGRURELACIONADOS::IrAGrupo(const std::string& txtNumeroGrupo) {
    if (bloque.Ir(entorno, txtNumeroGrupo)) MostrarGrupo();
}

LogicaAciertos LogicaFiltroGRURELACIONADOS::AbrirModificar(size_t i) {
    return AbrirAciertos(sesion.condiciones.GRUPOSRELACIONADOS.condiciones[Ranura(i)], 0);
}

void LogicaFiltroGRURELACIONADOS::CerrarModificar(size_t i, const LogicaAciertos& aciertos) {
    CerrarAciertos(aciertos, marco, sesion.condiciones.GRUPOSRELACIONADOS.condiciones[Ranura(i)], txtAciertos[i]);
}

bool LogicaFiltroGRURELACIONADOS::PuedeCerrar() {
    const RegistroGRUPOSRELACIONADOS& registro = sesion.condiciones.GRUPOSRELACIONADOS;
    for (size_t b = 0; b < registro.subgrupos.size(); b += Filas) {
        const std::string_view falta =
            FaltaDe(std::span(registro.subgrupos).subspan(b, Filas), std::span(registro.condiciones).subspan(b, Filas));
        if (!falta.empty())
            return Fallo(entorno, "ERROR en GRUPO" + std::to_string(b / Filas + 1) + " : " + std::string(falta));
    }
    Volcar(sesion.condiciones);
    return true;
}

void LogicaFiltroGRURELACIONADOS::Volcar(Condiciones& condiciones) const {
    auto& subgrupos = condiciones.GRUPOSRELACIONADOS.subgrupos;
    for (size_t b = 0; b < subgrupos.size(); b += Filas) {
        const auto grupo = std::span(subgrupos).subspan(b, Filas);
        std::stable_partition(grupo.begin(), grupo.end(), EnVigor<MarcasNumeros>);
    }
}
