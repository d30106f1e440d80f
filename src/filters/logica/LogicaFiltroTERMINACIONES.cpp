#include "LogicaFiltroTERMINACIONES.h"

#include <algorithm>

void LogicaFiltroTERMINACIONES::Abrir() {
    const RegistroTERMINACIONES& registro = sesion.condiciones.TERMINACIONES;
    for (size_t d = 0; d < txtAciertos.size(); ++d) txtAciertos[d] = TextoLista(registro.TerminadosEn[d]);
    txtSumaTerminacionesMinimo = std::to_string(registro.SumaMinima);
    txtSumaTerminacionesMaximo = std::to_string(registro.SumaMaxima);
    for (size_t i = 0; i < chkFigura.size(); ++i) chkFigura[i] = registro.FigurasTerminaciones[i] == 1;
}

LogicaAciertos LogicaFiltroTERMINACIONES::AbrirModificar(size_t d) {
    return AbrirAciertos(sesion.condiciones.TERMINACIONES.TerminadosEn[d], 0);
}

void LogicaFiltroTERMINACIONES::CerrarModificar(size_t d, const LogicaAciertos& aciertos) {
    CerrarAciertos(aciertos, marco, sesion.condiciones.TERMINACIONES.TerminadosEn[d], txtAciertos[d]);
}

void LogicaFiltroTERMINACIONES::CambiarMinimo(const std::string& texto) {
    CambiarCampo(marco, txtSumaTerminacionesMinimo, texto);
}

void LogicaFiltroTERMINACIONES::CambiarMaximo(const std::string& texto) {
    CambiarCampo(marco, txtSumaTerminacionesMaximo, texto);
}

void LogicaFiltroTERMINACIONES::PulsarFigura(size_t i, bool marcada) {
    chkFigura[i] = marcada;
    marco.ActivarFiltro();
}

bool LogicaFiltroTERMINACIONES::Validar() {
    if (EnBlanco(txtSumaTerminacionesMinimo))
        return Fallo(entorno, "ERROR: el valor de la suma de terminaciones mínima esta en blanco");
    if (EnBlanco(txtSumaTerminacionesMaximo))
        return Fallo(entorno, "ERROR: el valor de la suma de terminaciones máxima esta en blanco");
    if (ValorCampo(txtSumaTerminacionesMinimo) > ValorCampo(txtSumaTerminacionesMaximo))
        return Fallo(entorno, "ERROR: la suma de terminaciones máxima debe ser mayor que la mínima");
    if (ValorCampo(txtSumaTerminacionesMaximo) > UINT8_MAX)
        return Fallo(entorno,
                     "ERROR: la suma de terminaciones máxima no puede ser mayor que " + std::to_string(UINT8_MAX));
    return true;
}

void LogicaFiltroTERMINACIONES::PulsarBarra(size_t apartado, int32_t valor) {
    const size_t suma = txtAciertos.size(), i = static_cast<size_t>(valor);
    if (apartado < suma) {
        LogicaAciertos aciertos = AbrirModificar(apartado);
        aciertos.Pulsar(valor);
        CerrarModificar(apartado, aciertos);
    } else if (apartado > suma && i < chkFigura.size()) {
        PulsarFigura(i, !chkFigura[i]);
    }
}

void LogicaFiltroTERMINACIONES::Volcar(Condiciones& condiciones) const {
    RegistroTERMINACIONES& registro = condiciones.TERMINACIONES;
    std::copy(chkFigura.begin(), chkFigura.end(), registro.FigurasTerminaciones.begin());
    const int32_t minimo = ValorCampo(txtSumaTerminacionesMinimo), maximo = ValorCampo(txtSumaTerminacionesMaximo);
    if (minimo > UINT8_MAX || maximo > UINT8_MAX) return;
    registro.SumaMinima = static_cast<uint8_t>(minimo);
    registro.SumaMaxima = static_cast<uint8_t>(maximo);
}

bool LogicaFiltroTERMINACIONES::PuedeCerrar() {
    if (!Validar()) return false;
    Volcar(sesion.condiciones);
    return true;
}
