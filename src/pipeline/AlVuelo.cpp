#include "AlVuelo.h"

#include <algorithm>
#include <cstring>

#include "Boleto.h"
#include "GenerarApuestas.h"
#include "Supervivientes.h"
#include "TablaFiltros.h"

namespace {

// Which conditions eliminate a bet: none, one by its row from 1, or several.
constexpr uint8_t Ninguna = 0, Varias = 255;

bool Cuenta(const Sesion& sesion, size_t k) {
    return DisponibleEnJuego(static_cast<int>(k), sesion.trabajo);
}

bool EnMarcha(const Sesion& sesion, size_t k) {
    return sesion.condiciones.lstFiltros[k].Activo && Cuenta(sesion, k);
}

// Takes over what row `k` has just marked, and brings the bets back to life.
void Apuntar(uint8_t* quien, uint8_t* eliminada, int64_t n, size_t k) {
    const auto fila = static_cast<uint8_t>(k + 1);
    for (int64_t i = 0; i < n; ++i) {
        const uint8_t otra = quien[i] == Ninguna ? fila : Varias;
        quien[i] = eliminada[i] != 0 ? otra : quien[i];
        eliminada[i] = 0;
    }
}

// Several tables, because neighbours tend to share their entry and would wait for each other.
std::array<int32_t, 256> Recontar(const uint8_t* quien, int64_t n) {
    constexpr int64_t Tablas = 4;
    std::array<std::array<int32_t, 256>, Tablas> parcial{};
    for (int64_t i = 0; i < n; ++i) ++parcial[static_cast<size_t>(i % Tablas)][quien[i]];
    std::array<int32_t, 256> cuentas{};
    for (const auto& tabla : parcial)
        for (size_t q = 0; q < cuentas.size(); ++q) cuentas[q] += tabla[q];
    return cuentas;
}

int32_t Eliminar(Sesion& aparte, Entorno& entorno, size_t k) {
    return TablaFiltros[k].Filtrar(aparte, entorno);
}

} // namespace

std::unique_ptr<Sesion> ApartarBase(const Sesion& sesion) {
    const EstadoTrabajo& origen = sesion.trabajo;
    auto aparte = std::make_unique<Sesion>();
    EstadoTrabajo& trabajo = aparte->trabajo;
    trabajo.cboTipoJuego = origen.cboTipoJuego;
    trabajo.cboTipoCombinacion = origen.cboTipoCombinacion;
    trabajo.lblNumero = origen.lblNumero;
    LeerBase(trabajo);
    if (origen.cboTipoCombinacion == PronosticoDesdeArchivo) {
        TraducirImportadas(origen, trabajo, 6);
        trabajo.ApuestasEnTabla = static_cast<int32_t>(trabajo.TablaApuestas.Apuestas());
    }
    aparte->condiciones = sesion.condiciones;
    return aparte;
}

void ExpandirBase(Sesion& aparte, Entorno& entorno) {
    EstadoTrabajo& trabajo = aparte.trabajo;
    if (trabajo.ApuestaEliminada.Filas() == 1) return;
    if (trabajo.cboTipoCombinacion != PronosticoDesdeArchivo && trabajo.NumerosBase >= 6) {
        GenerarApuestas(trabajo, entorno, 6, 6);
        trabajo.ApuestasEnTabla = static_cast<int32_t>(trabajo.TablaApuestas.Apuestas());
    }
    PrepararEliminadas(trabajo);
}

CuentaAlVuelo ContarAlVuelo(Sesion& aparte, Entorno& entorno) {
    EstadoTrabajo& trabajo = aparte.trabajo;
    const int64_t n = trabajo.ApuestasEnTabla;
    CuentaAlVuelo cuenta{trabajo.ApuestasEnTabla, trabajo.ApuestasEnTabla, {}};
    PrepararEliminadas(trabajo);
    Tabla quien(1, n);
    for (size_t k = 0; k < NFiltros; ++k) {
        if (!EnMarcha(aparte, k)) continue;
        cuenta.Costes[k] = {Eliminar(aparte, entorno, k), 0};
        Apuntar(quien.Fila(1), trabajo.ApuestaEliminada.Fila(1), n, k);
    }
    const auto cuentas = Recontar(quien.Fila(1), n);
    cuenta.Pasan = cuentas[Ninguna];
    for (size_t k = 0; k < NFiltros; ++k)
        if (EnMarcha(aparte, k)) cuenta.Costes[k]->Propia = cuentas[k + 1];
    return cuenta;
}

void CostearInactivas(Sesion& aparte, Entorno& entorno, CuentaAlVuelo& cuenta) {
    for (size_t k = 0; k < NFiltros; ++k) {
        if (aparte.condiciones.lstFiltros[k].Activo || !Cuenta(aparte, k)) continue;
        PrepararEliminadas(aparte.trabajo);
        cuenta.Costes[k] = {Eliminar(aparte, entorno, k), std::nullopt};
    }
}

void EliminarConOtras(Sesion& aparte, Entorno& entorno, int k, Tabla& eliminada) {
    PrepararEliminadas(aparte.trabajo);
    for (size_t otra = 0; otra < NFiltros; ++otra)
        if (otra != static_cast<size_t>(k) && EnMarcha(aparte, otra)) Eliminar(aparte, entorno, otra);
    eliminada = std::move(aparte.trabajo.ApuestaEliminada);
    PrepararEliminadas(aparte.trabajo);
}

int32_t PasanTambien(Sesion& aparte, Entorno& entorno, int k, const Tabla& eliminada) {
    EstadoTrabajo& trabajo = aparte.trabajo;
    const auto n = static_cast<size_t>(trabajo.ApuestasEnTabla);
    std::memcpy(trabajo.ApuestaEliminada.Fila(1), eliminada.Fila(1), n);
    const auto vivas = std::count(eliminada.Fila(1), eliminada.Fila(1) + n, uint8_t{0});
    const int32_t pasan = static_cast<int32_t>(vivas) - Eliminar(aparte, entorno, static_cast<size_t>(k));
    PrepararEliminadas(trabajo);
    return pasan;
}
