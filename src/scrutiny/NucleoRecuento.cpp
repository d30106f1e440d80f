#include "NucleoRecuento.h"

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleoRecuento.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

constexpr hn::ScalableTag<uint64_t> d64{};
using V = hn::Vec<hn::ScalableTag<uint64_t>>;

// Bets of all the bits added to it.
#if HWY_TARGET == HWY_SCALAR
class Contador {
  public:
    Contador() : suma_(hn::Zero(d64)) {}
    HWY_INLINE void Anotar(V bits) { suma_ = hn::Add(suma_, hn::PopulationCount(bits)); }
    int32_t Total() const { return static_cast<int32_t>(hn::GetLane(suma_)); }

  private:
    V suma_;
};
#else
constexpr hn::ScalableTag<uint8_t> d8{};
class Contador {
  public:
    HWY_INLINE Contador() : suma_(hn::Zero(d8)) {}
    HWY_INLINE void Anotar(V bits) { suma_ = hn::Add(suma_, hn::PopulationCount(hn::BitCast(d8, bits))); }
    int32_t Total() const { return static_cast<int32_t>(hn::GetLane(hn::SumOfLanes(d64, hn::SumsOf8(suma_)))); }

  private:
    hn::Vec<hn::ScalableTag<uint8_t>> suma_;
};
#endif

// Hits of a vector of bets, one binary digit a member.
struct Aciertos {
    V uno, dos, cuatro;
};

struct Medio {
    V suma, acarreo;
};

HWY_INLINE Medio Sumar(V a, V b, V c) {
    const V distintos = hn::Xor(a, b);
    return {hn::Xor(distintos, c), hn::OrAnd(hn::And(a, b), distintos, c)};
}

class Filas {
  public:
    Filas(const BloqueApuestas& bloque, const FilasSorteo& sorteo) {
        for (size_t j = 0; j < 6; ++j) fila_[j] = bloque.Fila(sorteo.Ganadores[j]);
    }

    HWY_INLINE Aciertos operator()(size_t palabra) const {
        const Medio a = Sumar(Leer(0, palabra), Leer(1, palabra), Leer(2, palabra));
        const Medio b = Sumar(Leer(3, palabra), Leer(4, palabra), Leer(5, palabra));
        const Medio c = Sumar(a.acarreo, b.acarreo, hn::And(a.suma, b.suma));
        return {hn::Xor(a.suma, b.suma), c.suma, c.acarreo};
    }

  private:
    HWY_INLINE V Leer(size_t j, size_t palabra) const { return hn::Load(d64, fila_[j] + palabra); }

    const uint64_t* fila_[6];
};

struct Grandes {
    int32_t Seis = 0, Cinco = 0, CincoC = 0;
};

// Few draws give any bet five or six hits, so that these are counted apart.
HWY_NOINLINE Grandes ContarGrandes(const BloqueApuestas& bloque, const FilasSorteo& sorteo, const Filas& filas) {
    Contador seis, cinco, cincoC;
    const uint64_t* complementario = bloque.Fila(sorteo.Complementario);
    for (size_t p = 0; p < bloque.EnUso(); p += hn::Lanes(d64)) {
        const Aciertos n = filas(p);
        const V deCinco = hn::And(n.cuatro, n.uno);
        seis.Anotar(hn::And(n.cuatro, n.dos));
        cinco.Anotar(deCinco);
        cincoC.Anotar(hn::And(deCinco, hn::Load(d64, complementario + p)));
    }
    return {seis.Total(), cinco.Total(), cincoC.Total()};
}

CuentaAciertos ContarSorteo(const BloqueApuestas& bloque, const FilasSorteo& sorteo) {
    const Filas filas(bloque, sorteo);
    Contador impares, conDos, conCuatro, tres;
    V grandes = hn::Zero(d64);
    for (size_t p = 0; p < bloque.EnUso(); p += hn::Lanes(d64)) {
        const Aciertos n = filas(p);
        impares.Anotar(n.uno);
        conDos.Anotar(n.dos);
        conCuatro.Anotar(n.cuatro);
        tres.Anotar(hn::And(n.uno, n.dos)); // seven hits there are not
        grandes = hn::Or(grandes, hn::And(n.cuatro, hn::Or(n.uno, n.dos)));
    }
    Grandes g;
    if (!hn::AllTrue(d64, hn::Eq(grandes, hn::Zero(d64)))) g = ContarGrandes(bloque, sorteo, filas);
    const int32_t de3 = tres.Total(), de4 = conCuatro.Total() - g.Cinco - g.Seis, de2 = conDos.Total() - de3 - g.Seis,
                  de1 = impares.Total() - de3 - g.Cinco;
    const auto de0 = static_cast<int32_t>(bloque.Apuestas()) - de1 - de2 - de3 - de4 - g.Cinco - g.Seis;
    return {{de0, de1, de2, de3, de4, g.Cinco, g.Seis}, g.CincoC};
}

void Contar(const BloqueApuestas& bloque, std::span<const FilasSorteo> sorteos, std::span<CuentaAciertos> cuentas) {
    for (size_t i = 0; i < sorteos.size(); ++i) cuentas[i] += ContarSorteo(bloque, sorteos[i]);
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

#include <algorithm>
#include <bit>
#include <cassert>

namespace {
HWY_EXPORT(Contar);
} // namespace

FilasSorteo::FilasSorteo(const Sorteado& sorteo) {
    constexpr Numeros64 delBoleto = (Numeros64{2} << NumeroMaximoBoleto) - 2;
    const auto numero = [](Numeros64 uno) { return static_cast<uint8_t>(std::countr_zero(uno)); };
    size_t j = 0;
    for (Numeros64 quedan = sorteo.Ganadores & delBoleto; quedan != 0 && j < Ganadores.size(); quedan &= quedan - 1)
        Ganadores[j++] = numero(quedan);
    if ((sorteo.Complementario & delBoleto) != 0) Complementario = numero(sorteo.Complementario);
}

void BloqueApuestas::Llenar(const Tabla& apuestas, int64_t desde, int64_t cuantas) {
    assert(desde >= 1 && cuantas >= 0 && cuantas <= Maximo && desde + cuantas - 1 <= apuestas.Apuestas());
    constexpr size_t palabrasVector = 8;
    apuestas_ = cuantas;
    enUso_ = (static_cast<size_t>(cuantas) + 64 * palabrasVector - 1) / (64 * palabrasVector) * palabrasVector;
    for (auto& fila : filas_) std::fill_n(fila.begin(), enUso_, uint64_t{0});
    std::array<const uint8_t*, 6> numeros;
    for (size_t r = 0; r < 6; ++r) numeros[r] = apuestas.Fila(static_cast<int>(r) + 1) + desde - 1;
    for (int64_t i = 0; i < cuantas; ++i) {
        const uint64_t bit = uint64_t{1} << (i & 63);
        for (const uint8_t* numero : numeros) {
            assert(numero[i] >= 1 && numero[i] <= NumeroMaximoBoleto);
            filas_[numero[i]][static_cast<size_t>(i >> 6)] |= bit;
        }
    }
}

void NucleoRecuento(const BloqueApuestas& bloque, std::span<const FilasSorteo> sorteos,
                    std::span<CuentaAciertos> cuentas) {
    assert(sorteos.size() == cuentas.size());
    HWY_DYNAMIC_DISPATCH(Contar)(bloque, sorteos, cuentas);
}
#endif
