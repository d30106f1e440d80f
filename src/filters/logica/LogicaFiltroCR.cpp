#include "LogicaFiltroCR.h"

#include <algorithm>

#include "modGeneral.h"

namespace {

void Guardar(const TextosPorcentajes& textos, std::array<double, 50>& porcentajes) {
    for (size_t i = 0; i < textos.size(); ++i)
        if (!EnBlanco(textos[i])) LeerDecimal(textos[i], porcentajes[i + 1]);
}

} // namespace

void LogicaFiltroCR::Abrir() {
    const RegistroCOEFICIENTERENTABILIDAD& registro = sesion.condiciones.COEFICIENTERENTABILIDAD;
    for (size_t i = 0; i < txtPorcentajesReales.size(); ++i) {
        txtPorcentajesApostados[i] = TextoDecimal(registro.PorcentajesApostados[i + 1], entorno.SeparadorDecimal);
        txtPorcentajesReales[i] = TextoDecimal(registro.PorcentajesReales[i + 1], entorno.SeparadorDecimal);
    }
    for (size_t i = 0; i < lstCR.size(); ++i) lstCR[i] = registro.RangosCR[i] == 1;
}

std::string LogicaFiltroCR::TextoItem(size_t i) const {
    return std::to_string(i / 10) + entorno.SeparadorDecimal + std::to_string(i % 10);
}

void LogicaFiltroCR::CambiarPorcentaje(TablaCR tabla, size_t i, const std::string& texto) {
    Textos(tabla)[i] = SoloDecimales(texto);
    marco.ActivarFiltro();
}

void LogicaFiltroCR::ElegirCR(size_t i, bool elegido) {
    lstCR[i] = elegido;
    marco.ActivarFiltro();
}

void LogicaFiltroCR::imgINIPorcentajes(TablaCR tabla) {
    Textos(tabla).fill("0");
    marco.ActivarFiltro();
}

void LogicaFiltroCR::imgAbrirPorcentajes(TablaCR tabla) {
    const std::string ruta = PedirPorcentajesAbrir(entorno);
    if (ruta.empty()) return;
    marco.ActivarFiltro();
    AbrirPorcentajesCR(ruta, Textos(tabla), entorno);
}

void LogicaFiltroCR::imgGuardarPorcentajes(TablaCR tabla) {
    GuardarPorcentajesCR(Textos(tabla), tabla, entorno);
}

void LogicaFiltroCR::imgCalcular() {
    if (!SinBlancos(txtPorcentajesApostados, TablaCR::Apostados, entorno) ||
        !SinBlancos(txtPorcentajesReales, TablaCR::Reales, entorno))
        return;
    ControlesHabilitados = false;
    entorno.CederTurno();
    ControlesHabilitados = true;
}

void LogicaFiltroCR::Volcar(Condiciones& condiciones) const {
    RegistroCOEFICIENTERENTABILIDAD& registro = condiciones.COEFICIENTERENTABILIDAD;
    Guardar(txtPorcentajesApostados, registro.PorcentajesApostados);
    Guardar(txtPorcentajesReales, registro.PorcentajesReales);
    std::copy(lstCR.begin(), lstCR.end(), registro.RangosCR.begin());
}

bool LogicaFiltroCR::PuedeCerrar() {
    if (!SinErrores(txtPorcentajesApostados, TablaCR::Apostados, entorno) ||
        !SinErrores(txtPorcentajesReales, TablaCR::Reales, entorno))
        return false;
    Volcar(sesion.condiciones);
    return true;
}
