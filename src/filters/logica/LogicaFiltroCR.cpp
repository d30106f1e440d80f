#include "LogicaFiltroCR.h"

#include <algorithm>

#include "modGeneral.h"

namespace {

constexpr int ModoDecimales = 4;

std::string NombreDe(TablaCR tabla) {
    return tabla == TablaCR::Apostados ? " (% APOSTADOS)" : " (% REALES)";
}

std::string ErrorEnNumero(size_t i, const std::string& queja, TablaCR tabla) {
    return "ERROR EN NUMERO " + std::to_string(i + 1) + ": " + queja + NombreDe(tabla);
}

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
    std::string aceptado;
    for (const char c : texto)
        if (FiltroTecla(aceptado, static_cast<unsigned char>(c), ModoDecimales).Tecla >= ' ') aceptado += c;
    Textos(tabla)[i] = aceptado;
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
    const auto poner = [&](int n, const std::string& texto, double) {
        Textos(tabla)[static_cast<size_t>(n - 1)] = texto;
        return true;
    };
    if (!LeerPorcentajes(ruta, poner)) Fallo(entorno, "ERROR AL ABRIR LOS PORCENTAJES");
}

void LogicaFiltroCR::imgGuardarPorcentajes(TablaCR tabla) {
    if (!SinErrores(tabla)) return;
    const std::string ruta = PedirPorcentajesGuardar(entorno);
    if (!ruta.empty()) GuardarPorcentajes(entorno, ruta, Textos(tabla));
}

bool LogicaFiltroCR::SinBlancos(TablaCR tabla) {
    for (size_t i = 0; i < Textos(tabla).size(); ++i)
        if (EnBlanco(Textos(tabla)[i])) return Fallo(entorno, ErrorEnNumero(i, "EL % ESTA EN BLANCO", tabla));
    return true;
}

bool LogicaFiltroCR::SinErrores(TablaCR tabla) {
    double valor = 0;
    for (size_t i = 0; i < Textos(tabla).size(); ++i)
        if (const std::string& texto = Textos(tabla)[i]; !EnBlanco(texto) && !LeerDecimal(texto, valor))
            return Fallo(entorno, ErrorEnNumero(i, "EL % NO ES UN NUMERO VALIDO", tabla));
    return true;
}

void LogicaFiltroCR::imgCalcular() {
    if (!SinBlancos(TablaCR::Apostados) || !SinBlancos(TablaCR::Reales)) return;
    ControlesHabilitados = false;
    entorno.CederTurno();
    ControlesHabilitados = true;
}

bool LogicaFiltroCR::PuedeCerrar() {
    if (!SinErrores(TablaCR::Apostados) || !SinErrores(TablaCR::Reales)) return false;
    RegistroCOEFICIENTERENTABILIDAD& registro = sesion.condiciones.COEFICIENTERENTABILIDAD;
    Guardar(txtPorcentajesApostados, registro.PorcentajesApostados);
    Guardar(txtPorcentajesReales, registro.PorcentajesReales);
    std::copy(lstCR.begin(), lstCR.end(), registro.RangosCR.begin());
    return true;
}
