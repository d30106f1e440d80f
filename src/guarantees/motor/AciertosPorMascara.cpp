#include "AciertosPorMascara.h"

#include <algorithm>

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "AciertosPorMascara.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

constexpr int BitsContador = 9;
constexpr int64_t Tanda = (1 << BitsContador) - 1;

// The seven counters of a batch share one word. Compiled for each processor because of the one
// instruction that counts bits.
void Contar(Mascara candidata, const Mascara* sistema, int64_t apuestas, CuentasPorAciertos& cuenta) {
    for (int64_t inicio = 0; inicio < apuestas; inicio += Tanda) {
        const int64_t fin = std::min(apuestas, inicio + Tanda);
        uint64_t contadores = 0;
        for (int64_t i = inicio; i < fin; ++i)
            contadores += uint64_t{1} << (BitsContador * __builtin_popcountll(candidata & sistema[i]));
        for (int32_t& h : cuenta) {
            h += static_cast<int32_t>(contadores & Tanda);
            contadores >>= BitsContador;
        }
    }
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Contar);
} // namespace

void ContarPorMascara(Mascara candidata, const Mascara* sistema, int64_t apuestas, CuentasPorAciertos& cuenta) {
    HWY_DYNAMIC_DISPATCH(Contar)(candidata, sistema, apuestas, cuenta);
}
#endif
