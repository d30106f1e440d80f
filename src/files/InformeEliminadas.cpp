#include "InformeEliminadas.h"

#include "Informes.h"
#include "TablaFiltros.h"
#include "TextoInforme.h"
#include "modGeneral.h"

std::string TextoApuestasEliminadas(const Sesion& sesion, const Entorno& entorno) {
    const EstadoTrabajo& trabajo = sesion.trabajo;
    const ListaFiltros& filas = sesion.condiciones.lstFiltros;
    const auto cuenta = [&](int64_t n) { return FormatoMiles(n, entorno.SeparadorMiles); };
    int64_t eliminadas = 0;
    for (size_t k = 0; k < NFiltros; ++k) eliminadas += filas[k].Eliminadas.value_or(0);
    TextoInforme t;
    t.Linea("TOTAL Apuestas Iniciales     : {}", cuenta(trabajo.ApuestasEnTabla));
    t.Linea("TOTAL Apuestas Eliminadas    : {}", cuenta(eliminadas));
    t.Linea("TOTAL Apuestas Condicionadas : {}", cuenta(trabajo.Contador.Condicionadas));
    t.Linea("TOTAL Apuestas Reducidas     : {}", cuenta(trabajo.Contador.Reducidas));
    t.Linea();
    t.Linea("Eliminadas por cada Filtro Activo:");
    for (size_t k = 0; k < NFiltros; ++k)
        if (filas[k].Activo) t.Linea("{}{}", TablaFiltros[k].Informe, cuenta(filas[k].Eliminadas.value_or(0)));
    return t.Texto;
}

bool VerApuestasEliminadas(const Sesion& sesion, Entorno& entorno) {
    return MostrarInforme(entorno, "TOMBOLERA_RESUMEN.txt", TextoApuestasEliminadas(sesion, entorno));
}
