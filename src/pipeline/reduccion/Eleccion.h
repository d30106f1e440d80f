// The ways in which the coverage route chooses its next bet. All choose the bet of the highest gain and
// among equals the first in visiting order; they have the same three routines:
//     void Comenzar(const int32_t* orden);   // a cycle; null is the order of the table, else bets from 1
//     int32_t Elegir();                      // next bet, from 0; -1 when nothing is left to cover
//     int32_t Ganancia();                    // bets that it covers anew
#pragma once

#include <optional>
#include <vector>

#include "Conjunto.h"
#include "Cotas.h"
#include "CuentasAl4.h"
#include "CuentasAl5.h"
#include "EleccionPorExpansion.h"
#include "EleccionPorFilas.h"

/// A bet covers itself alone: the visiting order it is.
class EleccionDirecta {
  public:
    explicit EleccionDirecta(const Conjunto& conjunto) : conjunto_(conjunto) {}
    void Comenzar(const int32_t* orden) {
        orden_ = orden;
        siguiente_ = 0;
    }
    int32_t Elegir() {
        if (siguiente_ == conjunto_.Apuestas()) return -1;
        const int32_t i = siguiente_++;
        return orden_ == nullptr ? i : orden_[i] - 1;
    }
    int32_t Ganancia() const { return 1; }

  private:
    const Conjunto& conjunto_;
    const int32_t* orden_ = nullptr;
    int32_t siguiente_ = 0;
};

/// One bound for each bet, in visiting order. `Cuentas` is CuentasAl5 or CuentasAl4.
template <class Cuentas>
class EleccionPorApuestas {
  public:
    EleccionPorApuestas(const Conjunto& conjunto, Cuentas& cuentas) : conjunto_(conjunto), cuentas_(cuentas) {}

    void Comenzar(const int32_t* orden) {
        orden_ = orden;
        cuentas_.Reponer();
        if (inicial_.empty()) {
            inicial_.assign(conjunto_.Apuestas(), static_cast<uint16_t>(cuentas_.Ganancia(0)));
            for (int32_t i = 1; i < conjunto_.Apuestas() && !conjunto_.Completo(); ++i)
                inicial_[i] = static_cast<uint16_t>(cuentas_.Ganancia(i));
        }
        cotas_.Comenzar(conjunto_.Apuestas(), [&](int32_t i) { return inicial_[Visitada(i)]; });
    }

    int32_t Elegir() {
        const int32_t lugar = cotas_.Siguiente([&](int32_t i) { return cuentas_.Ganancia(Visitada(i)); });
        if (lugar < 0) return -1;
        const int32_t j = Visitada(lugar);
        cuentas_.Cubrir(j);
        return j;
    }

    int32_t Ganancia() const { return cotas_.Ganancia(); }

  private:
    int32_t Visitada(int32_t i) const { return orden_ == nullptr ? i : orden_[i] - 1; }

    const Conjunto& conjunto_;
    Cuentas& cuentas_;
    const int32_t* orden_ = nullptr;
    std::vector<uint16_t> inicial_; // gains before any choice, by bet
    Cotas cotas_;
};

/// "al 5": by rows while the order is the table's own and the system fills enough of them.
class EleccionAl5 {
  public:
    EleccionAl5(const Conjunto& conjunto, CuentasAl5& cuentas) : conjunto_(conjunto), cuentas_(cuentas) {}

    void Comenzar(const int32_t* orden) {
        const bool porFilas =
            orden == nullptr && conjunto_.Ordenado() && conjunto_.Apuestas() >= cuentas_.Rangos5().Cuantos() / 8;
        if (porFilas && !filas_) filas_.emplace(conjunto_, cuentas_);
        if (!porFilas) filas_.reset();
        if (!porFilas && !apuestas_) apuestas_.emplace(conjunto_, cuentas_);
        porFilas ? filas_->Comenzar() : apuestas_->Comenzar(orden);
    }
    int32_t Elegir() { return filas_ ? filas_->Elegir() : apuestas_->Elegir(); }
    int32_t Ganancia() const { return filas_ ? filas_->Ganancia() : apuestas_->Ganancia(); }

  private:
    const Conjunto& conjunto_;
    CuentasAl5& cuentas_;
    std::optional<EleccionPorFilas> filas_;
    std::optional<EleccionPorApuestas<CuentasAl5>> apuestas_;
};

/// "al 4": by the whole base when the system fills enough of it.
class EleccionAl4 {
  public:
    EleccionAl4(const Conjunto& conjunto, CuentasAl4& cuentas) {
        if (conjunto.Apuestas() >= cuentas.Rangos6().Cuantos() / 8)
            expansion_.emplace(conjunto, cuentas);
        else
            apuestas_.emplace(conjunto, cuentas);
    }

    void Comenzar(const int32_t* orden) { expansion_ ? expansion_->Comenzar(orden) : apuestas_->Comenzar(orden); }
    int32_t Elegir() { return expansion_ ? expansion_->Elegir() : apuestas_->Elegir(); }
    int32_t Ganancia() const { return expansion_ ? expansion_->Ganancia() : apuestas_->Ganancia(); }

  private:
    std::optional<EleccionPorExpansion> expansion_;
    std::optional<EleccionPorApuestas<CuentasAl4>> apuestas_;
};
