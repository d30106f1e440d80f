// What the routines of the spread share: the sweep that counts, and the bars made of its counts.
#pragma once

#include <string>
#include <string_view>

#include "NucleosReparto.h"
#include "Preparar.h"
#include "Reparto.h"
#include "Tabla.h"

/// Live bets by value, from the first value on.
using Cuentas = std::vector<CuentaValor>;
using Apartados = std::vector<ApartadoReparto>;

/// `N` rows of bytes for the values of a stretch.
template <size_t N>
class FilasDeTramo {
  public:
    FilasDeTramo() {
        tabla_.DimensionarSinLimpiar(static_cast<int>(N), ApuestasPorTurno + 64);
        for (size_t k = 0; k < N; ++k) filas_[k] = tabla_.Fila(static_cast<int>(k) + 1);
    }
    uint8_t* operator[](size_t k) const { return filas_[k]; }
    const Filas<N>& Todas() const { return filas_; }

  private:
    Tabla tabla_;
    Filas<N> filas_;
};

/// Sweeps the table as `Barrer` does, its flags those of `EstadoApuesta`.
template <class Contar>
void BarrerContando(EstadoTrabajo& trabajo, Entorno& entorno, Contar contar) {
    Barrer(trabajo, entorno, [&](const Tramo& tramo) {
        const int64_t fin = (tramo.n + 63) / 64 * 64;
        std::memset(tramo.eliminada + tramo.n, ApuestaMuerta, static_cast<size_t>(fin - tramo.n));
        contar(tramo);
        return 0;
    });
}

/// Live bets by the byte below `valores` that `responder(tramo, respuestas)` writes for them.
template <class Responder>
Cuentas ContarRespuestas(EstadoTrabajo& trabajo, Entorno& entorno, size_t valores, Responder responder) {
    const FilasDeTramo<1> respuestas;
    CuentaPalabras cuenta;
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        responder(tramo, respuestas[0]);
        NucleoContarBytes(tramo, respuestas[0], nullptr, cuenta);
    });
    Cuentas cuentas;
    for (size_t v = 0; v < valores; ++v) cuentas.push_back(cuenta.De(v));
    return cuentas;
}

/// The same for counts of 0 to 6, which are counted faster.
template <class Responder>
Cuentas ContarAciertos(EstadoTrabajo& trabajo, Entorno& entorno, Responder responder) {
    const FilasDeTramo<1> respuestas;
    CuentaAciertos cuenta{};
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        responder(tramo, respuestas[0]);
        NucleoContarAciertos(tramo, respuestas[0], cuenta);
    });
    return Cuentas(cuenta.begin(), cuenta.end());
}

/// Live bets by `valor(tramo, i)`, below `valores`, which may be more than a CuentaPalabras holds.
template <class Valor>
Cuentas ContarUnaAUna(EstadoTrabajo& trabajo, Entorno& entorno, size_t valores, Valor valor) {
    Cuentas cuentas(valores);
    BarrerContando(trabajo, entorno, [&](const Tramo& tramo) {
        for (int64_t i = 0; i < tramo.n; ++i) {
            if (tramo.eliminada[i] == ApuestaMuerta) continue;
            cuentas[static_cast<size_t>(valor(tramo, i))].Sumar({1, tramo.eliminada[i] == ApuestaPasa});
        }
    });
    return cuentas;
}

/// Counts of two rows together, taken apart: by the low byte and by the high one.
Cuentas PorBaja(const CuentaPalabras& cuenta, size_t valores);
Cuentas PorAlta(const CuentaPalabras& cuenta, size_t valores);

/// A section with a bar for each count. The labels are the values.
ApartadoReparto Apartado(std::string nombre, const Cuentas& cuentas, int32_t primero = 0);
/// The same without the empty bars at both ends.
ApartadoReparto ApartadoRecortado(std::string nombre, const Cuentas& cuentas, int32_t primero = 0);
/// Figures from `primera` of the list on, counted by their place in it; values are places in the filter's
/// own list.
ApartadoReparto ApartadoFiguras(const Cuentas& cuentas, size_t primera, size_t figuras);

/// The identity, for kernels that answer by a table of counts.
inline constexpr PorCuenta LaMismaCuenta{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

/// Live bets by how many of their numbers are of the class.
template <class EsDeClase>
Cuentas RepartirCuenta(EstadoTrabajo& trabajo, Entorno& entorno, EsDeClase esDeClase) {
    const TablasCuenta tablas{DeCadaPosicion(trabajo, esDeClase), LaMismaCuenta};
    return ContarAciertos(trabajo, entorno, [&](const Tramo& tramo, uint8_t* respuestas) {
        RespuestasCuenta(tramo, tablas, respuestas);
    });
}

/// Live bets by how many of `n` groups hold, as `responder` tells.
template <class Responder>
Apartados RepartirGrupos(EstadoTrabajo& trabajo, Entorno& entorno, size_t n, Responder responder) {
    return {ApartadoRecortado("Grupos que se cumplen", ContarRespuestas(trabajo, entorno, n + 1, responder))};
}
