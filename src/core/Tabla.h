// The byte table that holds systems of bets.
//
//     Tabla tabla(7, 1000);          // 7 rows by 1000 bets, all zero
//     tabla(1, 1) = 4;               // first number of the first bet
//     const uint8_t* n1 = tabla.Fila(1);   // n1[0] is bet 1, n1[999] bet 1000
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>

/// Rows of bytes, one row of all bets after the other, in a single allocation. Rows and bets are
/// counted from 1. Each row starts on a 64-byte boundary and is followed by at least 64 readable
/// and writable bytes, so a sweep may run past the last bet by one vector.
class Tabla {
  public:
    Tabla() = default;
    Tabla(int filas, int64_t apuestas) { Dimensionar(filas, apuestas); }
    Tabla(Tabla&& otra) noexcept { Intercambiar(otra); }
    Tabla& operator=(Tabla&& otra) noexcept {
        Intercambiar(otra);
        return *this;
    }
    Tabla(const Tabla& otra);
    Tabla& operator=(const Tabla& otra);
    ~Tabla() { Vaciar(); }

    /// Gives the table this shape, all zero. Throws std::bad_alloc, and then the table is empty.
    void Dimensionar(int filas, int64_t apuestas);

    /// Gives the table this shape and leaves its content unspecified: for a caller that writes
    /// every cell. Keeps the memory it already has when it is enough.
    void DimensionarSinLimpiar(int filas, int64_t apuestas);

    /// Drops the bets behind the first `apuestas`; the rows stay where they are.
    void Acortar(int64_t apuestas) {
        assert(apuestas <= apuestas_);
        apuestas_ = apuestas;
    }

    /// Frees the memory: no rows, no bets.
    void Vaciar() noexcept;

    int Filas() const { return filas_; }
    int64_t Apuestas() const { return apuestas_; }

    uint8_t& operator()(int fila, int64_t apuesta) {
        assert(fila >= 1 && fila <= filas_ && apuesta >= 1 && apuesta <= apuestas_);
        return datos_[(fila - 1) * paso_ + (apuesta - 1)];
    }
    uint8_t operator()(int fila, int64_t apuesta) const {
        assert(fila >= 1 && fila <= filas_ && apuesta >= 1 && apuesta <= apuestas_);
        return datos_[(fila - 1) * paso_ + (apuesta - 1)];
    }

    /// The row's first bet; the following bets are contiguous.
    uint8_t* Fila(int fila) {
        assert(fila >= 1 && fila <= filas_);
        return datos_ + (fila - 1) * paso_;
    }
    const uint8_t* Fila(int fila) const {
        assert(fila >= 1 && fila <= filas_);
        return datos_ + (fila - 1) * paso_;
    }

    bool operator==(const Tabla& otra) const;

  private:
    void Intercambiar(Tabla& otra) noexcept;

    uint8_t* datos_ = nullptr;
    int filas_ = 0;
    int64_t apuestas_ = 0;
    int64_t paso_ = 0;      // bytes from a row to the next
    int64_t capacidad_ = 0; // bytes held
};
