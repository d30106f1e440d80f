#include "HistoriaCambios.h"

#include "Boleto.h"
#include "Sesiones.h"

HistoriaCambios::Paso::Paso(const Sesion& sesion)
    : juego(sesion.trabajo.cboTipoJuego), importacion(sesion.trabajo.Importacion),
      guardada(sesion.trabajo.CombinacionGuardada), numeros(sesion.trabajo.lblNumero),
      digitos(sesion.trabajo.lblReintegro), modo(sesion.trabajo.cboTipoCombinacion),
      tipoReintegro(sesion.trabajo.cboTipoReintegro), parametros(sesion.condiciones),
      reduccion(sesion.trabajo.Reduccion) {
    for (size_t k = 0; k < activas.size(); ++k) activas[k] = sesion.condiciones.lstFiltros[k].Activo;
}

bool HistoriaCambios::Paso::MismoTrabajo(const Paso& otro) const {
    return juego == otro.juego && importacion == otro.importacion &&
           (modo == PronosticoDesdeArchivo) == (otro.modo == PronosticoDesdeArchivo);
}

bool HistoriaCambios::Paso::Igual(const Paso& otro) const {
    return numeros == otro.numeros && digitos == otro.digitos && modo == otro.modo &&
           tipoReintegro == otro.tipoReintegro && activas == otro.activas && parametros == otro.parametros &&
           reduccion == otro.reduccion;
}

void HistoriaCambios::Paso::Poner(Sesion& sesion) const {
    EstadoTrabajo& trabajo = sesion.trabajo;
    const bool otrasMarcas = trabajo.lblNumero != numeros;
    trabajo.lblNumero = numeros;
    trabajo.lblReintegro = digitos;
    trabajo.cboTipoCombinacion = modo;
    trabajo.cboTipoReintegro = tipoReintegro;
    trabajo.Reduccion = reduccion;
    static_cast<Parametros&>(sesion.condiciones) = parametros;
    for (size_t k = 0; k < activas.size(); ++k) {
        sesion.condiciones.lstFiltros[k].Activo = activas[k];
        ActualizarFila(sesion, static_cast<int>(k));
    }
    if (otrasMarcas) ActualizarContadores(trabajo);
    trabajo.CombinacionGuardada = guardada;
}

void HistoriaCambios::Olvidar() {
    hechos_.clear();
    deshechos_.clear();
    actual_.clear();
}

void HistoriaCambios::Recordar(const Sesion& sesion) {
    const Paso ahora(sesion);
    if (!actual_.empty() && !ahora.MismoTrabajo(actual_.front())) Olvidar();
    if (actual_.empty()) {
        actual_.push_back(ahora);
        return;
    }
    Paso& antes = actual_.front();
    if (!ahora.Igual(antes)) {
        hechos_.push_back(antes);
        if (hechos_.size() > PasosMaximos) hechos_.pop_front();
        deshechos_.clear();
    } else if (ahora.guardada && !antes.guardada) {
        for (auto* pasos : {&hechos_, &deshechos_})
            for (Paso& paso : *pasos) paso.guardada = false;
    }
    antes = ahora;
}

void HistoriaCambios::Ir(Sesion& sesion, std::deque<Paso>& desde, std::deque<Paso>& hacia) {
    Recordar(sesion);
    if (desde.empty()) return;
    hacia.push_back(actual_.front());
    actual_.front() = desde.back();
    desde.pop_back();
    actual_.front().Poner(sesion);
}

void HistoriaCambios::Deshacer(Sesion& sesion) {
    Ir(sesion, hechos_, deshechos_);
}

void HistoriaCambios::Rehacer(Sesion& sesion) {
    Ir(sesion, deshechos_, hechos_);
}
