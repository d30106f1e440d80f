#include "Supervivientes.h"

#include <algorithm>
#include <cstring>

#include "Traslados.h"

void PrepararEliminadas(EstadoTrabajo& trabajo) {
    const auto n = static_cast<size_t>(trabajo.ApuestasEnTabla);
    trabajo.ApuestaEliminada.DimensionarSinLimpiar(1, trabajo.ApuestasEnTabla);
    std::memset(trabajo.ApuestaEliminada.Fila(1), 0, n);
    std::memset(trabajo.ApuestaEliminada.Fila(1) + n, 1, 64);
}

void TraducirImportadas(const EstadoTrabajo& origen, EstadoTrabajo& trabajo, int filas) {
    PorPosicion posicion{};
    for (int p = 1; p <= trabajo.NumerosBase; ++p)
        posicion[trabajo.BaseNumeros[static_cast<size_t>(p)]] = static_cast<uint8_t>(p);
    // The count is shared with other readers of files and may exceed the bets that are here.
    const int64_t n = std::min<int64_t>(origen.NApuestasImportadas, origen.ApuestasImportadas.Apuestas());
    trabajo.TablaApuestas.DimensionarSinLimpiar(filas, n);
    if (n == 0) return;
    for (int r = 1; r <= 6; ++r)
        Traducir(origen.ApuestasImportadas.Fila(r), n, posicion, trabajo.TablaApuestas.Fila(r));
    if (filas == 7)
        std::memcpy(trabajo.TablaApuestas.Fila(7), origen.ApuestasImportadas.Fila(7), static_cast<size_t>(n));
}

void CopiarSupervivientes(EstadoTrabajo& trabajo) {
    const int64_t n = trabajo.ApuestasEnTabla;
    uint8_t* eliminada = trabajo.ApuestaEliminada.Fila(1);
    std::memset(eliminada + n, 1, 64);
    trabajo.ApuestasCondicionadas.DimensionarSinLimpiar(trabajo.TablaApuestas.Filas(), trabajo.Contador.Condicionadas);
    Compactar(trabajo.TablaApuestas, eliminada, n, trabajo.ApuestasCondicionadas);
}

void TraducirCondicionadas(EstadoTrabajo& trabajo) {
    const Tabla& origen = trabajo.ApuestasCondicionadas;
    const int64_t n = origen.Apuestas();
    PorPosicion numero{};
    for (size_t p = 1; p <= static_cast<size_t>(trabajo.NumerosBase); ++p) numero[p] = trabajo.BaseNumeros[p];
    trabajo.ApuestasReducidas.DimensionarSinLimpiar(7, n);
    for (int r = 1; r <= 6; ++r) Traducir(origen.Fila(r), n, numero, trabajo.ApuestasReducidas.Fila(r));
    if (origen.Filas() == 7)
        std::memcpy(trabajo.ApuestasReducidas.Fila(7), origen.Fila(7), static_cast<size_t>(n));
    else
        std::memset(trabajo.ApuestasReducidas.Fila(7), 0, static_cast<size_t>(n));
}
