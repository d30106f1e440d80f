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

bool LogicaFiltroSencillo::PuedeCerrar() {
    if (!filtro.GuardaAlPulsar)
        for (size_t i = 0; i < filtro.Casillas.size(); ++i) filtro.Marcas(sesion.condiciones)[i] = chkFigura[i];
    return true;
}
