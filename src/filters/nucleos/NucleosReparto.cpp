// Kernels that count bets by value.
#include "NucleosReparto.h"

#include "Objetivos.h"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "NucleosReparto.cpp"
#include <hwy/foreach_target.h>

#include "Vectores-inl.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {
#if HWY_TARGET == HWY_SCALAR

void Aciertos(const Tramo& tramo, const uint8_t* valores, bool altos, CuentaAciertos& cuenta) {
    NucleoContarAciertosEscalar(tramo, valores, altos, cuenta);
}
void Bytes2(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    NucleoContarBytesEscalar(tramo, baja, alta, cuenta);
}
void Palabras(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    NucleoContarPalabrasEscalar(tramo, valores, cuenta);
}

#else

// Bits 3 and 4 of a bet's byte are its state: 8 rejected, 16 dead.
struct RecuentoAciertos {
    size_t pasan[7] = {}, rechazadas[7] = {};

    HWY_INLINE void Contar(V aciertos, V estado) {
        const V v = hn::Or(aciertos, hn::ShiftLeft<3>(estado));
        for (size_t h = 0; h <= 3; ++h) ContarLosDe(h, v);
        if (hn::AllFalse(d, hn::Gt(aciertos, hn::Set(d, 3)))) return; // four of one class are rare
        for (size_t h = 4; h <= 6; ++h) ContarLosDe(h, v);
    }
    HWY_INLINE void ContarLosDe(size_t h, V v) {
        pasan[h] += hn::CountTrue(d, hn::Eq(v, hn::Set(d, static_cast<uint8_t>(h))));
        rechazadas[h] += hn::CountTrue(d, hn::Eq(v, hn::Set(d, static_cast<uint8_t>(h + 8))));
    }
};

void Aciertos(const Tramo& tramo, const uint8_t* valores, bool altos, CuentaAciertos& cuenta) {
    RecuentoAciertos recuento;
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t i = 0; i < tramo.n; i += ancho) {
        const V v = hn::Load(d, valores + i);
        recuento.Contar(hn::And(altos ? hn::ShiftRight<4>(v) : v, hn::Set(d, 7)), hn::Load(d, tramo.eliminada + i));
    }
    for (size_t h = 0; h < cuenta.size(); ++h) {
        const auto pasan = static_cast<int32_t>(recuento.pasan[h]);
        cuenta[h].Sumar({pasan + static_cast<int32_t>(recuento.rechazadas[h]), pasan});
    }
}

class RecuentoPalabras {
  public:
    explicit RecuentoPalabras(CuentaPalabras& cuenta) {
        for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) cuentas_[t] = cuenta.Cuentas(t);
    }

    // In a table in order many rows hold a few different values for a while, which are counted one after the
    // other. Where they are more, the next vectors are likely to have as many.
    HWY_INLINE void Contar(const uint8_t* baja, const uint8_t* alta, V estado) {
        const V bajas = hn::Load(d, baja), altas = hn::Load(d, alta);
        if (variados_ > 0) {
            --variados_;
            return ContarUnaAUna(bajas, altas, estado);
        }
        Mascara quedan = hn::Ne(estado, hn::Set(d, ApuestaMuerta));
        for (int v = 0; v < 4; ++v) {
            const auto i = hn::FindFirstTrue(d, quedan);
            if (i < 0) return;
            const auto iguales = hn::And(hn::Eq(bajas, hn::Set(d, baja[i])), hn::Eq(altas, hn::Set(d, alta[i])));
            ContarIguales(baja[i], alta[i], hn::And(quedan, iguales), estado);
            quedan = hn::AndNot(iguales, quedan);
        }
        if (hn::AllFalse(d, quedan)) return;
        variados_ = 3;
        ContarUnaAUna(bajas, altas, hn::IfThenElse(quedan, estado, hn::Set(d, ApuestaMuerta)));
    }

  private:
    using Mascara = decltype(hn::Eq(V(), V()));

    HWY_INLINE void ContarIguales(uint8_t baja, uint8_t alta, Mascara cuales, V estado) {
        const size_t valor = baja + size_t{256} * alta;
        for (const EstadoApuesta e : {ApuestaPasa, ApuestaRechazada}) {
            const auto suyas = hn::And(cuales, hn::Eq(estado, hn::Set(d, static_cast<uint8_t>(e))));
            cuentas_[0][CuentaPalabras::Lugar(valor, e)] += static_cast<int32_t>(hn::CountTrue(d, suyas));
        }
    }

    HWY_INLINE void ContarUnaAUna(V bajas, V altas, V estado) {
        static_assert(CuentaPalabras::Lugar(0, ApuestaRechazada) == 0x8080);
        static_assert(CuentaPalabras::Lugar(0, ApuestaMuerta) == 0x7F00);
        const V rechazo = hn::ShiftLeft<7>(estado);
        const auto muertas = hn::Eq(estado, hn::Set(d, ApuestaMuerta));
        const V altasConEstado = hn::IfThenElse(muertas, hn::Set(d, 0x7F), hn::Xor(altas, rechazo));
        const V bajasConEstado = hn::Xor(bajas, rechazo);
        constexpr size_t ancho = hn::MaxLanes(d);
        HWY_ALIGN uint16_t lugar[ancho];
        hn::Store(hn::BitCast(d16, hn::InterleaveLower(bajasConEstado, altasConEstado)), d16, lugar);
        hn::Store(hn::BitCast(d16, hn::InterleaveUpper(d, bajasConEstado, altasConEstado)), d16, lugar + ancho / 2);
        for (size_t j = 0; j < ancho; j += CuentaPalabras::Turnos)
            for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) ++cuentas_[t][lugar[j + t]];
    }

    static constexpr hn::RepartitionToWide<Bytes> d16{};

    int32_t* cuentas_[CuentaPalabras::Turnos];
    int variados_ = 0; // vectors yet to be counted one bet at a time
};

void Bytes2(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    RecuentoPalabras recuento(cuenta);
    const auto ancho = static_cast<int64_t>(hn::Lanes(d));
    for (int64_t i = 0; i < tramo.n; i += ancho) recuento.Contar(baja + i, alta + i, hn::Load(d, tramo.eliminada + i));
}

// Words have the state in their highest bit; those of dead bets are all alike.
void Palabras(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    const hn::ScalableTag<uint16_t> d16;
    const hn::Half<Bytes> mitad;
    constexpr size_t ancho = hn::MaxLanes(d16);
    int32_t* cuentas[CuentaPalabras::Turnos];
    for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) cuentas[t] = cuenta.Cuentas(t);
    for (int64_t i = 0; i < tramo.n; i += static_cast<int64_t>(ancho)) {
        const auto estado = hn::PromoteTo(d16, hn::Load(mitad, tramo.eliminada + i));
        const auto muertas = hn::Eq(estado, hn::Set(d16, ApuestaMuerta));
        const auto rechazo = hn::Or(hn::ShiftLeft<15>(estado), hn::ShiftLeft<7>(estado));
        HWY_ALIGN uint16_t lugar[ancho];
        hn::Store(hn::IfThenElse(muertas, hn::Set(d16, CuentaPalabras::Lugar(0, ApuestaMuerta)),
                                 hn::Xor(hn::LoadU(d16, valores + i), rechazo)),
                  d16, lugar);
        for (size_t j = 0; j < ancho; j += CuentaPalabras::Turnos)
            for (size_t t = 0; t < CuentaPalabras::Turnos; ++t) ++cuentas[t][lugar[j + t]];
    }
}

#endif
} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace {
HWY_EXPORT(Aciertos);
HWY_EXPORT(Bytes2);
HWY_EXPORT(Palabras);

alignas(64) constexpr std::array<uint8_t, ApuestasPorTurno + 128> Ceros{};
} // namespace

CuentaValor CuentaPalabras::De(size_t valor) const {
    CuentaValor suma;
    for (size_t t = 0; t < Turnos; ++t) {
        const int32_t* cuentas = cuentas_.data() + t * PorTurno;
        const int32_t pasan = cuentas[Lugar(valor, ApuestaPasa)];
        suma.Sumar({pasan + cuentas[Lugar(valor, ApuestaRechazada)], pasan});
    }
    return suma;
}

void NucleoContarAciertos(const Tramo& tramo, const uint8_t* valores, bool altos, CuentaAciertos& cuenta) {
    HWY_DYNAMIC_DISPATCH(Aciertos)(tramo, valores, altos, cuenta);
}

void NucleoContarBytes(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    HWY_DYNAMIC_DISPATCH(Bytes2)(tramo, baja, alta == nullptr ? Ceros.data() : alta, cuenta);
}

void NucleoContarAciertosEscalar(const Tramo& tramo, const uint8_t* valores, bool altos, CuentaAciertos& cuenta) {
    for (int64_t i = 0; i < tramo.n; ++i) {
        const size_t aciertos = (altos ? valores[i] >> 4 : valores[i]) & 7;
        if (aciertos > 6 || tramo.eliminada[i] == ApuestaMuerta) continue;
        cuenta[aciertos].Sumar({1, tramo.eliminada[i] == ApuestaPasa});
    }
}

void NucleoContarBytesEscalar(const Tramo& tramo, const uint8_t* baja, const uint8_t* alta, CuentaPalabras& cuenta) {
    for (int64_t i = 0; i < tramo.n; ++i) {
        const size_t valor = tramo.eliminada[i] == ApuestaMuerta ? 0 : baja[i] + size_t{256} * alta[i];
        ++cuenta.Cuentas(static_cast<size_t>(i) %
                         CuentaPalabras::Turnos)[CuentaPalabras::Lugar(valor, tramo.eliminada[i])];
    }
}

void NucleoContarPalabras(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    HWY_DYNAMIC_DISPATCH(Palabras)(tramo, valores, cuenta);
}

void NucleoContarPalabrasEscalar(const Tramo& tramo, const uint16_t* valores, CuentaPalabras& cuenta) {
    for (int64_t i = 0; i < tramo.n; ++i) {
        const size_t valor = tramo.eliminada[i] == ApuestaMuerta ? 0 : valores[i];
        ++cuenta.Cuentas(static_cast<size_t>(i) %
                         CuentaPalabras::Turnos)[CuentaPalabras::Lugar(valor, tramo.eliminada[i])];
    }
}
#endif
