#include "LogicaReduccion.h"

#include <algorithm>

#include "Sesiones.h"
#include "modGeneral.h"

void LogicaReduccion::Abrir() {
    const AjustesReduccion& ajustes = sesion.trabajo.Reduccion;
    const bool porcentajeValido = ajustes.PorcentajeReduccion >= 1 && ajustes.PorcentajeReduccion <= 100;
    cboTipoReduccion = std::clamp<int>(ajustes.TipoReduccion, 0, 4);
    cboPorcentaje = porcentajeValido ? 100 - ajustes.PorcentajeReduccion : 0;
    optTipo = ajustes.ActivarNumeroApuestas != 0 ? 0 : 1;
    txtNColumnas = std::to_string(ajustes.NApuestasExactas);
    chkApuestasExactas = ajustes.ApuestasExactas != 0;
    chkActivarCiclos = ajustes.ActivarCiclos != 0;
    chkAleatorio = ajustes.Aleatorio != 0;
    Habilitar();
}

void LogicaReduccion::CambiarTipoReduccion(int indice) {
    cboTipoReduccion = indice;
    ActivarFila();
}

void LogicaReduccion::CambiarPorcentaje(int indice) {
    cboPorcentaje = indice;
    ActivarFila();
}

void LogicaReduccion::PulsarTipo(int opcion) {
    optTipo = opcion;
    if (optTipo == 1) chkApuestasExactas = false;
    Habilitar();
    ActivarFila();
}

void LogicaReduccion::CambiarApuestasExactas(bool marcado) {
    chkApuestasExactas = marcado;
    ActivarFila();
}

void LogicaReduccion::CambiarActivarCiclos(bool marcado) {
    chkActivarCiclos = marcado;
    ActivarFila();
}

void LogicaReduccion::CambiarAleatorio(bool marcado) {
    chkAleatorio = marcado;
    ActivarFila();
}

void LogicaReduccion::PulsarActivar() {
    AlternarFila(sesion, FilaReduccion);
}

bool LogicaReduccion::Activo() const {
    return sesion.condiciones.lstFiltros[FilaReduccion].Activo;
}

bool LogicaReduccion::PuedeCerrar() {
    int32_t apuestas = 1;
    if (!Recortar(txtNColumnas).empty() && (!LeerEntero(txtNColumnas, apuestas) || apuestas < 0))
        return Fallo(entorno, "ERROR: El número de apuestas debe ser un entero entre 1 y 2147483647");
    AjustesReduccion& ajustes = sesion.trabajo.Reduccion;
    ajustes.TipoReduccion = static_cast<int16_t>(cboTipoReduccion);
    ajustes.PorcentajeReduccion = static_cast<int16_t>(100 - cboPorcentaje);
    ajustes.NApuestasExactas = apuestas;
    ajustes.ActivarNumeroApuestas = optTipo == 0;
    ajustes.ActivarCiclos = chkActivarCiclos;
    ajustes.Aleatorio = chkAleatorio;
    ajustes.ApuestasExactas = chkApuestasExactas;
    sesion.condiciones.lstFiltros[FilaReduccion].Activo = ajustes.TipoReduccion != 0;
    ActualizarFila(sesion, FilaReduccion);
    return true;
}

std::string LogicaReduccion::TextoTipoReduccion(int indice) {
    return indice == 0 ? "Sin reducción" : "Reducción al " + std::to_string(6 - indice);
}

std::string LogicaReduccion::TextoPorcentaje(int indice) {
    return "Asegurar el " + std::to_string(100 - indice) + "%";
}

void LogicaReduccion::Habilitar() {
    txtNColumnasHabilitado = chkApuestasExactasHabilitado = optTipo == 0;
    cboPorcentajeHabilitado = optTipo == 1;
}

void LogicaReduccion::ActivarFila() {
    sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
}
