#include "LogicaFiltroSencillo.h"

void LogicaFiltroSencillo::Abrir() {
    for (size_t i = 0; i < filtro.Tablas.size(); ++i) txtAciertos[i] = TextoLista(filtro.Tabla(sesion.condiciones, i));
    for (size_t i = 0; i < filtro.Casillas.size(); ++i) chkFigura[i] = filtro.Marcas(sesion.condiciones)[i] == 1;
}

LogicaAciertos LogicaFiltroSencillo::AbrirModificar(size_t i) {
    return AbrirAciertos(filtro.Tabla(sesion.condiciones, i), filtro.MinimoAcierto);
}

void LogicaFiltroSencillo::CerrarModificar(size_t i, const LogicaAciertos& aciertos) {
    CerrarAciertos(aciertos, marco, filtro.Tabla(sesion.condiciones, i), txtAciertos[i]);
}

void LogicaFiltroSencillo::PulsarCasilla(size_t i, bool marcada) {
    chkFigura[i] = marcada;
    if (filtro.GuardaAlPulsar) filtro.Marcas(sesion.condiciones)[i] = marcada;
    marco.ActivarFiltro();
}

void LogicaFiltroSencillo::PulsarBarra(size_t apartado, int32_t valor) {
    if (apartado < filtro.Tablas.size()) {
        if (valor < filtro.MinimoAcierto) return;
        LogicaAciertos aciertos = AbrirModificar(apartado);
        aciertos.Pulsar(valor);
        CerrarModificar(apartado, aciertos);
    } else if (const auto i = static_cast<size_t>(valor); i < filtro.Casillas.size()) {
        PulsarCasilla(i, !chkFigura[i]);
    }
}

void LogicaFiltroSencillo::Volcar(Condiciones& condiciones) const {
    if (!filtro.GuardaAlPulsar)
        for (size_t i = 0; i < filtro.Casillas.size(); ++i) filtro.Marcas(condiciones)[i] = chkFigura[i];
}

bool LogicaFiltroSencillo::PuedeCerrar() {
    Volcar(sesion.condiciones);
    return true;
}
