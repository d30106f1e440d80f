#include "NucleoRegistros.h"

#include <algorithm>

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleoRegistros.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET != HWY_SCALAR

namespace hn = hwy::HWY_NAMESPACE;

using Bytes16 = hn::FixedTag<uint8_t, 16>;
using V = hn::Vec<Bytes16>;
inline constexpr Bytes16 d;
inline constexpr hn::FixedTag<uint16_t, 8> d16;
inline constexpr hn::FixedTag<uint64_t, 2> d64;

constexpr int64_t BytesRegistro = 22;
constexpr int64_t SegundaVentana = 6;

// Where the seven pairs of digits stand in each window, to bring them together; 0x80 gives 0.
constexpr uint8_t N = 0x80;
alignas(16) constexpr uint8_t Pares1[16] = {2, 3, 5, 6, 8, 9, 11, 12, 14, 15, N, N, N, N, N, N};
alignas(16) constexpr uint8_t Pares2[16] = {N, N, N, N, N, N, N, N, N, N, 11, 12, 14, 15, N, N};

class Lector {
  public:
    explicit Lector(const FormaRegistro& f)
        : cero1_(hn::LoadU(d, f.Cero1.data())), cero2_(hn::LoadU(d, f.Cero2.data())),
          tope1_(hn::LoadU(d, f.Tope1.data())), tope2_(hn::LoadU(d, f.Tope2.data())), pares1_(hn::Load(d, Pares1)),
          pares2_(hn::Load(d, Pares2)), digitoMinimo_(hn::Set(d, f.DigitoMinimo)),
          digitoMaximo_(hn::Set(d, f.DigitoMaximo)) {}

    // Sixteen records into the rows from `i` on; nothing is written unless all are good.
    HWY_INLINE bool Leer(const uint8_t* registros, const std::array<uint8_t*, 7>& filas, int64_t i) const {
        V sobra = hn::Zero(d);
        V v[8];
        for (int k = 0; k < 8; ++k)
            v[k] = hn::ConcatEven(d, Numeros(registros + (k + 8) * BytesRegistro, sobra),
                                  Numeros(registros + k * BytesRegistro, sobra));
        V fila[8];
        Trasponer(v, fila);
        if (!Bien(fila, sobra)) return false;
        for (size_t e = 0; e < 7; ++e) hn::StoreU(fila[e], d, filas[e] + i);
        return true;
    }

  private:
    // The seven elements of a record in the low bytes of seven 16-bit lanes.
    HWY_INLINE V Numeros(const uint8_t* registro, V& sobra) const {
        const V a = hn::Xor(hn::LoadU(d, registro), cero1_);
        const V b = hn::Xor(hn::LoadU(d, registro + SegundaVentana), cero2_);
        sobra = hn::Or(sobra, hn::Or(hn::SaturatedSub(a, tope1_), hn::SaturatedSub(b, tope2_)));
        const V pares = hn::Or(hn::TableLookupBytesOr0(a, pares1_), hn::TableLookupBytesOr0(b, pares2_));
        const auto cifras = hn::BitCast(d16, pares); // tens below units
        return hn::BitCast(d, hn::Add(hn::Mul(cifras, hn::Set(d16, 10)), hn::ShiftRight<8>(cifras)));
    }

    static HWY_INLINE void Trasponer(const V (&v)[8], V (&fila)[8]) {
        V a[8], b[8];
        for (int k = 0; k < 4; ++k) { // records k and k + 4, then k + 8 and k + 12
            a[k] = hn::InterleaveLower(d, v[k], v[k + 4]);
            a[k + 4] = hn::InterleaveUpper(d, v[k], v[k + 4]);
        }
        for (int m = 0; m < 8; m += 4)
            for (int k = 0; k < 2; ++k) { // even records, odd ones; elements 1 to 4, 5 to 8
                b[m + k] = hn::InterleaveLower(d, a[m + k], a[m + k + 2]);
                b[m + k + 2] = hn::InterleaveUpper(d, a[m + k], a[m + k + 2]);
            }
        for (int p = 0; p < 4; ++p) { // two elements of eight records in each half of the sixteen
            const int j = p / 2 * 2;
            const V bajas =
                p % 2 == 0 ? hn::InterleaveLower(d, b[j], b[j + 1]) : hn::InterleaveUpper(d, b[j], b[j + 1]);
            const V altas =
                p % 2 == 0 ? hn::InterleaveLower(d, b[j + 4], b[j + 5]) : hn::InterleaveUpper(d, b[j + 4], b[j + 5]);
            const auto x = hn::BitCast(d64, bajas), y = hn::BitCast(d64, altas);
            fila[2 * p] = hn::BitCast(d, hn::InterleaveLower(d64, x, y));
            fila[2 * p + 1] = hn::BitCast(d, hn::InterleaveUpper(d64, x, y));
        }
    }

    HWY_INLINE bool Bien(const V (&fila)[8], V sobra) const {
        auto mal = hn::Or(hn::Lt(fila[6], digitoMinimo_), hn::Gt(fila[6], digitoMaximo_));
        mal = hn::Or(mal, hn::Or(hn::Eq(fila[0], hn::Zero(d)), hn::Gt(fila[5], hn::Set(d, 49))));
        for (int e = 0; e < 5; ++e) mal = hn::Or(mal, hn::Eq(hn::SaturatedSub(fila[e + 1], fila[e]), hn::Zero(d)));
        return hn::AllTrue(d, hn::Eq(hn::Or(sobra, hn::VecFromMask(d, mal)), hn::Zero(d)));
    }

    V cero1_, cero2_, tope1_, tope2_, pares1_, pares2_, digitoMinimo_, digitoMaximo_;
};

int64_t LeerApuestas(const char* registros, int64_t n, const FormaRegistro& forma,
                     const std::array<uint8_t*, 7>& filas) {
    const Lector lector(forma);
    const auto* bytes = reinterpret_cast<const uint8_t*>(registros);
    int64_t i = 0;
    while (i + 16 <= n && lector.Leer(bytes + i * BytesRegistro, filas, i)) i += 16;
    return i;
}

uint8_t Mayor(const uint8_t* fila, int64_t n) {
    V mayores = hn::Zero(d);
    int64_t i = 0;
    for (; i + 16 <= n; i += 16) mayores = hn::Max(mayores, hn::LoadU(d, fila + i));
    alignas(16) uint8_t ultimos[16];
    hn::Store(mayores, d, ultimos);
    uint8_t mayor = *std::max_element(ultimos, ultimos + 16);
    for (; i < n; ++i) mayor = std::max(mayor, fila[i]);
    return mayor;
}

#else

int64_t LeerApuestas(const char*, int64_t, const FormaRegistro&, const std::array<uint8_t*, 7>&) {
    return 0;
}

uint8_t Mayor(const uint8_t* fila, int64_t n) {
    return n == 0 ? uint8_t{0} : *std::max_element(fila, fila + n);
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(LeerApuestas);
HWY_EXPORT(Mayor);
} // namespace

int64_t NucleoLeerApuestas(const char* registros, int64_t n, const FormaRegistro& forma,
                           const std::array<uint8_t*, 7>& filas) {
    return HWY_DYNAMIC_DISPATCH(LeerApuestas)(registros, n, forma, filas);
}

uint8_t NucleoMayor(const uint8_t* fila, int64_t n) {
    return HWY_DYNAMIC_DISPATCH(Mayor)(fila, n);
}
#endif
