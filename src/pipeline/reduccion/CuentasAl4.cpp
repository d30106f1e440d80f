#include "CuentasAl4.h"

#include <algorithm>
#include <cassert>

CuentasAl4::CuentasAl4(const Conjunto& conjunto)
    : conjunto_(conjunto), r4_(conjunto.n(), 4), r5_(conjunto.n(), 5), r6_(conjunto.n(), 6),
      lugares_(conjunto.Apuestas()), lugar6_(conjunto.Apuestas()), cuenta4_(r4_.Cuantos() + Margen),
      cuenta5_(r5_.Cuantos() + Margen), estado_(r6_.Cuantos() + Margen, Ausente) {
    assert(conjunto.n() <= 22);
}

namespace {

// Places of the 15 4-subsets, by the two elements left out.
template <class Salida>
void LugaresSinDos(const Rangos& r4, const Seis& p, Salida salida) {
    for (int i = 0; i < 6; ++i)
        for (int j = i + 1; j < 6; ++j) {
            int32_t lugar = 0;
            for (int k = 0; k < 6; ++k)
                if (k != i && k != j) lugar += r4.Parte(k - (k > i) - (k > j), p[k]);
            *salida++ = static_cast<uint16_t>(lugar);
        }
}

uint32_t Mascara(const Seis& p) {
    uint32_t m = 0;
    for (const uint8_t x : p) m |= uint32_t{1} << x;
    return m;
}

// Whether at least four bits are set.
bool CuatroOMas(uint32_t m) {
    m &= m - 1;
    m &= m - 1;
    return (m & (m - 1)) != 0;
}

} // namespace

bool CuentasAl4::Contar(const std::function<bool(int32_t)>& turno) {
    todas_.reserve(lugares_.size());
    for (int32_t i = 0; i < conjunto_.Apuestas(); ++i) {
        if (i % 500 == 499 && !conjunto_.Completo() && !turno(i + 1)) return false;
        const Seis p = conjunto_.Apuesta(i);
        Lugares& l = lugares_[i];
        LugaresSinDos(r4_, p, l.begin());
        const auto cinco = LugaresSinUno(r5_, p);
        std::transform(cinco.begin(), cinco.end(), l.begin() + 15, [](int32_t s) { return static_cast<uint16_t>(s); });
        for (int k = 0; k < 15; ++k) ++cuenta4_[l[k]];
        for (int k = 15; k < 21; ++k) ++cuenta5_[l[k]];
        lugar6_[i] = r6_.Lugar(p.data());
        estado_[lugar6_[i]] = Descubierta;
        todas_.push_back({Mascara(p), i});
    }
    inicial4_ = cuenta4_;
    inicial5_ = cuenta5_;
    estadoInicial_ = estado_;
    quedan_ = todas_;
    return true;
}

void CuentasAl4::Reponer() {
    cuenta4_ = inicial4_;
    cuenta5_ = inicial5_;
    quedan_ = todas_;
    estado_ = estadoInicial_;
}

int CuentasAl4::Ganancia(int32_t i) const {
    const Lugares& l = lugares_[i];
    const int16_t* c4 = cuenta4_.data();
    const int16_t* c5 = cuenta5_.data();
    int suma4 = 0, suma5 = 0;
    for (int k = 0; k < 15; ++k) suma4 += c4[l[k]];
    for (int k = 15; k < 21; ++k) suma5 += c5[l[k]];
    return suma4 - 4 * suma5 + estado_[lugar6_[i]] / 2;
}

void CuentasAl4::Cubrir(int32_t i) {
    const uint32_t mascara = Mascara(conjunto_.Apuesta(i));
    size_t n = 0;
    for (const Pendiente& d : quedan_) {
        if (!CuatroOMas(d.mascara & mascara)) {
            quedan_[n++] = d;
            continue;
        }
        estado_[lugar6_[d.apuesta]] = Cubierta;
        const Lugares& l = lugares_[d.apuesta];
        for (int k = 0; k < 15; ++k) --cuenta4_[l[k]];
        for (int k = 15; k < 21; ++k) --cuenta5_[l[k]];
    }
    quedan_.resize(n);
}
