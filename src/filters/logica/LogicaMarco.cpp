#include "LogicaMarco.h"

#include "Sesiones.h"
#include "modGeneral.h"

bool LogicaMarco::Activo() const {
    return sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo;
}

void LogicaMarco::ActivarFiltro() {
    sesion.condiciones.lstFiltros[static_cast<size_t>(k)].Activo = true;
}

void LogicaMarco::PulsarActivar() {
    AlternarFila(sesion, k);
}

std::string LogicaMarco::lblActivar() const {
    return std::string(k == FilaReduccion ? "Reducción " : "Condición ") + (Activo() ? "activada" : "desactivada");
}

std::string TextoDeCampo(const std::string& texto) {
    constexpr int soloDigitos = 1;
    std::string aceptado;
    for (const char c : texto)
        if (FiltroTecla(aceptado, static_cast<unsigned char>(c), soloDigitos).Tecla >= ' ') aceptado += c;
    return aceptado;
}

void CambiarCampo(LogicaMarco& marco, std::string& campo, const std::string& texto) {
    campo = TextoDeCampo(texto);
    marco.ActivarFiltro();
}

bool EnBlanco(const std::string& campo) {
    return Recortar(campo).empty();
}

int32_t ValorCampo(const std::string& campo) {
    int32_t valor = INT32_MAX;
    LeerEntero(campo, valor);
    return valor;
}

void MostrarIntervalo(const Intervalo& intervalo, std::string& minimo, std::string& maximo) {
    minimo = std::to_string(intervalo.Minimo);
    maximo = std::to_string(intervalo.Maximo);
}

void LeerIntervalo(const std::string& minimo, const std::string& maximo, Intervalo& intervalo) {
    const int32_t desde = ValorCampo(minimo), hasta = ValorCampo(maximo);
    if (desde <= MaximoIntervalo && hasta <= MaximoIntervalo)
        intervalo = {static_cast<int16_t>(desde), static_cast<int16_t>(hasta)};
}
