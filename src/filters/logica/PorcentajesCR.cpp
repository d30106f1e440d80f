#include "PorcentajesCR.h"

#include "LogicaMarco.h"
#include "modGeneral.h"

namespace {

constexpr int ModoDecimales = 4;

std::string ErrorEnNumero(size_t i, const std::string& queja, TablaCR tabla) {
    return "ERROR EN NUMERO " + std::to_string(i + 1) + ": " + queja +
           (tabla == TablaCR::Apostados ? " (% APOSTADOS)" : " (% REALES)");
}

} // namespace

std::string SoloDecimales(const std::string& texto) {
    std::string aceptado;
    for (const char c : texto)
        if (FiltroTecla(aceptado, static_cast<unsigned char>(c), ModoDecimales).Tecla >= ' ') aceptado += c;
    return aceptado;
}

bool SinBlancos(const TextosPorcentajes& textos, TablaCR tabla, Entorno& entorno) {
    for (size_t i = 0; i < textos.size(); ++i)
        if (EnBlanco(textos[i])) return Fallo(entorno, ErrorEnNumero(i, "EL % ESTA EN BLANCO", tabla));
    return true;
}

bool SinErrores(const TextosPorcentajes& textos, TablaCR tabla, Entorno& entorno) {
    double valor = 0;
    for (size_t i = 0; i < textos.size(); ++i)
        if (!EnBlanco(textos[i]) && !LeerDecimal(textos[i], valor))
            return Fallo(entorno, ErrorEnNumero(i, "EL % NO ES UN NUMERO VALIDO", tabla));
    return true;
}

bool AbrirPorcentajesCR(const std::string& ruta, TextosPorcentajes& textos, Entorno& entorno) {
    const auto poner = [&](int n, const std::string& texto, double) {
        textos[static_cast<size_t>(n - 1)] = texto;
        return true;
    };
    return LeerPorcentajes(ruta, poner) || Fallo(entorno, "ERROR AL ABRIR LOS PORCENTAJES");
}

void GuardarPorcentajesCR(const TextosPorcentajes& textos, TablaCR tabla, Entorno& entorno) {
    if (!SinErrores(textos, tabla, entorno)) return;
    const std::string ruta = PedirPorcentajesGuardar(entorno);
    if (!ruta.empty()) GuardarPorcentajes(entorno, ruta, textos);
}
