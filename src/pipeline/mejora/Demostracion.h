// Proofs that no smaller system exists.
#pragma once

#include "Familia.h"
#include "Recubrimiento.h"

/// Tries to cover everything with as many bets as the bound says, bet by bet for the row that leaves the
/// least choice; where that is impossible the bound grows by one. In a whole base, choices that are alike
/// for all that was chosen before are tried once. It gives up after a certain amount of work. Meant for
/// bounds of a few bets. Memory: 8 bytes a row and 12 a column.
class Demostracion {
  public:
    /// `problema` is that of the bets of `familia` among themselves, all to be covered. Both outlive it.
    Demostracion(const Familia& familia, const Recubrimiento& problema, int32_t cota);

    /// One choice made or taken back.
    void Paso();

    /// No system has fewer bets than this.
    int32_t Cota() const { return cota_; }

    /// A system of as many bets as the bound, none before it is found.
    const std::vector<int32_t>& Hallada() const { return hallada_; }

    /// Whether steps do nothing any more: a system was found, or too much work done.
    bool Acabada() const { return !hallada_.empty() || trabajo_ > MaximoTrabajo; }

    /// Visits of rows and columns so far.
    int64_t Trabajo() const { return trabajo_; }

  private:
    static constexpr int64_t MaximoTrabajo = int64_t{1} << 35;

    struct Opcion {
        int32_t columna;
        uint64_t clase; // those of one class are alike
    };
    struct Nivel {
        std::vector<uint64_t> partes{}; // of the base, told apart by what was chosen
        std::vector<Opcion> opciones{};
        size_t siguiente = 0;
        int32_t puesta = -1;
        std::vector<int32_t> vetadas{};
    };

    void Abrir();
    void Cerrar();
    void Retirar(Nivel& nivel);
    bool PonerSiguiente(Nivel& nivel);
    void Poner(int32_t columna);
    void Quitar(int32_t columna);
    void Vetar(int32_t columna, int32_t sentido);
    bool Cabe();
    int32_t FilaConMenosOpciones();
    uint64_t Clase(const std::vector<uint64_t>& partes, int32_t columna) const;

    const Familia& familia_;
    const Recubrimiento& p_;
    int32_t cota_;
    std::vector<int32_t> veces_, opciones_;  // by row: bets that cover it, and that may still do so
    std::vector<int32_t> puntos_, vetos_;    // by column: rows it would cover anew; why it may not be chosen
    std::vector<int32_t> mejores_, hallada_; // the most points of as many columns as are left to choose
    std::vector<Nivel> niveles_;
    size_t abiertos_ = 0; // levels in use; the others keep their memory
    int32_t descubiertas_ = 0;
    int64_t trabajo_ = 0;
};
