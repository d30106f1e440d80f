#include "Traslados.h"

#include <algorithm>
#include <bit>
#include <cassert>

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Traslados.cpp"
#include <hwy/foreach_target.h>

#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

// Bets whose rows are copied in turn while their flags are at hand. In the masks of such a block bit
// i % 64 of mask i / 64 is set when its bet i is alive.
constexpr int64_t PorBloque = 4096;
using Mascaras = std::array<uint64_t, PorBloque / 64>;

#if HWY_TARGET == HWY_SCALAR

void LeerMascaras(const uint8_t* eliminada, int64_t n, Mascaras& mascaras) {
    mascaras.fill(0);
    for (int64_t i = 0; i < n; ++i)
        mascaras[static_cast<size_t>(i / 64)] |= static_cast<uint64_t>(eliminada[i] == 0) << i % 64;
}

// Writes the bytes of the mask's bits to `a`; up to 64 bytes there may change.
void Compactar64(const uint8_t* de, uint64_t mascara, uint8_t* a) {
    for (; mascara != 0; mascara &= mascara - 1) *a++ = de[std::countr_zero(mascara)];
}

void TraducirFila(const uint8_t* origen, int64_t n, const PorPosicion& tabla, uint8_t* destino) {
    std::transform(origen, origen + n, destino, [&](uint8_t b) { return tabla[b & 63u]; });
}

#else

void LeerMascaras(const uint8_t* eliminada, int64_t n, Mascaras& mascaras) {
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    auto* bits = reinterpret_cast<uint8_t*>(mascaras.data());
    const int64_t hasta = (n + 63) / 64 * 64;
    for (int64_t i = 0; i < hasta; i += ancho)
        hn::StoreMaskBits(d, hn::Eq(hn::Load(d, eliminada + i), hn::Zero(d)), bits + i / 8);
}

#if HWY_TARGET == HWY_AVX3_DL

HWY_INLINE void Compactar64(const uint8_t* de, uint64_t mascara, uint8_t* a) {
    hn::StoreU(V{_mm512_maskz_compress_epi8(mascara, hn::Load(d, de).raw)}, d, a);
}

#else

// By eight bits of the mask, the indices of those that are set.
constexpr auto Indices = [] {
    std::array<std::array<uint8_t, 8>, 256> tabla{};
    for (size_t m = 0; m < 256; ++m)
        for (size_t b = 0, n = 0; b < 8; ++b)
            if ((m >> b & 1) != 0) tabla[m][n++] = static_cast<uint8_t>(b);
    return tabla;
}();

HWY_INLINE void Compactar64(const uint8_t* de, uint64_t mascara, uint8_t* a) {
    const hn::FixedTag<uint8_t, 8> d8;
    for (size_t g = 0; g < 8; ++g, mascara >>= 8) {
        const auto indices = hn::LoadU(d8, Indices[mascara & 255].data());
        hn::StoreU(hn::TableLookupBytes(hn::LoadU(d8, de + 8 * g), indices), d8, a);
        a += std::popcount(mascara & 255);
    }
}

#endif

void TraducirFila(const uint8_t* origen, int64_t n, const PorPosicion& tabla, uint8_t* destino) {
    const Busqueda64 buscar(tabla);
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t i = 0; i < n; i += ancho) hn::Store(buscar(hn::Load(d, origen + i)), d, destino + i);
}

#endif

void CompactarFila(const uint8_t* de, const Mascaras& mascaras, int64_t n, uint8_t* a) {
    for (int64_t i = 0; i < n; i += 64) {
        const uint64_t mascara = mascaras[static_cast<size_t>(i / 64)];
        Compactar64(de + i, mascara, a);
        a += std::popcount(mascara);
    }
}

void CompactarTabla(const Tabla& origen, const uint8_t* eliminada, int64_t apuestas, Tabla& destino) {
    Mascaras mascaras;
    int64_t escritas = 0;
    for (int64_t desde = 0; desde < apuestas; desde += PorBloque) {
        const int64_t n = std::min(PorBloque, apuestas - desde);
        LeerMascaras(eliminada + desde, n, mascaras);
        for (int r = 1; r <= origen.Filas(); ++r)
            CompactarFila(origen.Fila(r) + desde, mascaras, n, destino.Fila(r) + escritas);
        for (int64_t i = 0; i < n; i += 64) escritas += std::popcount(mascaras[static_cast<size_t>(i / 64)]);
    }
    assert(escritas == destino.Apuestas());
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(CompactarTabla);
HWY_EXPORT(TraducirFila);
} // namespace

void Compactar(const Tabla& origen, const uint8_t* eliminada, int64_t apuestas, Tabla& destino) {
    HWY_DYNAMIC_DISPATCH(CompactarTabla)(origen, eliminada, apuestas, destino);
}

void Traducir(const uint8_t* origen, int64_t n, const PorPosicion& tabla, uint8_t* destino) {
    HWY_DYNAMIC_DISPATCH(TraducirFila)(origen, n, tabla, destino);
}
#endif
