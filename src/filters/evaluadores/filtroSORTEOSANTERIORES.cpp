#include <algorithm>
#include <cstdlib>

#include "Apartados.h"
#include "EnOrden.h"
#include "Evaluadores.h"
#include "NucleosSorteos.h"
#include "Repartidores.h"
#include "SorteosAnteriores.h"
#include "SorteosDeBloque.h"

namespace {

// The position of each number in the base, 0 for one that it lacks; a draw may hold any byte.
using PosicionDeNumero = std::array<uint8_t, 256>;

PosicionDeNumero PosicionesDe(const EstadoTrabajo& trabajo) {
    PosicionDeNumero posicion{};
    for (size_t p = 1; p <= static_cast<size_t>(trabajo.NumerosBase); ++p)
        posicion[trabajo.BaseNumeros[p]] = static_cast<uint8_t>(p);
    posicion[0] = 0;
    return posicion;
}

std::vector<SorteoEnBase> SorteosEnBase(const Sorteos& sorteos, const BloqueSorteos& bloque,
                                        const PosicionDeNumero& posicion) {
    std::vector<SorteoEnBase> elegidos;
    const TramoDeSorteos tramo(bloque);
    for (const Sorteo& sorteo : sorteos) {
        if (!tramo.Contiene(sorteo)) continue;
        SorteoEnBase& elegido = elegidos.emplace_back();
        for (size_t j = 0; j < elegido.size(); ++j) elegido[j] = posicion[sorteo.numeros[j]];
    }
    return elegidos;
}

int32_t EliminarTodas(EstadoTrabajo& trabajo, Entorno& entorno) {
    const std::vector<uint8_t> ninguna(static_cast<size_t>(ApuestasPorTurno) + 128);
    return Barrer(trabajo, entorno, [&](const Tramo& tramo) { return NucleoVeredictos(tramo, ninguna.data()); });
}

// Estimated nanoseconds, from measurements: what a bet and a draw cost in each way.
ManeraSorteos LaMasCorta(const EstadoTrabajo& trabajo, size_t cuantosSorteos) {
    constexpr double porComparacion = 4, porApuesta = 10, porRespuesta = 0.9, porSorteo = 300, porConsulta = 8;
    const auto apuestas = static_cast<double>(trabajo.ApuestasEnTabla);
    const auto sorteos = static_cast<double>(cuantosSorteos);
    const bool entera = EsExpansionEntera(trabajo);
    const double comparando = apuestas * (porApuesta + sorteos * porComparacion);
    const double sumando = sorteos * porSorteo +
                           (entera ? apuestas * porRespuesta : ApuestasMaximas * porRespuesta + apuestas * porConsulta);
    if (comparando <= sumando) return ManeraSorteos::Comparando;
    return entera ? ManeraSorteos::Expansion : ManeraSorteos::Consultando;
}

// The record may hold any limits: a count lies between 0 and the number of draws.
int32_t FiltrarBloque(Sesion& sesion, Entorno& entorno, const BloqueSorteos& bloque, const PosicionDeNumero& posicion) {
    PreguntaSorteos pregunta{SorteosEnBase(sesion.condiciones.SorteosFiltro, bloque, posicion), bloque.acertarEN, 0, 0};
    const auto sorteos = static_cast<int32_t>(pregunta.Sorteos.size());
    pregunta.Minimo = std::max(bloque.aciertosMinimoSORTEOS, 0);
    pregunta.Maximo = std::min(bloque.aciertosMaximoSORTEOS, sorteos);
    if (pregunta.Minimo > pregunta.Maximo) return EliminarTodas(sesion.trabajo, entorno);
    if (pregunta.Minimo == 0 && pregunta.Maximo == sorteos) return 0;
    return FiltrarSorteos(LaMasCorta(sesion.trabajo, pregunta.Sorteos.size()), sesion.trabajo, entorno, pregunta);
}

} // namespace

int32_t FiltrarSORTEOSANTERIORES(Sesion& sesion, Entorno& entorno) {
    if (sesion.condiciones.SorteosFiltro.empty() || sesion.trabajo.ApuestasEnTabla == 0) return 0;
    const PosicionDeNumero posicion = PosicionesDe(sesion.trabajo);
    int32_t eliminadas = 0;
    for (const BloqueSorteos& bloque : sesion.condiciones.SORTEOSANTERIORES.grupo)
        if (EnVigor(bloque.acertarEN)) eliminadas += FiltrarBloque(sesion, entorno, bloque, posicion);
    return eliminadas;
}

// Without a table of draws every bet hits in none of them.
Apartados RepartirSORTEOSANTERIORES(Sesion& sesion, Entorno& entorno) {
    const PosicionDeNumero posicion = PosicionesDe(sesion.trabajo);
    const auto& grupos = sesion.condiciones.SORTEOSANTERIORES.grupo;
    Apartados apartados;
    for (size_t g = 0; g < grupos.size(); ++g) {
        if (!EnVigor(grupos[g].acertarEN)) continue;
        PreguntaSorteos pregunta{SorteosEnBase(sesion.condiciones.SorteosFiltro, grupos[g], posicion),
                                 grupos[g].acertarEN, 0, 0};
        const ManeraSorteos manera = LaMasCorta(sesion.trabajo, pregunta.Sorteos.size());
        apartados.push_back(ApartadoRecortado("Grupo " + std::to_string(g + 1),
                                              RepartirSorteos(manera, sesion.trabajo, entorno, std::move(pregunta))));
    }
    return apartados;
}
