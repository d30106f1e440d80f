#include "Supervivientes.h"

#include <algorithm>
#include <cstring>

void PrepararEliminadas(EstadoTrabajo& trabajo) {
    const auto n = static_cast<size_t>(trabajo.ApuestasEnTabla);
    trabajo.ApuestaEliminada.DimensionarSinLimpiar(1, trabajo.ApuestasEnTabla);
    std::memset(trabajo.ApuestaEliminada.Fila(1), 0, n);
    std::memset(trabajo.ApuestaEliminada.Fila(1) + n, 1, 64);
}

void TraducirImportadas(EstadoTrabajo& trabajo) {
    std::array<uint8_t, 256> posicion{};
    for (int p = 1; p <= trabajo.NumerosBase; ++p)
        posicion[trabajo.BaseNumeros[static_cast<size_t>(p)]] = static_cast<uint8_t>(p);
    const int64_t n = trabajo.NApuestasImportadas;
    trabajo.TablaApuestas.DimensionarSinLimpiar(7, n);
    for (int r = 1; r <= 6; ++r)
        std::transform(trabajo.ApuestasImportadas.Fila(r), trabajo.ApuestasImportadas.Fila(r) + n,
                       trabajo.TablaApuestas.Fila(r), [&](uint8_t numero) { return posicion[numero]; });
    std::memcpy(trabajo.TablaApuestas.Fila(7), trabajo.ApuestasImportadas.Fila(7), static_cast<size_t>(n));
}

void CopiarSupervivientes(EstadoTrabajo& trabajo) {
    const Tabla& origen = trabajo.TablaApuestas;
    const uint8_t* eliminada = trabajo.ApuestaEliminada.Fila(1);
    trabajo.ApuestasCondicionadas.DimensionarSinLimpiar(origen.Filas(), trabajo.Contador.Condicionadas);
    for (int r = 1; r <= origen.Filas(); ++r) {
        const uint8_t* de = origen.Fila(r);
        uint8_t* a = trabajo.ApuestasCondicionadas.Fila(r);
        for (int64_t i = 0; i < trabajo.ApuestasEnTabla; ++i) {
            *a = de[i];
            a += eliminada[i] == 0;
        }
    }
}

void TraducirCondicionadas(EstadoTrabajo& trabajo) {
    const Tabla& origen = trabajo.ApuestasCondicionadas;
    const int64_t n = origen.Apuestas();
    trabajo.ApuestasReducidas.DimensionarSinLimpiar(7, n);
    for (int r = 1; r <= 6; ++r)
        std::transform(origen.Fila(r), origen.Fila(r) + n, trabajo.ApuestasReducidas.Fila(r),
                       [&](uint8_t posicion) { return trabajo.BaseNumeros[posicion]; });
    if (origen.Filas() == 7)
        std::memcpy(trabajo.ApuestasReducidas.Fila(7), origen.Fila(7), static_cast<size_t>(n));
    else
        std::memset(trabajo.ApuestasReducidas.Fila(7), 0, static_cast<size_t>(n));
}
