#include "Lectura.h"

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Lectura.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

uint64_t Sumar(const uint8_t* bytes, int64_t n) {
    uint64_t suma = 0;
    int64_t i = 0;
#if HWY_TARGET != HWY_SCALAR
    namespace hn = hwy::HWY_NAMESPACE;
    const hn::ScalableTag<uint8_t> d;
    const hn::ScalableTag<uint64_t> d64;
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    auto a = hn::Zero(d64), b = hn::Zero(d64);
    for (; i + 2 * ancho <= n; i += 2 * ancho) {
        a = hn::Add(a, hn::SumsOf8(hn::LoadU(d, bytes + i)));
        b = hn::Add(b, hn::SumsOf8(hn::LoadU(d, bytes + i + ancho)));
    }
    suma = hn::GetLane(hn::SumOfLanes(d64, hn::Add(a, b)));
#endif
    for (; i < n; ++i) suma += bytes[i];
    return suma;
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Sumar);
} // namespace

uint64_t SumarBytes(const uint8_t* bytes, int64_t n) {
    return HWY_DYNAMIC_DISPATCH(Sumar)(bytes, n);
}
#endif
