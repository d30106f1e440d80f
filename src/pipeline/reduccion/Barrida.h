// The sweep of the sequential route: takes every bet that nothing taken before covers.
#pragma once

#include <bit>
#include <functional>
#include <vector>

#include "Conjunto.h"
#include "Rangos.h"
#include "Subconjuntos.h"

/// Two bets have T numbers in common when they share a T-subset. The T-subsets of the bets taken are
/// kept as one 64-bit mask for each (T-1)-subset: the greater positions that complete one.
template <int T>
class Barrida {
  public:
    /// `turno(i)`, the bets passed, is called every 100 bets or so; false stops the sweep.
    using Turno = std::function<bool(int32_t)>;

    explicit Barrida(const Conjunto& conjunto)
        : conjunto_(conjunto), r_(conjunto.n(), T - 1), r6_(conjunto.n(), 6), completan_(r_.Cuantos()) {}

    /// One sweep over the bets in this order, null for the table's own. Takes at most `tope` bets; when
    /// it would need one more `Excedida()` holds. False when it was stopped.
    bool Barrer(const int32_t* orden, int32_t tope, const Turno& turno) {
        completan_.assign(completan_.size(), 0);
        elegidas_.clear();
        tope_ = tope;
        fin_ = excedida_ = detenida_ = tomada_ = false;
        turno_ = &turno;
        if (orden == nullptr && conjunto_.Completo())
            Bajar<0>(0);
        else
            Recorrer(orden);
        return !detenida_;
    }

    bool Excedida() const { return excedida_; }

    /// Bets taken, from 0, in order.
    std::vector<int32_t>& Elegidas() { return elegidas_; }

  private:
    static uint64_t Bit(int posicion) { return uint64_t{1} << posicion; }

    void Recorrer(const int32_t* orden) {
        for (int32_t i = 0; i < conjunto_.Apuestas() && !fin_; ++i) {
            if (i % 100 == 99 && !(*turno_)(i)) fin_ = detenida_ = true;
            const int32_t j = orden == nullptr ? i : orden[i] - 1;
            const Seis p = conjunto_.Apuesta(j);
            if (!Cubierta(p)) Tomar(j, p);
        }
    }

    bool Cubierta(const Seis& p) const {
        uint64_t completan = 0, bits = 0;
        for (const uint8_t x : p) bits |= Bit(x);
        CadaSubconjunto<T - 1>(r_, p.data(), 0, 5, 0, [&](int32_t lugar, int) { completan |= completan_[lugar]; });
        return (completan & bits) != 0;
    }

    void Tomar(int32_t i, const Seis& p) {
        if (static_cast<int32_t>(elegidas_.size()) == tope_) {
            fin_ = excedida_ = true;
            return;
        }
        elegidas_.push_back(i);
        uint64_t desde[7] = {};
        for (int k = 5; k >= 0; --k) desde[k] = desde[k + 1] | Bit(p[k]);
        CadaSubconjunto<T - 1>(r_, p.data(), 0, 5, 0,
                               [&](int32_t lugar, int siguiente) { completan_[lugar] |= desde[siguiente]; });
    }

    // The complete system in lexicographic order, prefix by prefix: D positions stand, and
    // `prohibidas` are those that would complete a covered T-subset with them. What starts with a
    // covered prefix is not visited.
    template <int D>
    void Bajar(uint64_t prohibidas) {
        const uint64_t mayores = D == 0 ? ~Bit(0) : ~(Bit(prefijo_[D == 0 ? 0 : D - 1] + 1) - 1);
        uint64_t libres = mayores & (Bit(conjunto_.n() - 5 + D + 1) - 1) & ~prohibidas;
        while (libres != 0) {
            const int x = std::countr_zero(libres);
            libres &= libres - 1;
            prefijo_[D] = static_cast<uint8_t>(x);
            if constexpr (D == 5) {
                Tomar(r6_.Lugar(prefijo_.data()), prefijo_);
                tomada_ = true;
                return;
            } else {
                if constexpr (D == 2)
                    if (!(*turno_)(r6_.Parte(0, prefijo_[0]))) fin_ = detenida_ = true;
                Bajar<D + 1>(prohibidas | QueCompletan<D>(x));
                if (fin_) return;
                if (tomada_ && D >= T) return;
                if (tomada_ && D == T - 1) {
                    tomada_ = false;
                    prohibidas |= completan_[r_.Lugar(prefijo_.data())]; // the bet taken covers more of this prefix
                    libres &= ~prohibidas;
                }
            }
        }
    }

    // Positions that complete a covered T-subset with x and some of the D before it.
    template <int D>
    uint64_t QueCompletan(int x) const {
        uint64_t completan = 0;
        if constexpr (D >= T - 2)
            CadaSubconjunto<T - 2>(r_, prefijo_.data(), 0, D, r_.Parte(T - 2, x),
                                   [&](int32_t lugar, int) { completan |= completan_[lugar]; });
        return completan;
    }

    const Conjunto& conjunto_;
    Rangos r_, r6_;
    std::vector<uint64_t> completan_;
    std::vector<int32_t> elegidas_;
    const Turno* turno_ = nullptr;
    int32_t tope_ = 0;
    bool fin_ = false, excedida_ = false, detenida_ = false, tomada_ = false;
    Seis prefijo_{};
};
