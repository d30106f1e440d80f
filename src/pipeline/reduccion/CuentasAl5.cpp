#include "CuentasAl5.h"

#include <algorithm>

CuentasAl5::CuentasAl5(const Conjunto& conjunto)
    : conjunto_(conjunto), r5_(conjunto.n(), 5), r6_(conjunto.n(), 6), cuenta_(r5_.Cuantos() + Margen),
      estado_(r6_.Cuantos() + Margen) {}

bool CuentasAl5::Contar(const std::function<bool(int32_t)>& turno) {
    if (conjunto_.Completo()) {
        std::fill_n(cuenta_.begin(), r5_.Cuantos(), static_cast<uint8_t>(conjunto_.n() - 5));
        std::fill_n(estado_.begin(), r6_.Cuantos(), uint8_t{Descubierta});
    } else {
        for (int32_t i = 0; i < conjunto_.Apuestas(); ++i) {
            if (i % 500 == 499 && !turno(i + 1)) return false;
            const Seis p = conjunto_.Apuesta(i);
            for (const int32_t s : LugaresSinUno(r5_, p)) ++cuenta_[s];
            estado_[r6_.Lugar(p.data())] = Descubierta;
        }
    }
    inicial_ = cuenta_;
    return true;
}

void CuentasAl5::Reponer() {
    cuenta_ = inicial_;
    for (uint8_t& e : estado_) e = e == Ausente ? Ausente : Descubierta;
}

int CuentasAl5::Ganancia(int32_t i) const {
    const Seis p = conjunto_.Apuesta(i);
    int suma = 0;
    for (const int32_t s : LugaresSinUno(r5_, p)) suma += cuenta_[s];
    const int32_t lugar = conjunto_.Completo() ? i : r6_.Lugar(p.data());
    return suma - (estado_[lugar] == Descubierta ? 5 : 0);
}

void CuentasAl5::CubrirUna(Seis q, int32_t lugar) {
    estado_[lugar] = Cubierta;
    for (const int32_t s : LugaresSinUno(r5_, q)) --cuenta_[s];
}

// With element `fuera` left out, x walks over all other positions of the base and takes the place j
// that keeps the bet ascending; each step to the next place moves one element down.
void CuentasAl5::Cubrir(const Seis& p) {
    const std::array<int32_t, 6> subconjunto = LugaresSinUno(r5_, p);
    for (int fuera = 0; fuera < 6; ++fuera) {
        Seis q{};
        for (int k = 0; k < 6; ++k)
            if (k != fuera) q[k < fuera ? k + 1 : k] = p[k];
        int32_t resto = 0;
        for (int j = 1; j < 6; ++j) resto += r6_.Parte(j, q[j]);
        int j = 0;
        for (int x = 1; x <= conjunto_.n() && cuenta_[subconjunto[fuera]] != 0; ++x) {
            if (j < 5 && x == q[j + 1]) {
                resto += r6_.Parte(j, q[j + 1]) - r6_.Parte(j + 1, q[j + 1]);
                q[j] = q[j + 1];
                ++j;
                continue;
            }
            const int32_t lugar = resto + r6_.Parte(j, x);
            if (estado_[lugar] != Descubierta) continue;
            q[j] = static_cast<uint8_t>(x);
            CubrirUna(q, lugar);
        }
    }
}
