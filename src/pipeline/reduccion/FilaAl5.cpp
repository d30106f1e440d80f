#include "FilaAl5.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "FilaAl5.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR

MejorDeFila MejorApuesta(const FilaAl5& fila) {
    return MejorDeFilaEscalar(fila);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

// Most rows are short: 16 bets at once is what fits them. A count is at most 44, so that five of them
// fit a byte.
MejorDeFila MejorApuesta(const FilaAl5& fila) {
    const hn::FixedTag<uint8_t, 16> d;
    MejorDeFila mejor;
    for (int i = 0; i < fila.n; i += 16) {
        const auto estado = hn::LoadU(d, fila.estado + i);
        const auto vale = hn::And(hn::Ne(estado, hn::Zero(d)), hn::FirstN(d, static_cast<size_t>(fila.n - i)));
        auto suma = hn::LoadU(d, fila.sin[0] + i);
        for (int k = 1; k < 5; ++k) suma = hn::Add(suma, hn::LoadU(d, fila.sin[k] + i));
        suma = hn::Sub(suma, hn::And(estado, hn::Set(d, uint8_t{5})));
        suma = hn::IfThenElseZero(vale, suma);
        const auto maximo = hn::MaxOfLanes(d, suma);
        const int ganancia = hn::GetLane(maximo);
        if (ganancia <= mejor.ganancia) continue;
        const intptr_t indice = hn::FindFirstTrue(d, hn::And(vale, hn::Eq(suma, maximo)));
        if (indice >= 0) mejor = {ganancia, i + static_cast<int>(indice)};
    }
    return mejor;
}

#endif

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace {
HWY_EXPORT(MejorApuesta);
}

MejorDeFila MejorDeFilaAl5(const FilaAl5& fila) {
    return HWY_DYNAMIC_DISPATCH(MejorApuesta)(fila);
}

MejorDeFila MejorDeFilaEscalar(const FilaAl5& fila) {
    MejorDeFila mejor;
    for (int i = 0; i < fila.n; ++i) {
        if (fila.estado[i] == 0) continue;
        int ganancia = -(fila.estado[i] & 5);
        for (const uint8_t* sin : fila.sin) ganancia += sin[i];
        if (ganancia > mejor.ganancia) mejor = {ganancia, i};
    }
    return mejor;
}

#endif
